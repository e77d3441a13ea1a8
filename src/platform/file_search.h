#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

// For each of the names, the index of the first folder in which IsFile finds it, or the number of
// folders. For many names at once: no folder is listed twice.
std::vector<std::size_t> FirstFolderOfEach(const std::vector<std::string>& names,
                                           const std::vector<std::string>& folders);

}  // namespace platform
