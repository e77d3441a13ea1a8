// The emulator's games: its listing, and which of their archives are there.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/module1.h"

namespace core {

// Runs the emulator, fills GameCatalog and finds the archives. Gives the number of the message with
// which the program ends where the emulator is missing or lists nothing; any other failure ends the
// step quietly.
std::optional<unsigned char> LoadGameCatalog();

// One line of the listing, without blanks at its ends.
void ParseGameListLine(std::string_view line);

// Sets GameEntry.Available and GameEntry.RomFolder of every game.
void FindGameArchives();

// The index of the first of the folders in which FileExists finds the file, or kSearchedFolders. An
// empty entry ends the search.
std::size_t FolderWith(const std::array<std::string, 5>& folders, const std::string& file);

// The index in RomPaths of the first folder that has an available game's archive in any spelling;
// GameEntry.RomFolder of any other game.
std::size_t FolderOfArchive(const GameEntry& game);

// The title of the main window: program, emulator, version.
std::string MainTitle();

}  // namespace core
