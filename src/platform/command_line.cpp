#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"
#include "platform/app_folder.h"
#include "platform/files.h"
#include "platform/process.h"

namespace platform {
namespace {

// No system accepts a longer path, so longer pieces are not tried as a name.
constexpr std::size_t kLongestProgram = 4096;

// The path of the program with this name, in the system's spelling.
std::optional<std::string> FindProgram(std::string name) {
  if (name.empty()) return {};
  const auto slash = name.find_last_of("\\/");
  const auto lastName = slash == std::string::npos ? std::string_view(name)
                                                   : std::string_view(name).substr(slash + 1);
  if (lastName.find('.') == std::string_view::npos) name += ".exe";
  if (slash != std::string::npos) {
    if (!IsFile(name)) return {};
    return SystemPath(name);
  }
  for (const auto& folder : {ProgramFolder(), std::string(".")})
    if (const auto path = Joined(folder, name); IsFile(path)) return SystemPath(path);
  return {};
}

std::vector<std::string> SplitArguments(std::string_view text) {
  std::vector<std::string> arguments;
  bool quoted = false;
  bool started = false;
  for (const char c : text) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ' ' && !quoted) {
      started = false;
      continue;
    }
    if (!started) arguments.emplace_back();
    started = true;
    if (c != '"') arguments.back() += c;
  }
  return arguments;
}

Command MakeCommand(std::string program, std::string_view rest) {
  Command command{std::move(program), SplitArguments(rest)};
  for (auto& argument : command.arguments)
    if (!argument.starts_with('-') && argument.find_first_of("\\/") != std::string::npos)
      argument = SystemPath(argument);
  return command;
}

}  // namespace

std::optional<Command> FindCommand(std::string_view commandLine) {
  const auto line = base::Trim(commandLine);
  // The system stops reading at a zero byte, so it would run a different command.
  if (line.find('\0') != std::string_view::npos) return {};
  if (line.starts_with('"')) {
    const auto end = line.find('"', 1);
    auto program =
        FindProgram(std::string(line.substr(1, end == std::string_view::npos ? end : end - 1)));
    if (!program) return {};
    return MakeCommand(std::move(*program),
                       end == std::string_view::npos ? "" : line.substr(end + 1));
  }
  for (auto end = std::min(line.size(), kLongestProgram); end > 0 && end != std::string_view::npos;
       end = line.find_last_of(' ', end - 1)) {
    const bool isPieceEnd = end == line.size() || line[end] == ' ';
    if (!isPieceEnd || line[end - 1] == ' ') continue;
    if (auto program = FindProgram(std::string(line.substr(0, end))))
      return MakeCommand(std::move(*program), line.substr(end));
  }
  return {};
}

}  // namespace platform
