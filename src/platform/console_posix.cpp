#include <cstdio>

#include "platform/console.h"

namespace platform {
namespace {

bool Write(std::FILE* file, const std::string& text) {
  return std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fflush(file) == 0;
}

}  // namespace

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  // `argv` may lack even the program's name.
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

bool PrintOutput(const std::string& text) { return Write(stdout, text); }

void PrintError(const std::string& text) { Write(stderr, text); }

}  // namespace platform
