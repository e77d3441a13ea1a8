// The play under way: its emulator, its clock, its count, and what the emulator reported.
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

// Counts the play of LaunchRequest.RomName in PlayLog and the settings store if it lasted over 20
// seconds. Nothing is counted when all rows belong to other games.
void UpdatePlayLog(platform::Moment start);

// Reads and deletes error.log. True when the run ended badly; ErrorText then holds the report. A
// log that can't be read or deleted counts as a good one.
bool ReadErrorLog();

}  // namespace launch
