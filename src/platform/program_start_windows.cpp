#include "platform/program_start.h"
#include "platform/system_windows.h"

namespace platform {

void PrepareProgram() {
  // Libraries beside the emulator may wrap those of the system for graphics and sound under the
  // same names. They are meant for the emulator, so this program loads from the system's folder
  // only.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  // Otherwise the system shows a message box when a drive such as an empty card reader is read.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

}  // namespace platform
