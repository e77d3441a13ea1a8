#include "platform/file_search.h"
#include "platform/files.h"

namespace platform {

std::vector<std::size_t> FoldersWith(const std::vector<std::string>& folders,
                                     const std::vector<std::string>& names) {
  std::vector<std::size_t> first;
  for (const auto& name : names) {
    std::size_t folder = 0;
    while (folder < folders.size() && !IsFile(folders[folder] + "\\" + name)) ++folder;
    first.push_back(folder);
  }
  return first;
}

}  // namespace platform
