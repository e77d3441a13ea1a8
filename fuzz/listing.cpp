// The emulator's listing: each line of a game, and no other line, becomes one row.
#include "core/emulator_contract.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "platform/code_page.h"
#include "support.h"

namespace {

using fuzz::Require;
constexpr std::size_t kMaxRows = core::kMaxGames + 2;

void CheckGame(const core::GameEntry& game, std::string_view line) {
  Require(!game.RomName.empty() && line.starts_with(game.RomName), "the name starts the line");
  Require(base::CharCount(game.RomName) <= 14, "the name has at most 14 characters");
  Require(line.ends_with(game.Title), "the title ends the line");
  Require((base::CharCount(line) < 14) == game.Title.empty(), "the title starts in column 14");
  const auto between = line.substr(game.RomName.size());
  Require(base::Trim(between).size() <= game.Title.size(), "no part of the line is lost");
}

void ParseAndCheck(std::string_view line, core::GameListing& listing) {
  const auto rows = listing.GameCatalog.size();
  const bool banner = base::ContainsIgnoringCase(line, core::kBanner);
  const bool separator = !banner && base::ContainsIgnoringCase(line, core::kSeparator);
  const bool seen = listing.GameListHeaderSeen;
  const bool game = !line.empty() && !banner && !separator && seen && rows < kMaxRows;
  core::ParseGameListLine(line, listing);
  Require(listing.GameListHeaderSeen == (seen || separator), "the separator starts the games");
  Require(listing.GameCatalog.size() == rows + (game ? 1 : 0), "a game is a row");
  if (game) CheckGame(listing.GameCatalog[rows - 2], line);
  const auto& version = listing.EmulatorVersion;
  Require(!banner || (version.size() < line.size() && line.find(version) != line.npos),
          "the version stands in the banner");
}

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  static const auto folder = MakeApp({"roms/game_a.zip"});
  core::GameListing listing;
  auto& GameCatalog = listing.GameCatalog;
  const auto text = platform::DecodeCodePage(bytes);
  for (const auto line : base::Split(text, base::kLineEnd))
    ParseAndCheck(base::Trim(line), listing);
  for (auto row = GameCatalog.end() - 2; row != GameCatalog.end(); ++row)
    Require(row->RomName.empty() && row->Title.empty(), "the last two rows are empty");
  core::FindGameArchives(GameCatalog, {Module1::AppFolder + "\\ROMS"});
  Require(IsUtf8(listing.EmulatorVersion), "the version is UTF-8");
  for (const auto& game : GameCatalog) {
    Require(IsUtf8(game.RomName) && IsUtf8(game.Title), "a game's texts are UTF-8");
    Require(!game.Available || base::FoldCase(game.RomName).ends_with("game_a"),
            "only the archive that is there is found");
  }
}
