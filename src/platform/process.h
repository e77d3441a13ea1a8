// Running other programs. A command line is one text: its first word, in quotes or not, is the
// program. No shell sees it.
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

// Finds the program of a command line. Without quotes it is the longest piece up to a blank that
// names a file, so that none planted on the way to it can run. ".exe" is added where the name has
// no ending; a bare name is looked for in the program's own folder, then in the working folder.
// Arguments that are paths come in the system's spelling. Nothing if there is no such program.
std::optional<Command> FindCommand(std::string_view commandLine);

// Runs the command to its end, without time limit, and gives the first 16 MB that it wrote to
// standard output, as text. Standard error is dropped. Our end is also the command's. Throws if it
// can't be started.
std::string CaptureOutput(std::string_view commandLine, bool showWindow);

// How much of a command's output is kept, in bytes.
inline constexpr std::size_t kMostOutput = 16U << 20U;

inline constexpr int kStillActive = 259;

// A program that runs on by itself: it outlives this object and this program.
class StartedProcess {
 public:
  // Starts the command minimised and without focus, where the system knows that; its output goes
  // nowhere. Throws if it can't be started.
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
