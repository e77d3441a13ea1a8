#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// Spread: the pieces between runs of blanks go to the left end, the middle and the right end.
enum class Align { Left, Centre, Right, Spread };

// A text that is shown as it stands. A single line too long for its box is set a little smaller,
// and ends in an ellipsis if that is not enough.
class Label : public Control {
 public:
  Label(Container& parent, const char* name, const Box& box, const std::string& caption = {},
        const FontStyle& font = {}, Align align = Align::Left);

  std::string caption() const;
  void setCaption(const std::string& caption);

  // Wrapped text keeps a little off the edges of its box. Too long for it, the text ends in an
  // ellipsis on the last whole line.
  void setWordWrap(bool wrap);
  // A line round the label.
  void setBorder(bool border);
  // Makes the label a link: link colour, reached and pressed by keys too, as wide as its text
  // needs.
  void makeLink();

  std::function<void()> onClick;

 private:
  bool link_ = false;
};

}  // namespace forms
