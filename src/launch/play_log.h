// The count of plays.
#pragma once

#include "platform/clock.h"

namespace launch {

// Counts the play of LaunchRequest.RomName in PlayLog and the settings store if it lasted over 20
// seconds. Nothing is counted when all rows belong to other games.
void UpdatePlayLog(platform::Moment start);

}  // namespace launch
