// Runs other programs. A command line is one text whose first word, quoted or not, is the program.
// No shell is involved.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct Command {
  std::string program;  // in the system's spelling
  std::vector<std::string> arguments;
};

// Finds the program of a command line. Without quotes, the program is the longest piece up to a
// space that names a file, so that a file with a shorter name on the same path can't run instead.
// ".exe" is added to a name without an extension. A name without a path is looked for in the
// program's own folder, then in the working folder. Arguments that are paths are converted to the
// system's spelling. Returns nothing if there is no such program.
std::optional<Command> FindCommand(std::string_view commandLine);

// Runs the command to its end, without a time limit, and returns the first 16 MB of its standard
// output as text. Standard error is dropped. The command ends when this program ends. Throws if it
// can't be started.
std::string CaptureOutput(std::string_view commandLine, bool showWindow);

// How many bytes of a command's output are kept.
inline constexpr std::size_t kMostOutput = 16U << 20U;

inline constexpr int kStillActive = 259;

// A started program. It keeps running when this object is destroyed and when this program ends.
class StartedProcess {
 public:
  // Starts the command and drops its output. Its window opens minimised and without focus if the
  // system supports that. Throws if it can't be started.
  explicit StartedProcess(std::string_view commandLine);
  ~StartedProcess();
  StartedProcess(const StartedProcess&) = delete;
  StartedProcess& operator=(const StartedProcess&) = delete;

  // kStillActive until the program has ended.
  int ExitStatus();

 private:
  struct Native;
  std::unique_ptr<Native> native_;
  int status_ = kStillActive;
};

}  // namespace platform
