// A control of a page that stands for one option.
#pragma once

#include <functional>
#include <string>

namespace ui {

struct OptionControl {
  const char* option;
  std::function<void(int value)> load;  // fails for a value that the control can't take
  std::function<std::string()> staged;  // what a save makes of the control

  bool loaded = false;
  std::string stagedAtFirst;  // when the dialog opened

  // One that shows neither the option's value nor the user's wish has nothing to say to a save.
  bool speaks() const { return loaded || staged() != stagedAtFirst; }
};

template <class Control>
OptionControl ForOption(const char* option, Control& control) {
  return {option,
          [&control](int value) { control.setValue(value); },
          [&control] { return std::to_string(control.value()); },
          false,
          {}};
}

}  // namespace ui
