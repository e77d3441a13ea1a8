// The emulator's report of a run.
#pragma once

namespace launch {

// Reads and deletes error.log. Returns true, with the report in ErrorText, if the run ended badly.
// A log that can't be read counts as a good end; one that can't be deleted within a second stays.
bool ReadErrorLog();

}  // namespace launch
