// A stand-in for the emulator: it lists invented games and plays them by sleeping.

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "listing.h"
#include "play.h"
#include "text.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>

// The arguments of `main` are in the code page, which may lack characters.
static std::vector<std::string> Arguments(int, char**) {
  int count = 0;
  const auto* const* const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(standin::ToText(words[i]));
  return arguments;
}
#else
static std::vector<std::string> Arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }
#endif

int main(int argc, char** argv) {
#ifdef _WIN32
  // The listing writes CR LF itself, so the system must not add a CR.
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  const auto arguments = Arguments(argc, argv);
  if (arguments.empty()) {
    std::cerr << "Usage: Kestrivane -print-games | ARCHIVE [-input-system=NAME]\n";
    return 2;
  }
  try {
    const standin::Mode mode = standin::ReadMode();
    if (arguments.front() == "-print-games") return standin::PrintGames(mode);
    return standin::Play(arguments, mode.version);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
