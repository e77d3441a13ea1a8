#include "platform/program_start.h"

namespace platform {

// This system has nothing of what the other one has to be prepared for.
void PrepareProgram() {}

}  // namespace platform
