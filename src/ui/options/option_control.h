// Connects one control of a page with the option that it edits.
#pragma once

#include <functional>
#include <string>

#include "core/module1.h"

namespace ui {

struct OptionControl {
  core::Slot option;
  std::function<void(int value)> load;  // throws for a value that the control can't show
  std::function<std::string()> staged;  // the value that a save would store

  bool loaded = false;
  std::string stagedAtFirst;  // the value of staged() when the dialog opened

  // False if the loading did not reach the control and the user did not change it. A save then
  // leaves the option as it is.
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
