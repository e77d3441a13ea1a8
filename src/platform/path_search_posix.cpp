#include "platform/path_search.h"

#include <dirent.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/text.h"

namespace platform {
namespace {

std::optional<struct stat> StatusOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return {};
  return status;
}

constexpr std::int64_t kSecond = 1'000'000'000;

std::int64_t ModifiedAt(const struct stat& status) {
  return status.st_mtim.tv_sec * kSecond + status.st_mtim.tv_nsec;
}

// The names in one folder as they stood when it was read.
class FolderNames {
 public:
  FolderNames(const std::string& folder, const struct stat& status)
      : device_(status.st_dev), node_(status.st_ino), modified_(ModifiedAt(status)) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    // A change within one tick of the file system's clock leaves no trace in the folder's time, so
    // only a folder that had come to rest before it was read can be trusted later.
    const std::int64_t tick = modified_ % kSecond == 0 ? 2 * kSecond : kSecond / 20;
    atRest_ = std::chrono::nanoseconds(now).count() - modified_ > tick;

    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
    while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
      index_.emplace_back(HashOf(entry->d_name), static_cast<std::uint32_t>(names_.size()));
      names_.append(entry->d_name, std::strlen(entry->d_name) + 1);
    }
    std::sort(index_.begin(), index_.end());
  }

  bool provablySame(const struct stat& status) const {
    return atRest_ && device_ == status.st_dev && node_ == status.st_ino &&
           modified_ == ModifiedAt(status);
  }

  // The name as the folder spells it, or nothing.
  const char* find(std::string_view name) const {
    const auto hash = HashOf(name);
    for (auto at = std::lower_bound(index_.begin(), index_.end(), std::pair(hash, 0U));
         at != index_.end() && at->first == hash; ++at) {
      const char* spelled = names_.c_str() + at->second;
      if (base::FoldCase(spelled) == base::FoldCase(name)) return spelled;
    }
    return nullptr;
  }

 private:
  static std::uint32_t HashOf(std::string_view name) {
    return static_cast<std::uint32_t>(std::hash<std::string>()(base::FoldCase(name)));
  }

  dev_t device_;
  ino_t node_;
  std::int64_t modified_;
  bool atRest_ = false;
  std::string names_;  // one after the other, each with its zero
  std::vector<std::pair<std::uint32_t, std::uint32_t>> index_;  // hash, offset in names_
};

constexpr std::size_t kRememberedFolders = 16;

const FolderNames& NamesIn(const std::string& folder, const struct stat& status) {
  thread_local std::unordered_map<std::string, FolderNames> remembered;
  const auto at = remembered.find(folder);
  if (at != remembered.end()) {
    if (!at->second.provablySame(status)) at->second = FolderNames(folder, status);
    return at->second;
  }
  if (remembered.size() >= kRememberedFolders) remembered.clear();
  return remembered.emplace(folder, FolderNames(folder, status)).first->second;
}

}  // namespace

FoundPath FindPath(const std::string& path) {
  // The system takes neither a path this long nor one with a zero in it, where it would stop.
  if (path.size() >= PATH_MAX || path.find('\0') != std::string::npos) return {path, {}};
  FoundPath found{path, StatusOf(path)};
  if (found.status || path.empty()) return found;
  const auto nameEnd = path.find_last_not_of('/') + 1;
  if (nameEnd == 0 || path == ".") return found;
  const auto nameStart = path.find_last_of('/', nameEnd - 1) + 1;
  const auto name = path.substr(nameStart, nameEnd - nameStart);
  const auto folder = FindPath(nameStart == 0 ? "." : path.substr(0, nameStart));
  found.path = folder.path.ends_with('/') ? folder.path + name : folder.path + "/" + name;
  if (!folder.status || !S_ISDIR(folder.status->st_mode)) return found;
  found.status = StatusOf(found.path);
  if (found.status) return found;
  if (const char* spelled = NamesIn(folder.path, *folder.status).find(name)) {
    found.path.replace(found.path.size() - name.size(), name.size(), spelled);
    found.status = StatusOf(found.path);
  }
  return found;
}

}  // namespace platform
