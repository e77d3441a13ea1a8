// The emulator's games: a listing in, rows out; and which of their archives are there.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/module1.h"

namespace core {

// What a listing says, with the names of the shared state.
struct GameListing {
  std::string EmulatorVersion;
  bool GameListHeaderSeen = false;
  std::vector<GameEntry> GameCatalog = std::vector<GameEntry>(kSpareGameRows);
};

// The emulator's output; nothing where it has fewer than two lines.
std::optional<GameListing> ParseGameListing(std::string_view output);

// One line of it, without blanks at its ends.
void ParseGameListLine(std::string_view line, GameListing& listing);

// Sets GameEntry.Available and GameEntry.RomFolder of every game.
void FindGameArchives(std::vector<GameEntry>& games, const FolderList& romPaths);

// The path of the first file of this name in the folders; empty if there is none.
std::string FirstFileIn(const FolderList& folders, const std::string& name);

}  // namespace core
