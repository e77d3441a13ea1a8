#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// Spread: the pieces between runs of blanks go to the left end, the middle and the right end.
enum class Align { Left, Centre, Right, Spread };

// Plain text. If a single line is too long for its box, its font becomes a little smaller, and if
// that is not enough it ends in an ellipsis.
class Label : public Control {
 public:
  Label(Container& parent, const char* name, const Box& box, const std::string& caption = {},
        const FontStyle& font = {}, Align align = Align::Left);

  std::string caption() const;
  void setCaption(const std::string& caption);

  // Wrapped text has a small margin. If it is too long for its box, the last whole line ends in an
  // ellipsis.
  void setWordWrap(bool wrap);
  // A line round the label.
  void setBorder(bool border);
  // Makes the label a link: it has the link colour, can be focused and pressed by keys, and is as
  // wide as its text.
  void makeLink();

  std::function<void()> onClick;

 private:
  bool link_ = false;
};

}  // namespace forms
