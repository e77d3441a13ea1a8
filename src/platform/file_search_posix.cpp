#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <bitset>
#include <climits>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "base/text.h"
#include "platform/file_search.h"
#include "platform/files.h"

namespace platform {
namespace {

// The places of names in a list, by the name without regard to letter case.
class Wanted {
 public:
  void add(const std::string& name, std::size_t place) {
    if (name.size() >= lengths_.size()) return;
    places_.emplace(base::FoldCase(name), place);
    lengths_.set(name.size());
  }

  // The places whose names the folder spells in another letter case. Of several spellings the first
  // one decides.
  std::vector<std::size_t> foundIn(const std::string& folder) {
    std::vector<std::size_t> found;
    if (places_.empty()) return found;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
    while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
      const std::string_view name = entry->d_name;
      // Spares looking closer at most files. Some file systems have names longer than NAME_MAX.
      if (name.size() >= lengths_.size() || !lengths_[name.size()]) continue;
      const auto [first, last] = places_.equal_range(base::FoldCase(name));
      if (first == last) continue;
      struct stat status {};
      if (fstatat(dirfd(stream.get()), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode))
        for (auto match = first; match != last; ++match) found.push_back(match->second);
      places_.erase(first, last);
    }
    return found;
  }

 private:
  std::unordered_multimap<std::string, std::size_t> places_;
  std::bitset<NAME_MAX + 1> lengths_;
};

bool IsPlainName(const std::string& name) { return name.find_first_of("\\/") == std::string::npos; }

// What stands at the path in exactly this spelling.
std::optional<bool> IsFileSpelled(const std::string& path) {
  if (path.find('\0') != std::string::npos) return false;
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return {};
  return S_ISREG(status.st_mode);
}

}  // namespace

std::vector<std::size_t> FirstFolders(const std::vector<std::string>& folders,
                                      const std::vector<std::string>& names) {
  std::vector<std::size_t> first(names.size(), folders.size());
  std::vector<std::string> paths(folders.size());
  std::transform(folders.begin(), folders.end(), paths.begin(), SystemPath);
  std::vector<Wanted> wanted(folders.size());
  for (std::size_t place = 0; place < names.size(); ++place) {
    for (std::size_t folder = 0; folder < folders.size(); ++folder) {
      const auto& name = names[place];
      const auto spelled = IsPlainName(name) ? IsFileSpelled(paths[folder] + "/" + name)
                                             : IsFile(folders[folder] + "\\" + name);
      if (spelled == true) {
        first[place] = folder;
        break;
      }
      if (!spelled) wanted[folder].add(name, place);
    }
  }

  for (std::size_t folder = 0; folder < folders.size(); ++folder)
    for (const auto place : wanted[folder].foundIn(paths[folder]))
      first[place] = std::min(first[place], folder);
  return first;
}

}  // namespace platform
