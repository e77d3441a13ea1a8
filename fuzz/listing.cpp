// The emulator's listing: whatever it says, each game line is one row and nothing else is.
#include <algorithm>

#include "base/text.h"
#include "core/emulator_contract.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "platform/code_page.h"
#include "support.h"

namespace {

using fuzz::Require;
using namespace Module1;

constexpr std::size_t kMaxRows = core::kMaxGames + 2;

auto Solid(std::string_view text) {
  return static_cast<std::ptrdiff_t>(text.size()) - std::count(text.begin(), text.end(), ' ');
}

void CheckGame(const core::GameEntry& game, std::string_view line) {
  Require(!game.RomName.empty() && line.starts_with(game.RomName), "the name starts the line");
  Require(base::CharCount(game.RomName) <= 14, "the name has at most 14 characters");
  Require(line.ends_with(game.Title), "the title ends the line");
  Require(base::CharCount(line) < 14 ? game.Title.empty() : !game.Title.empty(),
          "the title starts in column 14");
  Require(Solid(game.RomName) + Solid(game.Title) >= Solid(line), "no part of the line is lost");
  Require(fuzz::IsUtf8(game.RomName) && fuzz::IsUtf8(game.Title), "a game's texts are UTF-8");
}

void ParseAndCheck(std::string_view line, core::GameListing& listing) {
  const auto& [EmulatorVersion, GameListHeaderSeen, GameCatalog] = listing;
  const auto rows = GameCatalog.size();
  const bool banner = base::ContainsIgnoringCase(line, core::kBanner);
  const bool separator = !banner && base::ContainsIgnoringCase(line, core::kSeparator);
  const bool game = !line.empty() && !banner && !separator && GameListHeaderSeen;
  const bool seen = GameListHeaderSeen;
  core::ParseGameListLine(line, listing);
  Require(GameListHeaderSeen == (seen || separator), "only the separator starts the games");
  Require(GameCatalog.size() == rows + (game && rows < kMaxRows ? 1 : 0), "a game is a row");
  if (GameCatalog.size() > rows) CheckGame(GameCatalog[rows - 2], line);
  Require(fuzz::IsUtf8(EmulatorVersion), "the version is UTF-8");
  if (banner)
    Require(EmulatorVersion.size() < line.size() && line.find(EmulatorVersion) != line.npos,
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
  for (const auto& game : GameCatalog)
    Require(!game.Available || base::FoldCase(game.RomName).ends_with("game_a"),
            "only the archive that is there is found");
}
