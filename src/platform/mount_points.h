#pragma once

#include <string>
#include <vector>

namespace platform {

// The folders at which volumes are mounted, in the order in which they were. Their servers are not
// asked, so that one that is off holds up nobody who only wants the names. Empty on Windows, where
// the letters of the drives stand for them.
std::vector<std::string> MountPoints();

}  // namespace platform
