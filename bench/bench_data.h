// The measured situation: 254 games, 253 of them with options of their own.
#pragma once

#include <future>
#include <string>

#include "startup/startup.h"

namespace bench {

inline constexpr int kGames = 254;

// An empty folder that is gone at the program's end.
std::string NewFolder();

std::string GameName(int game);

// Shared state: the catalogue, and a row of 28 options for each game but one.
void FillState();

// What the main window waits for before it shows: nothing more.
std::future<startup::Loaded> Loaded();

}  // namespace bench
