#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <vector>

#include "platform/environment_posix.h"
#include "platform/program_start.h"

namespace platform {
namespace {

std::vector<char*>& Remembered() {
  static std::vector<char*> variables;
  return variables;
}

}  // namespace

void PrepareProgram() {
  int descriptor = 0;
  do {
    descriptor = open("/dev/null", O_RDWR);
  } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
  close(descriptor);
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  char** end = environ;
  while (*end) ++end;
  Remembered().assign(environ, end + 1);
}

char** FirstEnvironment() { return Remembered().empty() ? environ : Remembered().data(); }

}  // namespace platform
