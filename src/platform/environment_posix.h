#pragma once

namespace platform {

// The environment as PrepareProgram found it, or today's if it was not called. The system never
// frees the texts in it.
char** FirstEnvironment();

}  // namespace platform
