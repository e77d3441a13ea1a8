#include "platform/file_search.h"

#include <algorithm>
#include <string_view>

#include "platform/files.h"
#include "platform/folder_names_posix.h"

namespace platform {
namespace {

bool IsPlainName(const std::string& name) {
  using namespace std::string_view_literals;
  return name.find_first_of("\\/\0"sv) == std::string::npos;
}

bool HasFile(const std::string& folder, const FolderNames& there, const std::string& name) {
  if (!there.wasRead() || !IsPlainName(name)) return IsFile(Joined(folder, name));
  const char* const spelled = there.find(name);
  return spelled && IsFile(Joined(folder, spelled));
}

}  // namespace

std::vector<std::size_t> FirstFolderOfEach(const std::vector<std::string>& names,
                                           const std::vector<std::string>& folders) {
  std::vector<std::size_t> first(names.size(), folders.size());
  for (std::size_t folder = 0; folder < folders.size(); ++folder) {
    if (std::find(first.begin(), first.end(), folders.size()) == first.end()) break;
    const auto path = SystemPath(folders[folder]);
    const FolderNames there(path);
    for (std::size_t place = 0; place < names.size(); ++place)
      if (first[place] == folders.size() && HasFile(path, there, names[place]))
        first[place] = folder;
  }
  return first;
}

}  // namespace platform
