// Finding many files in some folders.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

// For each of the names, the index of the first folder that has it as a file in exactly this
// spelling; if none has, of the first one in which IsFile finds it; else the number of folders.
// Folders are listed only for names that none has exactly, each at most once.
std::vector<std::size_t> FoldersWith(const std::vector<std::string>& folders,
                                     const std::vector<std::string>& names);

}  // namespace platform
