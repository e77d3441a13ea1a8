#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

// For each name, the index of the first folder that has a file of this name, or the number of
// folders if none has. Each folder is listed at most once.
std::vector<std::size_t> FirstFolderOfEach(const std::vector<std::string>& names,
                                           const std::vector<std::string>& folders);

}  // namespace platform
