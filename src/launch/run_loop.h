// Runs the emulator and measures how long it has run.
#pragma once

#include <functional>
#include <string>

#include "platform/clock.h"

namespace launch {

// Runs the command line and returns when the program has ended. Calls `onTick` once a second
// meanwhile. Returns at once if the program can't be started.
void RunAndWait(const std::string& commandLine, const std::function<void()>& onTick);

// The time since `start` as hours, minutes and seconds.
std::string FormatElapsed(platform::Moment start);

}  // namespace launch
