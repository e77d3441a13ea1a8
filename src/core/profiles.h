// The three levels of options: defaults, all games, one game.
#pragma once

#include <string>
#include <vector>

#include "core/module1.h"

namespace core {

// Copies the default bindings (slots 30 to 127) to the Global row.
void ResetInputsToDefaults(std::vector<Profile>& profiles);

// The rows of Profiles that belong to a game, in ascending order. There are several if the
// configuration file has more than one section for the game.
std::vector<std::size_t> RowsOfGame(const std::string& romName);

// Sets the slot's entry of EffectiveValues to its value in the global scope.
void RecordGlobalValue(Slot slot);

// The value of a slot in the scope of OptionScope. Calls RecordGlobalValue first. Throws if there
// is no such scope.
std::string EffectiveValue(Slot slot);

// EffectiveValue as a number. Throws if the value is no number.
int EffectiveNumber(Slot slot);

}  // namespace core
