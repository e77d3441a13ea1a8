// The emulator's 128 options: names, kinds, defaults, and the values in force.
#pragma once

#include <string>
#include <string_view>

namespace core {

// Fills the Default row of Profiles.
void FillDefaultProfile();

// The slot of an option's name, letter case ignored; -1 for a name outside the catalogue.
int OptionIndex(std::string_view name);

// Copies the default bindings (slots 30 to 127) to the Global row.
void ResetInputsToDefaults();

// The value that holds for a slot in the scope of OptionScope. Records in EffectiveValues what the
// slot would be without the game. Throws for a slot or a scope that is not there.
std::string EffectiveValue(unsigned char slot);

}  // namespace core
