#pragma once

#include <string>

namespace platform {

// Opens a web address in the system's browser. Does nothing if there is none.
void OpenAddress(const std::string& address);

}  // namespace platform
