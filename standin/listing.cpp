#include "listing.h"

#include <csignal>
#include <fstream>
#include <iostream>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "games.h"
#include "text.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace standin {

namespace {

std::vector<Game> GeneratedGames(int count) {
  std::vector<Game> games;
  for (int i = 1; i <= count; ++i) {
    const std::string number = std::to_string(1000 + i).substr(1);
    games.push_back({"gen" + number, "Generated Game " + number});
  }
  return games;
}

std::vector<Game> NamedGames(const std::string& names) {
  std::vector<Game> games;
  std::istringstream stream(names);
  for (std::string name; stream >> name;) {
    auto& game = games.emplace_back(Game{name, name});
    for (char& c : game.title)
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return games;
}

std::string Banner(const Mode& mode) {
  return "Kestrivane: A Sega Model 3 Arcade Emulator (Version " + mode.version + ")";
}

void PrintListing(const Mode& mode, std::span<const Game> games) {
  if (mode.fault != "nobanner") std::cout << Banner(mode) << "\r\n";
  std::cout << "Copyright by the friends of Kestrivane\r\n"
            << "Free to play, free to share\r\n\r\n"
            << "Archive         Title\r\n";
  if (mode.fault != "noseparator") std::cout << "-------         -----\r\n";
  for (const Game& game : games) {
    std::cout << game.name << std::string(16 - game.name.size(), ' ') << game.title << "\r\n";
  }
  std::cout.flush();
}

void PrintNoise() {
  const std::string line = std::string(126, '.') + "\r\n";
  for (int i = 0; i < 32768; ++i) {
    std::cout << line;
    std::cerr << line;
  }
}

void PrintRandomBytes() {
  std::mt19937 random(1);  // with this seed, two line ends are among the bytes
  for (int i = 0; i < 65536; ++i) std::cout.put(static_cast<char>(random() & 0xFF));
}

// Windows has no such processes and signals; there the two functions below do nothing.
void LeaveGrandchild() {
#ifndef _WIN32
  if (fork() == 0) {
    sleep(20);
    _exit(0);
  }
#endif
}

void DieOfSignal() {
#ifndef _WIN32
  std::raise(SIGKILL);
#endif
}

}  // namespace

Mode ReadMode() {
  Mode mode;
  for (const std::string& line : ReadLines("standin.mode", 4096)) {
    if (const KeyValue set = SplitKeyValue(line); set.key == "version") {
      mode.version = set.value;
    } else if (set.key == "games") {
      mode.games = set.value;
    } else if (!line.empty()) {
      mode.fault = line;
    }
  }
  return mode;
}

int PrintGames(const Mode& mode) {
  const std::string& fault = mode.fault;
  if (!mode.games.empty()) {
    PrintListing(mode, NamedGames(mode.games));
  } else if (fault.empty() || fault == "nobanner" || fault == "noseparator") {
    PrintListing(mode, Games());
  } else if (fault == "oneline") {
    std::cout << Banner(mode);
  } else if (fault == "flood") {
    PrintNoise();
    PrintListing(mode, Games());
  } else if (fault == "deluge") {
    const std::string megabyte(1U << 20U, '.');
    for (int i = 0; i < 20; ++i) std::cout << megabyte;
  } else if (fault == "binary") {
    PrintRandomBytes();
  } else if (fault == "games300") {
    PrintListing(mode, GeneratedGames(300));
  } else if (fault == "grandchild") {
    PrintListing(mode, Games());
    LeaveGrandchild();
  } else if (fault == "killed") {
    PrintListing(mode, Games());
    DieOfSignal();
  } else if (fault == "log") {
    PrintListing(mode, Games());
    std::ofstream("error.log", std::ios::binary) << "Left behind by the listing.\r\n";
  } else if (fault != "silent") {
    std::cerr << "standin.mode: unknown fault " << fault << '\n';
    return 2;
  }
  return 0;
}

}  // namespace standin
