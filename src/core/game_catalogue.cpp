#include "core/game_catalogue.h"

#include <algorithm>

#include "base/text.h"
#include "core/emulator_contract.h"
#include "platform/file_search.h"
#include "platform/files.h"

namespace core {
namespace {

// The banner may stand anywhere in its line, but its length is cut from the line's front.
std::string VersionIn(std::string_view banner) {
  const auto version = banner.substr(base::OffsetOfChar(banner, kBanner.size()));
  const auto chars = base::CharCount(version);
  return std::string(version.substr(0, base::OffsetOfChar(version, chars == 0 ? 0 : chars - 1)));
}

void AddGame(std::string_view line, std::vector<GameEntry>& games) {
  if (games.size() >= kMaxGames + kSpareGameRows) return;
  auto& game = games[games.size() - kSpareGameRows];
  game.RomName = base::Trim(line.substr(0, base::OffsetOfChar(line, kNameColumns)));
  game.Title = base::Trim(line.substr(base::OffsetOfChar(line, kNameColumns - 1)));
  games.emplace_back();
}

}  // namespace

std::optional<GameListing> ParseGameListing(std::string_view output) {
  const auto lines = base::Split(output, base::kLineEnd);
  if (lines.size() < 2) return {};
  GameListing listing;
  for (const auto line : lines) ParseGameListLine(base::Trim(line), listing);
  return listing;
}

void ParseGameListLine(std::string_view line, GameListing& listing) {
  if (line.empty()) return;
  if (base::ContainsIgnoringCase(line, kBanner))
    listing.EmulatorVersion = VersionIn(line);
  else if (base::ContainsIgnoringCase(line, kSeparator))
    listing.GameListHeaderSeen = true;
  else if (listing.GameListHeaderSeen)
    AddGame(line, listing.GameCatalog);
}

void FindGameArchives(std::vector<GameEntry>& games, const FolderList& romPaths) {
  std::vector<std::string> folders;
  for (std::size_t entry = 0; entry < kSearchedFolders && !romPaths[entry].empty(); ++entry)
    folders.push_back(romPaths[entry]);
  std::vector<std::string> archives;
  for (std::size_t row = 0; row + kSpareGameRows < games.size(); ++row)
    archives.push_back(games[row].RomName + ".zip");
  const auto found = platform::FirstFolderOfEach(archives, folders);
  for (std::size_t row = 0; row < found.size(); ++row) {
    auto& game = games[row];
    game.Available = found[row] < folders.size();
    if (game.Available) game.RomFolder = static_cast<unsigned char>(found[row]);
  }
}

std::string FirstFileIn(const FolderList& folders, const std::string& name) {
  for (std::size_t entry = 0; entry < kSearchedFolders && !folders[entry].empty(); ++entry)
    if (auto path = platform::Joined(folders[entry], name); platform::FileExists(path)) return path;
  return {};
}

}  // namespace core
