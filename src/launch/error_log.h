// The emulator's report of a run.
#pragma once

namespace launch {

// Reads and deletes error.log. True when the run ended badly; ErrorText then holds the report. A
// log that can't be read counts as a good one; one that can't be deleted within a second stays.
bool ReadErrorLog();

}  // namespace launch
