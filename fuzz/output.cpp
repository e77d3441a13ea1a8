// What the emulator prints, what it reports in error.log, and a command line, in any bytes.
#include <filesystem>
#include <fstream>

#include "base/text.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "launch/error_log.h"
#include "platform/app_folder.h"
#include "platform/code_page.h"
#include "platform/process.h"
#include "support.h"

namespace {

using base::IsUtf8;
using fuzz::Require;

void CheckCodePage(std::string_view bytes) {
  const auto text = platform::DecodeCodePage(bytes), lines = platform::DecodeLines(bytes);
  Require(IsUtf8(text), "decoded text is UTF-8");
  Require(lines.starts_with(text) && (lines.empty() || lines.ends_with("\r\n")), "each line ends");
  const auto comesBack = [](std::string_view own) {
    Require(platform::DecodeCodePage(platform::EncodeCodePage(own)) == own, "a text comes back");
  };
  comesBack(text);
  comesBack(lines);
  // The bytes as a text of the program's own, such as a folder that the user chose.
  if (IsUtf8(bytes) && bytes.find_first_of("\r\n") == bytes.npos) comesBack(bytes);
}

void CheckGame(const core::GameEntry& game, std::string_view line) {
  Require(!game.RomName.empty() && line.starts_with(game.RomName), "the name starts the line");
  Require(base::CharCount(game.RomName) <= 14, "the name has at most 14 characters");
  Require(line.ends_with(game.Title), "the title ends the line");
  Require((base::CharCount(line) < 14) == game.Title.empty(), "the title starts in column 14");
  const auto between = line.substr(game.RomName.size());
  Require(base::Trim(between).size() <= game.Title.size(), "no part of the line is lost");
}

void CheckListing(std::string_view text) {
  core::GameListing listing;
  auto& games = listing.GameCatalog;
  for (const auto line : base::Split(text, base::kLineEnd)) {
    const auto rows = games.size();
    core::ParseGameListLine(base::Trim(line), listing);
    if (games.size() > rows) CheckGame(games[rows - 2], base::Trim(line));
  }
  Require(games.size() <= core::kMaxGames + 2, "further games are dropped");
  core::FindGameArchives(games, {Module1::AppFolder + "\\ROMS"});
  for (const auto& game : games)
    Require(!game.Available || base::FoldCase(game.RomName).ends_with("game_a"),
            "only the archive that is there is found");
}

// The report is everything after the seventh line, unless that says that the run ended well.
void CheckReport(std::string_view bytes, const std::filesystem::path& file) {
  std::ofstream(file, std::ios::binary) << bytes;
  const bool failed = launch::ReadErrorLog();
  auto report = platform::DecodeLines(bytes);
  for (int line = 0; line < 7 && !report.empty(); ++line) report.erase(0, report.find("\r\n") + 2);
  Require(failed != base::ContainsIgnoringCase(report, "program terminated normally."),
          "the good end decides");
  Require(!failed || Module1::ErrorText == base::Trim(report), "the report is the rest");
  Require(!exists(file), "the file is gone");
}

// The text without what splitting may change: case, separators, dots, quotes, blanks.
std::string Bare(std::string text) {
  std::erase_if(text, [](char c) { return std::string_view("\\/.\" ").find(c) < 5; });
  return base::FoldCase(text);
}

// The program that is found exists and is the line's first word; the arguments are the rest.
void CheckCommand(std::string_view line) {
  const auto command = platform::FindCommand(line);
  if (!command) return;
  const auto& program = command->program;
  Require(std::filesystem::is_regular_file(program), "the program is a file");
  std::string arguments;
  for (const auto& argument : command->arguments) {
    Require(argument.find('"') == argument.npos, "quotes are gone");
    Require(line.find('"') != line.npos || argument.find(' ') == argument.npos,
            "blanks separate arguments");
    arguments += argument;
  }
  Require((program + arguments).find('\0') == line.npos, "the system sees the whole text");
  const auto bare = Bare(std::string(line)), rest = Bare(arguments);
  Require(bare.ends_with(rest), "the arguments are the rest");
  const auto word = bare.substr(0, bare.size() - rest.size());
  Require(!word.empty() && (Bare(program).ends_with(word) || Bare(program).ends_with(word + "exe")),
          "the program is the first word");
}

// Creates a folder with empty files, and makes it AppFolder, program folder and working folder.
// run.sh removes it.
std::filesystem::path MakeApp() {
  auto name = (std::filesystem::temp_directory_path() / "kestrivane-fuzz-XXXXXX").string();
  Require(mkdtemp(name.data()), "a folder can be made");
  const std::filesystem::path folder = name;
  for (const auto* file : {"roms/game_a.zip", "Kestrivane.exe", "a.exe", "a b.exe", "sub/Run.exe",
                           "sub dir/a", "plain", "folder.exe/x"}) {
    std::filesystem::create_directories((folder / file).parent_path());
    std::ofstream(folder / file).flush();
  }
  Module1::AppFolder = name;
  platform::SetProgramFolder(name);
  platform::SetWorkingFolder(name);
  return folder;
}

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  static const auto folder = MakeApp();
  CheckCodePage(bytes);
  CheckListing(platform::DecodeCodePage(bytes));
  CheckReport(bytes, folder / "error.log");
  CheckCommand(bytes.substr(0, 256));  // each blank of a line costs a look at the disk
}
