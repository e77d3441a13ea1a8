#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// A horizontal scroll bar. Each change of the value by the user or the program raises the change
// event; a drag of the thumb raises it only at its end.
class ScrollBar : public Control {
 public:
  ScrollBar(Container& parent, const char* name, const Box& box, int minimum, int maximum,
            int largeStep, int value);

  int value() const;
  // Throws for a value outside the range.
  void setValue(int value);

  // The text that assistive technology reports instead of the number, until the value changes.
  void setValueText(const std::string& text);

  std::function<void()> onChange;
};

}  // namespace forms
