#include "core/profiles.h"

#include <set>

#include "base/text.h"
#include "core/module1.h"
#include "support/temp_app.h"

namespace core {
namespace {

using namespace Module1;

class OptionCatalogue : public support::TempApp {};

TEST_F(OptionCatalogue, NoNameIsGivenTwice) {
  std::set<std::string> names;
  for (const auto& option : Profiles[0].Slots)
    EXPECT_TRUE(names.insert(base::FoldCase(option.Name)).second) << option.Name;
}

TEST_F(OptionCatalogue, NarrowerScopeWins) {
  constexpr Slot kThrottle = 2;  // default 1
  const struct {
    const char* what;
    unsigned char scope;
    const char *global, *game, *laterRow, *value, *withoutGame;
  } rows[] = {{"default", kGlobalScope, "", "", "", "1", "1"},
              {"global scope sees no game", kGlobalScope, "0", "7", "8", "0", "0"},
              {"later row of the game", 1, "0", "7", "8", "8", "0"},
              {"game whose row is empty", 1, "0", "", "", "0", "0"},
              {"game without a row", 0, "0", "7", "8", "0", "0"}};
  GameCatalog.assign(4, {});
  GameCatalog[0].RomName = "GAME";
  GameCatalog[1].RomName = "game";
  for (const auto& row : rows) {
    Profiles.resize(4);
    Profiles[2].Name = Profiles[3].Name = "game";
    Profiles[1].Slots[kThrottle].Value = row.global;
    Profiles[2].Slots[kThrottle].Value = row.game;
    Profiles[3].Slots[kThrottle].Value = row.laterRow;
    OptionScope = row.scope;
    EXPECT_EQ(EffectiveValue(kThrottle), row.value) << row.what;
    EXPECT_EQ(EffectiveValues[kThrottle], row.withoutGame) << row.what;
  }
}

}  // namespace
}  // namespace core
