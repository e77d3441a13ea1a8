// The emulator's 128 options: names, kinds, defaults.
#pragma once

#include <string_view>

#include "core/module1.h"

namespace core {

// The Default row of Profiles.
Profile DefaultProfile();

// The slot of an option's name, letter case ignored; -1 for a name outside the catalogue.
Slot OptionIndex(std::string_view name);

}  // namespace core
