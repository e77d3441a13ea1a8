#pragma once

#include "platform/forms/control.h"

namespace forms {

// A box of one line, centred. The program may put any text there; what the user types or pastes is
// cut to the accepted characters and length.
class TextBox : public Control {
 public:
  enum class Accept { Anything, Digits };

  TextBox(Container& parent, const char* name, const Box& box, Accept accept, int maxChars,
          const FontStyle& font = {});

  std::string text() const;
  void setText(const std::string& text);
};

}  // namespace forms
