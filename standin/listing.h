#pragma once

#include <string>

namespace standin {

// How this stand-in is to misbehave, so that tests can see how its caller takes it.
struct Mode {
  std::string fault;  // empty: none
  std::string version = "0.3a";
  std::string games;  // the names of the games, with a blank between; empty: its own
};

// Reads the file standin.mode of the working folder: a line version=... sets the version, a
// line games=... the games, whose titles are the names in capitals, any other line names the fault.
// Without the file nothing is out of the ordinary.
Mode ReadMode();

// Writes the games to standard output, or what the mode's fault makes of it. Returns the exit
// status: 0, or 2 for a fault that isn't known, so that a misspelt one is noticed.
//
//   silent       nothing
//   oneline      the banner alone, without a line end
//   nobanner     no banner line
//   noseparator  no separator line
//   flood        4 MiB of noise on each of the two outputs ahead of the listing
//   deluge       20 MiB of noise and no listing
//   binary       64 KiB of random bytes, the same at each run, with two line ends among them
//   games300     300 games, gen001 to gen300
//   grandchild   ends at once, but leaves a process that keeps the outputs open for 20 seconds
//   killed       dies of a signal behind the listing
//   log          also leaves an error.log
int PrintGames(const Mode& mode);

}  // namespace standin
