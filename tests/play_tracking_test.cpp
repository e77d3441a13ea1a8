#include "launch/error_log.h"
#include "launch/play_launch.h"
#include "launch/play_log.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

namespace launch {
namespace {

using namespace Module1;

class PlayTracking : public support::TempApp {
 protected:
  void countPlay(const std::string& game, int seconds) {
    LaunchRequest.RomName = game;
    UpdatePlayLog(clock.now - std::chrono::seconds(seconds));
  }
  static std::string row(std::size_t row) {
    return PlayLog[row].GameId + "," + PlayLog[row].PlayCount + "," + PlayLog[row].PlaySeconds;
  }

  support::FakeClock clock;
};

TEST_F(PlayTracking, CommandLineNamesTheGlobalInputSystem) {
  RomPaths[2] = "C:\\my roms";
  Profiles.emplace_back().Name = "game_a";
  unsigned char system = 0;
  for (const std::string option : {"", " -input-system=xinput", " -input-system=rawinput"}) {
    Profiles[1].InputMethod = system++;
    BuildLaunchRequest({"Title", "game_a", true, 2});
    EXPECT_EQ(LaunchRequest.CommandLine, R"(Kestrivane "C:\my roms\game_a.zip")" + option);
  }
}

TEST_F(PlayTracking, PlaysAddUpInTheGamesRowUnlessItsFiguresAreInvalid) {
  const struct {
    const char *game, *plays, *seconds, *after;
  } rows[] = {{"g", "1", "70", "g,2,100,,"},    {"g", "1", "", "g,1,,,"},
              {"g", " 1 ", "5", "g,2,35,,"},    {"g", "2147483647", "5", "g,2147483647,5,,"},
              {"G", "1", "30", "g,1,30G,1,30"}, {"a;b", "1", "30", "g,1,30,,"}};
  for (const auto& [game, plays, seconds, after] : rows) {
    PlayLog.fill({});
    PlayLog[0] = {"g", plays, seconds};
    countPlay(game, 30);
    EXPECT_EQ(row(0) + row(1), after) << game;
  }
  PlayLog.fill({"other", "1", "30"});
  countPlay("new", 30);
  EXPECT_EQ(row(0) + row(40), "other,1,30other,1,30") << "a full table takes no more";
  PlayLog[0] = PlayLog[40] = {"g", "1", "30"};
  countPlay("g", 30);
  EXPECT_EQ(row(0) + row(39) + row(40), "g,2,60other,1,30g,2,60");
}

TEST_F(PlayTracking, ErrorLogOfAnyLengthIsReadEvenIfItCantBeDeleted) {
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
