// The three levels of options: defaults, all games, one game.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/module1.h"

namespace core {

// Copies the default bindings (slots 30 to 127) to the Global row.
void ResetInputsToDefaults(std::vector<Profile>& profiles);

// The rows of Profiles that belong to a game, in their order: none, one, or several where a
// configuration file names the game more than once.
std::vector<std::size_t> RowsOfGame(const std::string& romName);

// The value that holds for a slot in the scope of OptionScope. Records in EffectiveValues what the
// slot would be without the game. Fails for a scope that is not there.
std::string EffectiveValue(Slot slot);

// The same for an option of the catalogue, by its name; as a number it fails for a text that is
// none.
std::string ValueInForce(std::string_view option);
int NumberInForce(std::string_view option);

}  // namespace core
