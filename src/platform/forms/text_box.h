#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

// A box of one line, centred. It takes what fits of a text that the program puts there, and what is
// accepted of one that the user types or pastes; where that is nothing, text and selection stay.
class TextBox : public Control {
 public:
  enum class Accept { Anything, Digits };

  TextBox(Container& parent, const char* name, const Box& box, Accept accept, int maxChars,
          const FontStyle& font = {});

  std::string text() const;
  void setText(const std::string& text);

 private:
  int maxChars_;
  std::string accepted_;  // what stands there unless someone changed it without asking
};

}  // namespace forms
