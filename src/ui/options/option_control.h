// A control of a page that stands for one option.
#pragma once

#include <functional>
#include <string>

namespace ui {

struct OptionControl {
  const char* option;
  std::function<void(int value)> load;  // fails for a value that the control can't take
  std::function<std::string()> staged;  // what a save makes of the control
};

template <class Control>
OptionControl ForOption(const char* option, Control& control) {
  return {option, [&control](int value) { control.setValue(value); },
          [&control] { return std::to_string(control.value()); }};
}

}  // namespace ui
