// The emulator's report of a run.
#pragma once

namespace launch {

// Reads and deletes error.log. True when the run ended badly; ErrorText then holds the report. A
// log that can't be read or deleted counts as a good one.
bool ReadErrorLog();

}  // namespace launch
