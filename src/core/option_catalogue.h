// The emulator's 128 options: names, kinds, defaults.
#pragma once

#include <string_view>

#include "core/module1.h"

namespace core {

// The Default row of Profiles.
Profile DefaultProfile();

// The slot of the option with this name, in any letter case; -1 if there is none.
Slot OptionIndex(std::string_view name);

}  // namespace core
