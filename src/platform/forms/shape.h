#pragma once

#include "platform/forms/control.h"

namespace forms {

// The outline of a rectangle; the mouse does not see it.
class Shape : public Control {
 public:
  Shape(Container& parent, const char* name, const Box& box);
};

}  // namespace forms
