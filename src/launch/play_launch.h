#pragma once

#include "core/module1.h"

namespace launch {

// Fills LaunchRequest for a game. The command line goes by the Global row's input system and stays
// as it was if that is none of the three.
void BuildLaunchRequest(const core::GameEntry& game);

}  // namespace launch
