#pragma once

#include "core/module1.h"

namespace launch {

// Fills LaunchRequest for a game. The input system of the Global row decides the command line,
// which stays unchanged if the number is not one of the three systems.
void BuildLaunchRequest(const core::GameEntry& game);

}  // namespace launch
