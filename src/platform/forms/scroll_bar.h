#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// A horizontal scroll bar. A change of the value raises the change event, by whomever; a drag of
// the thumb raises it at its end only.
class ScrollBar : public Control {
 public:
  ScrollBar(Container& parent, const char* name, const Box& box, int minimum, int maximum,
            int largeStep, int value);

  int value() const;
  // Fails outside the range.
  void setValue(int value);

  // What assistive technology calls the value in place of its number, until it changes.
  void setValueText(const std::string& text);

  std::function<void()> onChange;
};

}  // namespace forms
