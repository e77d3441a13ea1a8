// The steps of a start: folders, the emulator's listing, the archives.
#include "platform/files.h"
#include "support/temp_app.h"

namespace core {
namespace {

using namespace Module1;

class Start : public support::TempApp {};

TEST_F(Start, CopesWithEachFaultOfTheEmulator) {
  const std::tuple<const char*, const char*, std::size_t> rows[] = {
      {"", "0.3a", 41},       {"silent", "", 0},          {"nobanner", "", 41},
      {"binary", "", 0},      {"noseparator", "0.3a", 0}, {"games300", "0.3a", 254},
      {"killed", "0.3a", 41}, {"log", "0.3a", 41}};
  for (const auto& [fault, version, games] : rows) {
    addEmulator(fault);
    EXPECT_EQ(load() == i18n::Message::EmulatorSilent, fault == std::string("silent"));
    EXPECT_EQ(EmulatorVersion, version) << fault;
    EXPECT_EQ(GameCatalog.size(), games + 2) << fault;
    EXPECT_FALSE(exists("error.log"));
  }
}

TEST_F(Start, ListingTakesMuchOutputAndDoesNotWaitForAGrandchild) {
  const auto start = std::chrono::steady_clock::now();
  for (const std::string fault : {"flood", "killed", "grandchild"}) {
    addEmulator(fault);
    const auto output = capture("kestrivane.exe -print-games");
    EXPECT_EQ(output.size() > 4194304, fault == "flood") << fault;
    EXPECT_TRUE(output.ends_with("Nimblewick's Parade\r\n")) << fault;
    EXPECT_TRUE(fault != "flood" || run("Kestrivane -print-games") == 0) << "blocked by its output";
  }
  addEmulator("deluge");
  EXPECT_EQ(capture("kestrivane.exe -print-games").size(), 16U << 20U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));
}

TEST_F(Start, GamesAndArchivesAreFoundEvenIfTheLogCantBeDeleted) {
  addGames("a");
  write("roms/a.zip", "");
  write("error.log", "");
  const support::Unprivileged user(path(""));
  EXPECT_TRUE(!load() && GameCatalog[0].Available);
}

TEST_F(Start, WorkingFoldersAreCreatedUpToTheFirstFailure) {
  write("Snaps", "a file in the way");
  std::filesystem::create_directory(path("ROMS"));
  startup::EnsureFolders(AppFolder);
  EXPECT_EQ(read("Snaps"), "a file in the way");
  EXPECT_EQ(platform::SubfolderNames(AppFolder), std::vector<std::string>({"ROMS"}));
  std::filesystem::remove(path("Snaps"));
  startup::EnsureFolders(AppFolder);
  for (const auto* name : {"Snaps", "Icons", "Config"}) EXPECT_TRUE(exists(name)) << name;
}

}  // namespace
}  // namespace core
