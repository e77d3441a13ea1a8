#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

// A box with one line of centred text. A text from the program is cut to `maxChars`. Of a text that
// the user types or pastes, the accepted characters are taken as far as they fit; if there are
// none, text and selection stay.
class TextBox : public Control {
 public:
  enum class Accept { Anything, Digits };

  TextBox(Container& parent, const char* name, const Box& box, Accept accept, int maxChars,
          const FontStyle& font = {});

  std::string text() const;
  void setText(const std::string& text);

 private:
  int maxChars_;
  std::string accepted_;  // the last text that came from the program or the user
};

}  // namespace forms
