// A stand-in for the emulator: it lists invented games and plays them by sleeping.

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "listing.h"
#include "play.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

int main(int argc, char** argv) {
#ifdef _WIN32
  // The listing brings its own CR LF.
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  const std::vector<std::string> arguments(argv + 1, argv + argc);
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
