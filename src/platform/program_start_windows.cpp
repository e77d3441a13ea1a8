#include "platform/program_start.h"
#include "platform/system_windows.h"

namespace platform {

void PrepareProgram() {
  // Beside the emulator lie libraries that wrap the system's graphics and sound under the same
  // names. They are meant for the emulator: what this program loads comes from the system's folder.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  // A card reader without a card is a drive that can't be read, and no reason for a message box.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

}  // namespace platform
