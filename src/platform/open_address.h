#pragma once

#include <string>

namespace platform {

// Hands a web address to the system's opener. Nothing happens if there is none.
void OpenAddress(const std::string& address);

}  // namespace platform
