#pragma once

#include "platform/forms/control.h"

namespace forms {

// The outline of a rectangle. It ignores the mouse.
class Shape : public Control {
 public:
  Shape(Container& parent, const char* name, const Box& box);
};

}  // namespace forms
