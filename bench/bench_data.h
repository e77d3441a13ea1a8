// The data of all measurements: 254 games, 253 of them with options of their own.
#pragma once

#include <future>
#include <string>

#include "startup/startup.h"

namespace bench {

inline constexpr int kGames = 254;

// An empty folder that is removed when the program ends.
std::string NewFolder();

std::string GameName(int game);

// Fills the shared state with the games, and with a row of 28 options for each game but one.
void FillState();

// The shared state as a finished loading, for which the main window does not have to wait.
std::future<startup::Loaded> Loaded();

}  // namespace bench
