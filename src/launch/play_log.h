// Counts plays and play time.
#pragma once

#include "platform/clock.h"

namespace launch {

// Counts a play of LaunchRequest.RomName that began at `start` and lasted over 20 seconds, in
// PlayLog and in the settings store. If all rows belong to other games, the play is not counted.
void UpdatePlayLog(platform::Moment start);

}  // namespace launch
