// The three levels of options: defaults, all games, one game.
#pragma once

#include <string>
#include <vector>

#include "core/module1.h"

namespace core {

// Copies the default bindings (slots 30 to 127) to the Global row.
void ResetInputsToDefaults(std::vector<Profile>& profiles);

// The rows of Profiles that belong to a game, in their order: none, one, or several where a
// configuration file names the game more than once.
std::vector<std::size_t> RowsOfGame(const std::string& romName);

// Sets the slot's row of EffectiveValues to the value that holds for all games.
void RecordGlobalValue(Slot slot);

// The value that holds for a slot in the scope of OptionScope. Records the global value first.
// Fails for a scope that is not there.
std::string EffectiveValue(Slot slot);

// The same as a number. Fails for a text that is none.
int EffectiveNumber(Slot slot);

}  // namespace core
