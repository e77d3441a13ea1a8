// Tests functions from text to text by the rows of texts.tsv: function, argument, result.
#include <fstream>
#include <functional>
#include <map>

#include "base/error_boundary.h"
#include "base/text.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "config/writable_names.h"
#include "core/bindings.h"
#include "core/game_catalogue.h"
#include "launch/play_log.h"
#include "platform/code_page.h"
#include "platform/process.h"
#include "startup/arguments.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

namespace {

using namespace Module1;

// Replaces the table's escapes "\r", "\n", "\t", "\\" and "\xFF".
std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\') {
      plain += text[at];
    } else if (text[++at] == 'x') {
      plain += static_cast<char>(std::stoi(std::string(text.substr(at + 1, 2)), nullptr, 16));
      at += 2;
    } else {
      plain += text[at] == 'r' ? '\r' : text[at] == 'n' ? '\n' : text[at] == 't' ? '\t' : text[at];
    }
  }
  return plain;
}

// The parts of the shared state that a configuration file can set, as far as they differ from a
// fresh start, each as "name=value ": "1.Vsync=0" is a slot of a row of Profiles, "2:name" the row
// itself.
std::string StateText() {
  std::string text;
  const auto add = [&](const std::string& name, const std::string& value) {
    if (!value.empty() && value != "0" && value != ",,") text += name + "=" + value + " ";
  };
  for (std::size_t row = 1; row < Profiles.size(); ++row) {
    const auto number = std::to_string(row);
    if (row > 1 || !Profiles[row].Name.empty()) text += number + ":" + Profiles[row].Name + " ";
    for (core::Slot slot = 0; slot < core::kSlotCount; ++slot)
      if (const auto& value = Profiles[row].Slots[slot].Value; !value.empty())
        text += number + "." + Profiles[0].Slots[slot].Name + "=" + value + " ";
  }
  for (std::size_t entry = 1; entry < RomPaths.size(); ++entry) {
    add("rom" + std::to_string(entry), RomPaths[entry]);
    add("snap" + std::to_string(entry), SnapPaths[entry]);
    add("icon" + std::to_string(entry), IconPaths[entry]);
  }
  for (std::size_t row = 0; const auto& [game, plays, seconds] : PlayLog)
    add("log" + std::to_string(row++), game + "," + plays + "," + seconds);
  add("input", std::to_string(Profiles[1].InputMethod));
  add("pref", std::to_string(GameListPref));
  add("lang", std::to_string(CurrentLanguage));
  return text;
}

class Texts : public support::TempApp {
 protected:
  template <class Number>
  static std::string number(Number (*read)(std::string_view), const std::string& text) {
    std::string result = "none";
    base::RunGuarded([&] { result = std::to_string(read(text)); });
    return result;
  }
  static std::string encode(const std::string& text) {
    auto bytes = platform::EncodeCodePage(text);
    EXPECT_EQ(platform::DecodeCodePage(bytes), text) << "comes back";
    return bytes;
  }
  // Reads a configuration file, with "|" for each line's end. Returns the shared state, and "bak"
  // if the file was copied.
  static std::string config(const std::string& text) {
    const auto bytes = base::ReplaceIgnoringCase(text, "|", "\r\n");
    startup::FillSharedState();
    std::filesystem::remove_all(path("Config"));
    write("Config/Kestrivane.ini", bytes);
    config::Adopt(config::LoadConfigFile(AppFolder));
    const std::string copy = "Config/Kestrivane.ini.bak";
    EXPECT_TRUE(!exists(copy) || read(copy) == bytes);
    return StateText() + (exists(copy) ? "bak" : "");
  }
  // The bytes that are written after such a file was read, without bindings that it does not set.
  static std::string written(const std::string& text) {
    config(text);
    for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
      if (auto& value = Profiles[1].Slots[slot].Value; value.empty()) value = core::kNoBinding;
    return base::ReplaceIgnoringCase(platform::EncodeCodePage(config::ConfigText()), "\r\n", "|");
  }
  // Counts a play of 30 seconds. The text is the game and the play log before.
  static std::string play(const std::string& text) {
    config(";GameTimeLog=" + text.substr(text.find(':') + 1) + "|");
    LaunchRequest.RomName = text.substr(0, text.find(':'));
    const support::FakeClock clock;
    launch::UpdatePlayLog(clock.now - std::chrono::seconds(30));
    return StateText();
  }
  // Parses a listing, with "|" for each line's end. Returns the version and each game.
  static std::string games(const std::string& text) {
    core::GameListing listing;
    for (const auto line : base::Split(text, "|")) core::ParseGameListLine(line, listing);
    auto result = listing.EmulatorVersion + ":";
    for (std::size_t game = 0; game + 2 < listing.GameCatalog.size(); ++game)
      result += listing.GameCatalog[game].RomName + "=" + listing.GameCatalog[game].Title + ",";
    return result;
  }
  // The program that is found for a command line, and its arguments.
  static std::string command(const std::string& text) {
    const auto found = platform::FindCommand(base::ReplaceIgnoringCase(text, "APP", AppFolder));
    std::string result = found ? found->program : "none";
    for (const auto& argument : found ? found->arguments : std::vector<std::string>())
      result += "|" + argument;
    result = base::FoldCase(base::ReplaceIgnoringCase(result, AppFolder, "app"));
    return base::ReplaceIgnoringCase(result, "\\", "/");
  }
  // What the program prints for its arguments, on standard output and on standard error.
  static std::string arguments(const std::string& text) {
    const auto list = base::Split(text, "|");
    const auto [output, complaint] = startup::AnswerTo({list.begin(), list.end()});
    return "out " + output + "err " + complaint;
  }
};

TEST_F(Texts, BecomeWhatTheTableSays) {
  using Function = std::function<std::string(const std::string&)>;
  const std::map<std::string, Function> functions = {
      {"fold", base::FoldCase},
      {"integer", [](auto& text) { return number(base::ToInteger, text); }},
      {"byte", [](auto& text) { return number(base::ToByte, text); }},
      {"decode", platform::DecodeCodePage},
      {"lines", platform::DecodeLines},
      {"encode", encode},
      {"writable", [](auto& name) { return config::IsWritableGame(name) ? "yes" : "no"; }},
      {"config", config},
      {"written", written},
      {"play", play},
      {"games", games},
      {"command", command},
      {"arguments", arguments}};
  for (const auto* file :
       {"Kestrivane.exe", "two words/Tool.exe", "two.exe", "x/Kestrivane.exe", "ROMs/My Game.zip"})
    write(file, "");
  std::filesystem::current_path(path("x"));
  std::ifstream table(support::ToPath(TESTS) / "texts.tsv", std::ios::binary);
  int rows = 0;
  for (std::string line; std::getline(table, line); ++rows) {
    const auto cells = base::Split(line, "\t");
    ASSERT_GE(cells.size(), 3U) << line;
    const auto& function = functions.at(std::string(cells[0]));
    EXPECT_EQ(function(Unescaped(cells[1])), Unescaped(cells[2])) << line;
  }
  EXPECT_GT(rows, 90);
}

TEST_F(Texts, OfTheConfigurationAreReadUpToTheLimitsOfLinesAndPlays) {
  std::string plays = "g0,1,30";
  for (int row = 1; row < 41; ++row) plays += "*g" + std::to_string(row) + ",1,30";
  const auto log = ";GameTimeLog=" + plays;
  EXPECT_TRUE(play("new:" + plays).ends_with("log40=g40,1,30 ")) << "no row is free";
  EXPECT_TRUE(play("g40:" + plays).ends_with("log39=g39,1,30 log40=g40,2,60 "));
  EXPECT_TRUE(config(log + "|").ends_with("log40=g40,1,30 bak"));
  EXPECT_TRUE(config(log + "*g41,1,30|Vsync = 0|").ends_with("log40=g40,1,30 "));
  std::string lines;
  for (int line = 0; line < 32767; ++line) lines += "; some comment|";
  EXPECT_EQ(config(lines + "Vsync = 0|"), "1.Vsync=0 bak");
  EXPECT_EQ(config("Vsync = 0|" + lines + "|"), "");
}

}  // namespace
