// A control of a page that stands for one option.
#pragma once

#include <functional>
#include <string>

#include "core/module1.h"

namespace ui {

struct OptionControl {
  core::Slot option;
  std::function<void(int value)> load;  // fails for a value that the control can't take
  std::function<std::string()> staged;  // what a save makes of the control

  bool loaded = false;
  std::string stagedAtFirst;  // when the dialog opened

  // False while the control shows neither the option's value nor a choice of the user, since the
  // loading did not reach it: a save then leaves the option as it was.
  bool hasValueToStore() const { return loaded || staged() != stagedAtFirst; }
};

template <class Control>
OptionControl ForOption(core::Slot option, Control& control) {
  return {option,
          [&control](int value) { control.setValue(value); },
          [&control] { return std::to_string(control.value()); },
          false,
          {}};
}

}  // namespace ui
