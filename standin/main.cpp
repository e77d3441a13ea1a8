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

// What the code page lacks is in the wide command line only.
static std::vector<std::string> Arguments(int, char**) {
  int count = 0;
  const auto* const* const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(standin::ToText(words[i]));
  return arguments;
}
#else
static std::vector<std::string> Arguments(int count, char** words) {
  return {words + 1, words + count};
}
#endif

int main(int argc, char** argv) {
#ifdef _WIN32
  // The listing brings its own CR LF.
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
