#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "base/failure.h"
#include "base/text.h"
#include "platform/code_page.h"
#include "platform/process.h"

namespace platform {
namespace {

// Environment and search path as they were at the start: the toolkit takes variables out while it
// starts on another thread, and they would be read half changed.
const std::vector<char*> kFirstEnvironment = [] {
  char** end = environ;
  while (*end) ++end;
  return std::vector<char*>(environ, end + 1);
}();
const std::string kFirstPath = [] {
  const char* path = std::getenv("PATH");
  return path ? path : "";
}();

void Check(bool success) {
  if (!success) throw base::Failure(std::strerror(errno));
}

bool IsForWindows(const std::string& program) {
  std::array<char, 2> start{};
  std::ifstream(program, std::ios::binary).read(start.data(), start.size());
  return start[0] == 'M' && start[1] == 'Z';
}

std::optional<std::string> FindWine() {
  for (const auto folder : base::Split(kFirstPath, ":"))
    if (auto file = std::string(folder) + "/wine"; access(file.c_str(), X_OK) == 0) return file;
  return {};
}

// A command that this system can run; a program file for Windows is handed to wine if there is one.
Command RunnableCommand(std::string_view commandLine) {
  auto command = FindCommand(commandLine);
  if (!command) throw base::Failure("no such program");
  if (IsForWindows(command->program)) {
    if (auto wine = FindWine()) {
      command->arguments.insert(command->arguments.begin(), command->program);
      command->program = *wine;
    }
  }
  return *command;
}

// Starts the command with nothing at its standard input and error. `output` is the descriptor for
// its standard output, or -1 for none.
pid_t Spawn(const Command& command, int output, short flags, char* const* environment) {
  std::vector<char*> words;
  words.push_back(const_cast<char*>(command.program.c_str()));
  for (const auto& argument : command.arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, flags);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  if (output >= 0)
    posix_spawn_file_actions_adddup2(&actions, output, 1);
  else
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  pid_t pid = 0;
  const int error =
      posix_spawn(&pid, command.program.c_str(), &actions, &attributes, words.data(), environment);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  if (error != 0) throw base::Failure(std::strerror(error));
  return pid;
}

class Pipe {
 public:
  Pipe() { Check(pipe2(ends_.data(), O_CLOEXEC) == 0); }
  ~Pipe() {
    close(ends_[0]);
    closeWriteEnd();
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int readEnd() const { return ends_[0]; }
  int writeEnd() const { return ends_[1]; }
  void closeWriteEnd() {
    if (ends_[1] >= 0) close(ends_[1]);
    ends_[1] = -1;
  }

  // Appends one read of at most `limit` bytes; false at the end of the stream.
  bool readInto(std::string& bytes, std::size_t limit) const {
    std::array<char, 65536> buffer;  // NOLINT: filled by read
    const auto count = read(ends_[0], buffer.data(), std::min(limit, buffer.size()));
    if (count < 0 && errno == EINTR) return true;
    Check(count >= 0);
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
    return count > 0;
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

// True once the child has ended.
bool HasEnded(pid_t pid, bool wait) {
  pid_t answer = 0;
  do {
    answer = waitpid(pid, nullptr, wait ? 0 : WNOHANG);
  } while (answer < 0 && errno == EINTR);
  return answer != 0;
}

// What the pipe holds at this moment; whoever else writes to it is not waited for.
void DrainInto(std::string& bytes, const Pipe& pipe) {
  int left = 0;
  if (ioctl(pipe.readEnd(), FIONREAD, &left) != 0) return;
  const auto wanted = bytes.size() + static_cast<std::size_t>(left);
  while (bytes.size() < wanted && pipe.readInto(bytes, wanted - bytes.size())) {
  }
}

}  // namespace

std::string CaptureOutput(std::string_view commandLine, bool /*showWindow*/) {
  const auto command = RunnableCommand(commandLine);
  Pipe pipe;
  const pid_t child = Spawn(command, pipe.writeEnd(), 0, kFirstEnvironment.data());
  pipe.closeWriteEnd();
  constexpr int kLookAfterMs = 20;
  std::string bytes;
  for (;;) {
    pollfd waiting{pipe.readEnd(), POLLIN, 0};
    const bool readable = poll(&waiting, 1, kLookAfterMs) > 0;
    // The pipe may stay open in a process that the child has left behind.
    if (HasEnded(child, false)) {
      DrainInto(bytes, pipe);
      break;
    }
    if (readable && !pipe.readInto(bytes, std::string::npos)) {
      HasEnded(child, true);
      break;
    }
  }
  return DecodeCodePage(bytes);
}

StartedProcess::StartedProcess(std::string_view commandLine)
    : pid_(Spawn(RunnableCommand(commandLine), -1, POSIX_SPAWN_SETSID, environ)) {}

int StartedProcess::ExitStatus() {
  if (status_ != kStillActive) return status_;
  int status = 0;
  const auto answer = waitpid(pid_, &status, WNOHANG);
  if (answer == 0 || (answer < 0 && errno == EINTR)) return kStillActive;
  status_ = answer > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : 1;
  return status_;
}

}  // namespace platform
