// Finding many files in some folders.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

// For each of the names, the index of the first folder in which it is a file, or the number of
// folders. Finds what IsFile would, but reads each folder at most once.
std::vector<std::size_t> FirstFolders(const std::vector<std::string>& folders,
                                      const std::vector<std::string>& names);

}  // namespace platform
