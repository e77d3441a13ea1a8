#include "core/game_catalogue.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/quietly.h"
#include "base/text.h"
#include "core/emulator_contract.h"
#include "core/module1.h"
#include "i18n/message_catalogue.h"
#include "launch/process_capture.h"
#include "platform/file_search.h"
#include "platform/files.h"

namespace core {
namespace {

using i18n::Msg;
using launch::FileExists;
using namespace Module1;

void TakeVersion(std::string_view banner) {
  auto version = banner.substr(base::OffsetOfChar(banner, kBanner.size()));
  if (!version.empty()) {
    auto last = version.size() - 1;
    while (last > 0 && (static_cast<unsigned char>(version[last]) & 0xC0U) == 0x80U) --last;
    version = version.substr(0, last);
  }
  EmulatorVersion = version;
}

void AddGame(std::string_view line) {
  if (GameCatalog.size() >= kMaxGames + 2) return;
  auto& game = GameCatalog[GameCatalog.size() - 2];
  game.RomName = base::Trim(line.substr(0, base::OffsetOfChar(line, kNameColumns)));
  game.Title = base::Trim(line.substr(base::OffsetOfChar(line, kNameColumns - 1)));
  GameCatalog.emplace_back();
}

void DeleteStrayErrorLog() {
  auto log = AppFolder + "\\" + std::string(kErrorLog);
  if (FileExists(log)) platform::DeleteFile(log);
}

}  // namespace

std::string MainTitle() { return "Kestrivane UI®  (Kestrivane " + EmulatorVersion + Msg(4); }

std::optional<unsigned char> LoadGameCatalog() {
  auto emulator = AppFolder + std::string(kEmulatorFile);
  if (!FileExists(emulator)) return 3;
  const auto output = launch::ShellExecuteCapture(AppFolder + std::string(kListingCommand), false);
  const auto lines = base::Split(output, base::kLineEnd);
  if (lines.size() < 2) return 18;
  base::Quietly([&] {
    for (const auto line : lines) ParseGameListLine(base::Trim(line));
    DeleteStrayErrorLog();
    FindGameArchives();
  });
  return {};
}

void ParseGameListLine(std::string_view line) {
  if (line.empty()) return;
  if (base::ContainsIgnoringCase(line, kBanner))
    TakeVersion(line);
  else if (base::ContainsIgnoringCase(line, kSeparator))
    GameListHeaderSeen = true;
  else if (GameListHeaderSeen)
    AddGame(line);
}

void FindGameArchives() {
  std::vector<std::string> folders;
  for (std::size_t slot = 0; slot < kSearchedFolders && !RomPaths[slot].empty(); ++slot)
    folders.push_back(RomPaths[slot]);
  std::vector<std::string> archives;
  archives.reserve(GameCatalog.size() - 2);
  for (std::size_t row = 0; row + 2 < GameCatalog.size(); ++row)
    archives.push_back(GameCatalog[row].RomName + ".zip");
  const auto found = platform::FoldersWith(folders, archives);
  for (std::size_t row = 0; row < found.size(); ++row) {
    auto& game = GameCatalog[row];
    game.Available = found[row] < folders.size();
    if (game.Available) game.RomFolder = static_cast<unsigned char>(found[row]);
  }
}

std::size_t FolderWith(const std::array<std::string, 5>& folders, const std::string& file) {
  for (std::size_t slot = 0; slot < kSearchedFolders && !folders[slot].empty(); ++slot) {
    auto path = folders[slot] + "\\" + file;
    if (FileExists(path)) return slot;
  }
  return kSearchedFolders;
}

// The search may have passed over another spelling in an earlier folder: all that the list needs to
// know is whether the archive is there, and this question is asked for one game only.
std::size_t FolderOfArchive(const GameEntry& game) {
  const std::size_t found = game.RomFolder;
  return game.Available ? std::min(found, FolderWith(RomPaths, game.RomName + ".zip")) : found;
}

}  // namespace core
