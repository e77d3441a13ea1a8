#pragma once

#include "platform/forms/control.h"
#include "platform/forms/picture.h"

namespace forms {

enum class Stretch { No, Yes };

// Shows a picture at its own size in the upper left corner, or stretched to the box.
class Image : public Control {
 public:
  Image(Container& parent, const char* name, const Box& box, Stretch stretch);

  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture);
  // A flat line inside the edges of the box.
  void setBorder(bool border);

 private:
  Picture picture_;
};

}  // namespace forms
