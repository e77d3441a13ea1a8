// A command line: the program that is found exists and is named in the line, and program and
// arguments together are the line.
#include <algorithm>
#include <cstring>

#include "platform/process.h"
#include "support.h"

namespace {

// The text without what splitting may change: case, separators, dots, quotes, blanks.
std::string Bare(std::string_view text) {
  std::string bare(text);
  std::erase_if(bare, [](char c) { return std::strchr("\\/.\" ", c) && c != '\0'; });
  return base::FoldCase(bare);
}

bool HasZero(std::string_view text) { return text.find('\0') != text.npos; }

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  static const auto folder = MakeApp({"Kestrivane.exe", "a.exe", "a b.exe", "sub/Run.exe",
                                      "sub dir/a", "plain", "folder.exe/x"})
                                 .string();
  const auto command = platform::FindCommand(bytes);
  if (!command) return;

  const auto& program = command->program;
  Require(std::filesystem::is_regular_file(program), "the program is a file");
  Require(!HasZero(program) &&
              std::none_of(command->arguments.begin(), command->arguments.end(), HasZero),
          "the system sees the whole text");

  std::string arguments;
  for (const auto& argument : command->arguments) {
    Require(argument.find('"') == argument.npos, "quotes are gone");
    Require(bytes.find('"') != bytes.npos || argument.find(' ') == argument.npos,
            "blanks separate arguments");
    arguments += argument;
  }
  const auto line = Bare(bytes);
  const auto fits = [&](const std::string& name) {
    return line == Bare(name + arguments) ||
           (name.ends_with(".exe") && line == Bare(name.substr(0, name.size() - 4) + arguments));
  };
  Require(fits(program) || (program.starts_with(folder) && fits(program.substr(folder.size()))),
          "program and arguments are the line");
}
