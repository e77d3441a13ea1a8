#include "core/game_catalogue.h"

#include "core/module1.h"
#include "support/temp_app.h"

namespace core {
namespace {

using namespace Module1;

class GameCatalogue : public support::TempApp {};

TEST_F(GameCatalogue, StartTakesTheEmulatorAsItIs) {
  for (const std::string fault :
       {"", "silent", "nobanner", "binary", "noseparator", "games300", "killed", "log"}) {
    addEmulator(fault);
    const bool silent = load() == i18n::Message::EmulatorSilent;
    note(fault + ": " + EmulatorVersion + " " + std::to_string(GameCatalog.size() - 2) +
         (silent ? " games, silent" : " games"));
    EXPECT_FALSE(exists("error.log"));
  }
}

TEST_F(GameCatalogue, LogThatCantBeDeletedLeavesTheGamesAndTheirArchives) {
  addGames("a");
  write("roms/a.zip", "");
  write("error.log", "");
  {
    const support::Unprivileged user(path(""));
    EXPECT_FALSE(load());
  }
  EXPECT_TRUE(GameCatalog[0].Available);
}

TEST_F(GameCatalogue, ArchivesAreTakenFromTheFirstFolderThatHasThem) {
  for (const auto* archive : {"roms/b", "one/a", "two/a", "three/c", "four/d"})
    write(std::string(archive) + ".zip", "");
  GameCatalog.assign(6, {});
  for (std::size_t row = 0; row < 4; ++row) GameCatalog[row].RomName = "abcd"[row];
  // Of each game the folder in which it was found last, with a dash ahead if it is gone.
  const auto found = [] {
    FindGameArchives(GameCatalog, RomPaths);
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
