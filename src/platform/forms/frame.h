#pragma once

#include "platform/forms/control.h"

namespace forms {

// A page of controls inside a form, with a line round it.
class Frame : public Control, public Container {
 public:
  Frame(Container& parent, const char* name, const Box& box);

  QWidget* clientArea() const override { return widget(); }
};

}  // namespace forms
