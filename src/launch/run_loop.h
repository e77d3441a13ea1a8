// The emulator's run, and how long it has lasted.
#pragma once

#include <functional>
#include <string>

#include "platform/clock.h"

namespace launch {

// Starts the command line and returns when the program has ended; once a second `onTick` runs. A
// program that can't be started ends it at once.
void RunAndWait(const std::string& commandLine, const std::function<void()>& onTick);

// The time since `start` as hours, minutes and seconds.
std::string FormatElapsed(platform::Moment start);

}  // namespace launch
