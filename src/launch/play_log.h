// Counts plays and play time.
#pragma once

#include "platform/clock.h"

namespace launch {

// Counts a play of LaunchRequest.RomName that began at `start` and lasted over 20 seconds, in
// PlayLog and in the settings store. Does nothing if all rows belong to other games or the
// configuration file can't hold the game's name.
void UpdatePlayLog(platform::Moment start);

}  // namespace launch
