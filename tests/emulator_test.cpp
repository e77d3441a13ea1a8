// The emulator's listing at the start, its command line and its report.
#include "launch/error_log.h"
#include "launch/play_launch.h"
#include "platform/files.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

namespace launch {
namespace {

using namespace Module1;

class Emulator : public support::TempApp {};

TEST_F(Emulator, CopesWithEachFaultOfTheEmulator) {
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

TEST_F(Emulator, ListingTakesMuchOutputAndDoesNotWaitForAGrandchild) {
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

TEST_F(Emulator, GamesAndArchivesAreFoundEvenIfTheLogCantBeDeleted) {
  addGames("a");
  write("roms/a.zip", "");
  write("error.log", "");
  const support::Unprivileged user(path(""));
  EXPECT_TRUE(!load() && GameCatalog[0].Available);
}

TEST_F(Emulator, WorkingFoldersAreCreatedUpToTheFirstFailure) {
  write("Snaps", "a file in the way");
  std::filesystem::create_directory(path("ROMS"));
  startup::EnsureFolders(AppFolder);
  EXPECT_EQ(read("Snaps"), "a file in the way");
  EXPECT_EQ(platform::SubfolderNames(AppFolder), std::vector<std::string>({"ROMS"}));
  std::filesystem::remove(path("Snaps"));
  startup::EnsureFolders(AppFolder);
  for (const auto* name : {"Snaps", "Icons", "Config"}) EXPECT_TRUE(exists(name)) << name;
}

TEST_F(Emulator, CommandLineNamesTheGlobalInputSystem) {
  RomPaths[2] = "C:\\my roms";
  Profiles.emplace_back().Name = "game_a";
  unsigned char system = 0;
  for (const std::string option : {"", " -input-system=xinput", " -input-system=rawinput"}) {
    Profiles[1].InputMethod = system++;
    BuildLaunchRequest({"Title", "game_a", true, 2});
    EXPECT_EQ(LaunchRequest.CommandLine, R"(Kestrivane "C:\my roms\game_a.zip")" + option);
  }
}

TEST_F(Emulator, ErrorLogOfAnyLengthIsReadEvenIfItCantBeDeleted) {
  const std::string head = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n";
  const std::string_view end = "Program terminated normally.";
  for (const std::size_t goodEnd : {0U, 1048560U, 3000000U}) {
    auto log = head + std::string(3000000, 'x') + "\r\n";
    if (goodEnd > 0) log.replace(goodEnd, end.size(), end);
    write("error.log", log);
    EXPECT_EQ(ReadErrorLog(), goodEnd == 0) << "good end at " << goodEnd;
    EXPECT_EQ(ErrorText.size(), 1048576U + 5);
    EXPECT_TRUE(ErrorText.ends_with("x\r\n...")) << "a long report is cut";
  }
  EXPECT_FALSE(ReadErrorLog()) << "none there";
  write("error.log", "1\r\n2");
  ReadErrorLog();
  EXPECT_EQ(ErrorText, "") << "a log that ends in its head";
  write("error.log", "a report that would be one");
  const support::Unprivileged user(path(""));
  const support::ShortPatience patience;
  EXPECT_TRUE(ReadErrorLog()) << "can't be deleted";
}

}  // namespace
}  // namespace launch
