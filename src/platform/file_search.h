// Finding many files in some folders.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

// For each of the names, the index of the first folder in which IsFile finds it, or the number of
// folders. Where the system minds case, a folder that has the name in exactly this spelling comes
// before all that have another one: folders are listed only for names that none has exactly, each
// at most once.
std::vector<std::size_t> FoldersWith(const std::vector<std::string>& folders,
                                     const std::vector<std::string>& names);

}  // namespace platform
