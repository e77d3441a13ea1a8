#include "platform/file_search.h"

#include <sys/stat.h>

#include <algorithm>
#include <optional>
#include <string_view>

#include "platform/files.h"
#include "platform/folder_names_posix.h"

namespace platform {
namespace {

bool IsPlainName(const std::string& name) {
  using namespace std::string_view_literals;
  return name.find_first_of("\\/\0"sv) == std::string::npos;
}

class Folder {
 public:
  explicit Folder(const std::string& path) : path_(SystemPath(path)) {}

  // The exact spelling is tried first, which usually avoids listing the folder.
  bool hasFile(const std::string& name) {
    struct stat status {};
    if (!IsPlainName(name)) return IsFile(Joined(path_, name));
    if (stat((path_ + '/' + name).c_str(), &status) == 0) return S_ISREG(status.st_mode);
    if (!names_) names_.emplace(path_);
    const char* const spelled = names_->find(name);
    return spelled && IsFile(Joined(path_, spelled));
  }

 private:
  std::string path_;
  std::optional<FolderNames> names_;
};

}  // namespace

std::vector<std::size_t> FirstFolderOfEach(const std::vector<std::string>& names,
                                           const std::vector<std::string>& folders) {
  std::vector<std::size_t> first(names.size(), folders.size());
  for (std::size_t folder = 0; folder < folders.size(); ++folder) {
    if (std::find(first.begin(), first.end(), folders.size()) == first.end()) break;
    Folder there(folders[folder]);
    for (std::size_t place = 0; place < names.size(); ++place)
      if (first[place] == folders.size() && there.hasFile(names[place])) first[place] = folder;
  }
  return first;
}

}  // namespace platform
