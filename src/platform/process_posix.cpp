#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <vector>

#include "platform/code_page.h"
#include "platform/environment_posix.h"
#include "platform/posix_failure.h"
#include "platform/process.h"

namespace platform {
namespace {

constexpr const char* kNullDevice = "/dev/null";

bool IsForWindows(const std::string& program) {
  std::array<char, 2> start{};
  std::ifstream(program, std::ios::binary).read(start.data(), start.size());
  return start[0] == 'M' && start[1] == 'Z';
}

// True once the child has ended.
bool HasEnded(pid_t pid, bool wait) {
  pid_t answer = 0;
  do {
    answer = waitpid(pid, nullptr, wait ? 0 : WNOHANG);
  } while (answer < 0 && errno == EINTR);
  return answer != 0;
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

  // Reads once. Returns the number of bytes, 0 at the end of the stream.
  std::size_t readInto(char* buffer, std::size_t size) const {
    ssize_t count = 0;
    do {
      count = read(ends_[0], buffer, size);
    } while (count < 0 && errno == EINTR);
    Check(count >= 0);
    return static_cast<std::size_t>(count);
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

void Replace(int descriptor, const char* file) {
  const int opened = open(file, O_RDWR);
  if (opened == descriptor) return;
  dup2(opened, descriptor);
  close(opened);
}

enum class Lifetime { EndsWithUs, Independent };

// Turns the child process into the program; returns only on failure. Between fork and exec only
// plain system calls are safe.
void BecomeProgram(char* const* argv, bool forWindows, int output, Lifetime lifetime,
                   pid_t parent) {
  if (lifetime == Lifetime::EndsWithUs) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) return;
  } else {
    setsid();
  }
  Replace(STDIN_FILENO, kNullDevice);
  if (output >= 0)
    dup2(output, STDOUT_FILENO);
  else
    Replace(STDOUT_FILENO, kNullDevice);
  Replace(STDERR_FILENO, kNullDevice);
  std::signal(SIGPIPE, SIG_DFL);
  std::signal(SIGXFSZ, SIG_DFL);
  if (forWindows) execvp(argv[0], argv);
  execv(argv[1], argv + 1);
}

// Starts the program of a command line, with the null device as standard input and error. A program
// for Windows is handed to wine if there is one. `output` is the descriptor for standard output, or
// -1 for the null device.
pid_t Start(std::string_view commandLine, int output, Lifetime lifetime, char** environment) {
  const auto command = FindCommand(commandLine);
  if (!command) throw base::Failure("no such program");
  std::string wine = "wine";
  std::vector<char*> argv = {wine.data(), const_cast<char*>(command->program.c_str())};
  for (const auto& argument : command->arguments)
    argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);

  const bool forWindows = IsForWindows(command->program);
  const auto parent = getpid();
  Pipe failure;
  const pid_t child = fork();
  Check(child >= 0);
  if (child == 0) {
    environ = environment;
    BecomeProgram(argv.data(), forWindows, output, lifetime, parent);
    const int error = errno;
    _exit(write(failure.writeEnd(), &error, sizeof error) == sizeof error ? 127 : 126);
  }
  failure.closeWriteEnd();
  int error = 0;
  if (failure.readInto(reinterpret_cast<char*>(&error), sizeof error) == 0) return child;
  HasEnded(child, true);
  throw base::Failure(std::strerror(error));
}

// Collects what a program writes to the pipe. What exceeds kMostOutput is read and dropped.
class Output {
 public:
  // Reads at most `most` bytes once. Returns their number, 0 at the end of the stream.
  std::size_t take(const Pipe& pipe, std::size_t most) {
    std::array<char, 65536> buffer;  // NOLINT: filled by read
    const auto count = pipe.readInto(buffer.data(), std::min(most, buffer.size()));
    kept_.append(buffer.data(), std::min(count, kMostOutput - kept_.size()));
    return count;
  }
  // Takes what the pipe holds now. Does not wait for other processes that may still write to it.
  void takeRest(const Pipe& pipe) {
    int size = 0;
    if (ioctl(pipe.readEnd(), FIONREAD, &size) != 0) return;
    auto left = static_cast<std::size_t>(size);
    for (std::size_t count = 1; left > 0 && count > 0; left -= count) count = take(pipe, left);
  }
  const std::string& kept() const { return kept_; }

 private:
  std::string kept_;
};

}  // namespace

std::string CaptureOutput(std::string_view commandLine, bool /*showWindow*/) {
  Pipe pipe;
  const pid_t child = Start(commandLine, pipe.writeEnd(), Lifetime::EndsWithUs, FirstEnvironment());
  pipe.closeWriteEnd();
  constexpr int kPollIntervalMs = 20;
  Output output;
  for (;;) {
    pollfd waiting{pipe.readEnd(), POLLIN, 0};
    const bool readable = poll(&waiting, 1, kPollIntervalMs) > 0;
    // A process that the child started may keep the pipe open after the child has ended.
    if (HasEnded(child, false)) {
      output.takeRest(pipe);
      break;
    }
    if (readable && output.take(pipe, kMostOutput) == 0) {
      HasEnded(child, true);
      break;
    }
  }
  return DecodeCodePage(output.kept());
}

struct StartedProcess::Native {
  pid_t pid;
};

StartedProcess::StartedProcess(std::string_view commandLine)
    : native_(new Native{Start(commandLine, -1, Lifetime::Independent, environ)}) {}

StartedProcess::~StartedProcess() = default;

int StartedProcess::ExitStatus() {
  if (status_ != kStillActive) return status_;
  int status = 0;
  const auto answer = waitpid(native_->pid, &status, WNOHANG);
  if (answer == 0 || (answer < 0 && errno == EINTR)) return kStillActive;
  status_ = answer > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : 1;
  return status_;
}

}  // namespace platform
