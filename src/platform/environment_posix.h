#pragma once

namespace platform {

// The environment at the time of PrepareProgram, or the present one if that was not called. Its
// texts are never freed.
char** FirstEnvironment();

}  // namespace platform
