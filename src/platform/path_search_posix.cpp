#include "platform/path_search_posix.h"

#include <sys/stat.h>

#include <chrono>
#include <climits>
#include <cstdint>
#include <optional>
#include <unordered_map>

#include "platform/folder_names_posix.h"

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

// The names in a folder, and when it was as it is told here.
struct Listing {
  Listing(const std::string& folder, const struct stat& status)
      : device(status.st_dev), node(status.st_ino), modified(ModifiedAt(status)) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    // A change within one tick of the file system's clock leaves no trace in the folder's time, so
    // only a folder that had come to rest before it was read can be trusted later.
    const std::int64_t tick = modified % kSecond == 0 ? 2 * kSecond : kSecond / 20;
    atRest = std::chrono::nanoseconds(now).count() - modified > tick;
    names.emplace(folder);
  }

  bool provablySame(const struct stat& status) const {
    return atRest && device == status.st_dev && node == status.st_ino &&
           modified == ModifiedAt(status);
  }

  dev_t device;
  ino_t node;
  std::int64_t modified;
  bool atRest = false;
  std::optional<FolderNames> names;  // read last
};

constexpr std::size_t kRememberedFolders = 16;

const FolderNames& NamesIn(const std::string& folder, const struct stat& status) {
  thread_local std::unordered_map<std::string, Listing> remembered;
  auto at = remembered.find(folder);
  if (at == remembered.end()) {
    if (remembered.size() >= kRememberedFolders) remembered.clear();
    at = remembered.emplace(folder, Listing(folder, status)).first;
  } else if (!at->second.provablySame(status)) {
    at->second = Listing(folder, status);
  }
  return *at->second.names;
}

FoundPath::Kind KindOf(const std::optional<struct stat>& status) {
  using Kind = FoundPath::Kind;
  if (!status) return Kind::nothing;
  if (S_ISREG(status->st_mode)) return Kind::file;
  return S_ISDIR(status->st_mode) ? Kind::folder : Kind::other;
}

}  // namespace

FoundPath FindPath(const std::string& path) {
  // The system takes neither a path this long nor one with a zero in it, where it would stop.
  if (path.size() >= PATH_MAX || path.find('\0') != std::string::npos) return {path};
  const auto exact = KindOf(StatusOf(path));
  const auto nameEnd = path.find_last_not_of('/') + 1;
  if (exact != FoundPath::Kind::nothing || nameEnd == 0 || path == ".") return {path, exact};

  const auto nameStart = path.find_last_of('/', nameEnd - 1) + 1;
  const auto name = path.substr(nameStart, nameEnd - nameStart);
  auto folder = FindPath(nameStart == 0 ? "." : path.substr(0, nameStart)).path;
  const auto status = StatusOf(folder);
  if (!folder.ends_with('/')) folder += '/';
  FoundPath found{folder + name, KindOf(StatusOf(folder + name))};
  if (found.kind != FoundPath::Kind::nothing || KindOf(status) != FoundPath::Kind::folder)
    return found;
  if (const char* const spelled = NamesIn(folder, *status).find(name))
    found = {folder + spelled, KindOf(StatusOf(folder + spelled))};
  return found;
}

}  // namespace platform
