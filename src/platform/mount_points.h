#pragma once

#include <string>
#include <vector>

namespace platform {

// The folders at which volumes are mounted, in the order of mounting. No server is asked, so that
// one that is off does not block the caller. Empty on Windows, whose volumes have drive letters.
std::vector<std::string> MountPoints();

}  // namespace platform
