#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <bitset>
#include <climits>
#include <deque>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "base/text.h"
#include "platform/file_search.h"
#include "platform/files.h"

namespace platform {
namespace {

// Names that a folder may spell in another letter case.
class Wanted {
 public:
  // `place` is below `places`.
  void add(const std::string& name, std::size_t place) {
    if (name.size() >= lengths_.size()) return;
    places_.emplace(base::FoldCase(name), place);
    lengths_.set(name.size());
  }

  // Marks the places whose names lead to files in the folder. Of several spellings the first one
  // decides.
  std::vector<bool> filesIn(const std::string& folder, std::size_t places) const {
    std::vector<bool> files(places);
    std::vector<bool> decided(places);
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
    while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
      const std::string_view name = entry->d_name;
      // Spares looking closer at most files. Some file systems have names longer than NAME_MAX.
      if (name.size() >= lengths_.size() || !lengths_[name.size()]) continue;
      const auto [first, last] = places_.equal_range(base::FoldCase(name));
      if (first == last || decided[first->second]) continue;
      struct stat status {};
      const bool isFile =
          fstatat(dirfd(stream.get()), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
      for (auto match = first; match != last; ++match) {
        files[match->second] = isFile;
        decided[match->second] = true;
      }
    }
    return files;
  }

 private:
  std::unordered_multimap<std::string, std::size_t> places_;
  std::bitset<NAME_MAX + 1> lengths_;
};

bool IsPlainName(const std::string& name) {
  using namespace std::string_view_literals;
  return name.find_first_of("\\/\0"sv) == std::string::npos;
}

// A folder in which names are looked up without walking the way to it each time.
class Folder {
 public:
  explicit Folder(const std::string& path)
      : descriptor_(path.find('\0') == std::string::npos
                        ? open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)
                        : -1) {}
  ~Folder() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  // Whether what has exactly this name is a file; nothing if another spelling may be there.
  std::optional<bool> isFile(const std::string& name) const {
    if (descriptor_ < 0) return false;
    struct stat status {};
    if (fstatat(descriptor_, name.c_str(), &status, 0) != 0) return {};
    return S_ISREG(status.st_mode);
  }

 private:
  int descriptor_;
};

}  // namespace

std::vector<std::size_t> FoldersWith(const std::vector<std::string>& folders,
                                     const std::vector<std::string>& names) {
  std::vector<std::size_t> first(names.size(), folders.size());
  std::vector<std::string> paths(folders.size());
  std::transform(folders.begin(), folders.end(), paths.begin(), SystemPath);
  const std::deque<Folder> opened(paths.begin(), paths.end());
  Wanted wanted;
  std::vector<std::vector<std::size_t>> missing(folders.size());  // places
  for (std::size_t place = 0; place < names.size(); ++place) {
    const auto& name = names[place];
    const bool isPlain = IsPlainName(name);
    std::vector<std::size_t> mayHaveIt;
    for (std::size_t folder = 0; folder < folders.size(); ++folder) {
      const auto spelled =
          isPlain ? opened[folder].isFile(name) : IsFile(folders[folder] + "\\" + name);
      if (spelled == true) {
        first[place] = folder;
        break;
      }
      if (!spelled) mayHaveIt.push_back(folder);
    }
    if (first[place] < folders.size() || mayHaveIt.empty()) continue;
    for (const auto folder : mayHaveIt) missing[folder].push_back(place);
    wanted.add(name, place);
  }
  for (std::size_t folder = 0; folder < folders.size(); ++folder) {
    if (missing[folder].empty()) continue;
    const auto files = wanted.filesIn(paths[folder], names.size());
    for (const auto place : missing[folder])
      if (files[place]) first[place] = std::min(first[place], folder);
  }
  return first;
}

}  // namespace platform
