#include "platform/file_search.h"
#include "platform/files.h"

namespace platform {

std::vector<std::size_t> FirstFolderOfEach(const std::vector<std::string>& names,
                                           const std::vector<std::string>& folders) {
  std::vector<std::size_t> first;
  for (const auto& name : names) {
    std::size_t folder = 0;
    while (folder < folders.size() && !IsFile(Joined(folders[folder], name))) ++folder;
    first.push_back(folder);
  }
  return first;
}

}  // namespace platform
