#pragma once

#include <string>

namespace standin {

// How the stand-in behaves, so that tests can check how the front-end deals with it.
struct Mode {
  std::string fault;  // empty for none
  std::string version = "0.3a";
  std::string games;  // the games' names, separated by blanks; empty for the usual games
};

// Reads the file standin.mode in the working folder. A line version=... sets the version, a line
// games=... the games, whose titles are the names in capitals; any other line names the fault.
Mode ReadMode();

// Writes the listing to standard output, with the mode's fault. Returns the exit status: 0, or 2
// for an unknown fault, so that a misspelt one is noticed.
//
//   silent       nothing
//   oneline      the banner alone, without a line end
//   nobanner     no banner line
//   noseparator  no separator line
//   flood        4 MiB of noise on each of the two outputs before the listing
//   deluge       20 MiB of noise and no listing
//   binary       64 KiB of random bytes, the same at each run, with two line ends among them
//   games300     300 games, gen001 to gen300
//   grandchild   ends at once, but leaves a process that keeps the outputs open for 20 seconds
//   killed       is killed by a signal after the listing
//   log          also leaves an error.log
int PrintGames(const Mode& mode);

}  // namespace standin
