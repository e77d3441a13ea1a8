#include "core/game_catalogue.h"

#include "core/emulator_contract.h"
#include "core/module1.h"
#include "support/stub_form.h"
#include "support/temp_app.h"

namespace core {
namespace {

using namespace Module1;

class GameCatalogue : public support::TempApp {
 protected:
  support::StubForm form;
};

TEST_F(GameCatalogue, TakesEachLineByItsRule) {
  const std::string separator(kSeparator), banner(kBanner);
  const struct {
    const char* what;
    std::vector<std::string> lines;
    const char* catalogue;  // version: name=title, of each game
  } rows[] = {{"a line before the separator", {"game            Title", separator}, ":"},
              {"the fields overlap", {separator, "abcdefghijklmnopq"}, ": abcdefghijklmn=nopq,"},
              {"a name without a title", {separator, "alone"}, ": alone=,"},
              {"columns are characters", {separator, "ñññññ           Ñandú"}, ": ñññññ=Ñandú,"},
              {"a late banner", {separator, banner + "0.3a)", "a               A"}, "0.3a: a=A,"},
              {"a banner not at the start", {"xx " + banner + "0.3a)"}, "on 0.3a:"},
              {"a banner that ends outside ASCII", {banner + "1é»"}, "1é:"}};
  for (const auto& row : rows) {
    ResetSharedState();
    for (const auto& line : row.lines) ParseGameListLine(line, form);
    auto catalogue = EmulatorVersion + ":";
    for (std::size_t game = 0; game + 2 < GameCatalog.size(); ++game)
      catalogue += " " + GameCatalog[game].RomName + "=" + GameCatalog[game].Title + ",";
    EXPECT_EQ(catalogue, row.catalogue) << row.what;
  }
}

TEST_F(GameCatalogue, StartTakesTheEmulatorAsItIs) {
  const std::string title = "title(Kestrivane UI®  (Kestrivane 0.3a detected)) ";
  const std::string list = "refresh visible ";
  const std::string broken =
      "abort(Kestrivane.exe has been founded, but isn't working like expected!|ERROR!) ";
  const struct {
    const char* fault;
    std::string calls;
    std::size_t games;
  } rows[] = {{"", title + list, 41},       {"silent", broken, 0},
              {"oneline", broken, 0},       {"nobanner", list, 41},
              {"binary", list, 0},          {"noseparator", title + list, 0},
              {"flood", title + list, 41},  {"games300", title + list, 254},
              {"killed", title + list, 41}, {"log", title + list, 41}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.fault);
    ResetSharedState();
    form.calls.clear();
    addEmulator(row.fault);
    LoadGameCatalog(form);
    EXPECT_EQ(form.calls, row.calls);
    EXPECT_EQ(GameCatalog.size(), row.games + 2);
    EXPECT_FALSE(exists("error.log"));
  }
}

TEST_F(GameCatalogue, LogThatCantBeDeletedLeavesTheWindowVisible) {
  addEmulator();
  write("error.log", "");
  const support::Unprivileged rights;
  LoadGameCatalog(form);
  EXPECT_TRUE(form.calls.ends_with("visible "));
  EXPECT_EQ(GameCatalog.size(), 43U);
}

TEST_F(GameCatalogue, ArchivesAreTakenFromTheFirstFolderThatHasThem) {
  for (const auto* archive : {"roms/b", "one/a", "two/a", "three/c", "four/d"})
    write(std::string(archive) + ".zip", "");
  GameCatalog.assign(6, {});
  for (std::size_t row = 0; row < 4; ++row) GameCatalog[row].RomName = "abcd"[row];
  // Of each game the folder in which it was found last, with a dash ahead if it is gone.
  const auto found = [] {
    FindGameArchives();
    std::string text;
    for (std::size_t row = 0; row < 4; ++row)
      text += (GameCatalog[row].Available ? "" : "-") + std::to_string(GameCatalog[row].RomFolder);
    return text;
  };
  const auto folder = [](const char* name) { return AppFolder + "\\" + name; };
  RomPaths = {folder("ROMS"), folder("One"), folder("two\\"), folder("three"), folder("four")};
  EXPECT_EQ(found(), "103-0") << "the last folder is not searched";
  RomPaths[1].clear();
  EXPECT_EQ(found(), "-10-3-0") << "an empty entry ends the list";
  RomPaths[1] = folder("two\\");
  RomPaths[2] = folder("three");
  EXPECT_EQ(found(), "102-0");
}

}  // namespace
}  // namespace core
