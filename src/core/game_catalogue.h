// Parses the emulator's listing into rows of games and finds the games' archives.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/module1.h"

namespace core {

// The contents of a listing, as they go to the shared variables of the same names.
struct GameListing {
  std::string EmulatorVersion;
  bool GameListHeaderSeen = false;  // the separator was met; used while parsing only
  std::vector<GameEntry> GameCatalog = std::vector<GameEntry>(kSpareGameRows);
};

// Parses the emulator's output. Returns nothing if it has no line end.
std::optional<GameListing> ParseGameListing(std::string_view output);

// Parses one line, which has no spaces at its ends. Games beyond kMaxGames are left out.
void ParseGameListLine(std::string_view line, GameListing& listing);

// Sets GameEntry.Available of every game, and GameEntry.RomFolder of those whose archive is found.
void FindGameArchives(std::vector<GameEntry>& games, const FolderList& romPaths);

// The path of the first file of this name in the folders; empty if there is none.
std::string FirstFileIn(const FolderList& folders, const std::string& name);

}  // namespace core
