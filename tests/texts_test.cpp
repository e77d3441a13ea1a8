// Tests functions from text to text by the rows of texts.tsv: function, argument, result.
#include <fstream>
#include <functional>
#include <map>

#include "base/error_boundary.h"
#include "base/text.h"
#include "config/config_reader.h"
#include "config/writable_names.h"
#include "core/game_catalogue.h"
#include "platform/code_page.h"
#include "platform/process.h"
#include "startup/arguments.h"
#include "support/state_text.h"
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
    return support::StateText() + (exists(copy) ? "bak" : "");
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
  std::string log = ";GameTimeLog=";
  for (int row = 0; row < 41; ++row) log += (row ? "*g" : "g") + std::to_string(row) + ",1,30";
  EXPECT_TRUE(config(log + "|").ends_with("log40=g40,1,30 bak"));
  EXPECT_TRUE(config(log + "*g41,1,30|Vsync = 0|").ends_with("log40=g40,1,30 "));
  std::string lines;
  for (int line = 0; line < 32767; ++line) lines += "; some comment|";
  EXPECT_EQ(config(lines + "Vsync = 0|"), "1.Vsync=0 bak");
  EXPECT_EQ(config("Vsync = 0|" + lines + "|"), "");
}

}  // namespace
