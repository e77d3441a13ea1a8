#include "platform/path_search_posix.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdint>
#include <optional>
#include <unordered_map>

#include "base/failure.h"
#include "platform/folder_names_posix.h"
#include "platform/patience.h"

namespace platform {
namespace {

using Kind = FoundPath::Kind;

struct Status : stat {
  explicit Status(const std::string& path) : stat{} {
    if (::stat(path.c_str(), this) != 0)
      kind = errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG ? Kind::Nothing
                                                                          : Kind::Unknown;
    else
      kind = S_ISREG(st_mode) ? Kind::File : S_ISDIR(st_mode) ? Kind::Folder : Kind::Other;
  }

  Kind kind;
};

constexpr std::int64_t kSecond = 1'000'000'000;

std::int64_t ModifiedAt(const struct stat& status) {
  return status.st_mtim.tv_sec * kSecond + status.st_mtim.tv_nsec;
}

// The names in a folder, and what shows later whether they are still up to date.
struct Listing {
  Listing(const std::string& folder, const struct stat& status)
      : device(status.st_dev), node(status.st_ino), modified(ModifiedAt(status)) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    // A second change within one tick of the file system's clock does not alter the folder's time.
    // So the names are reused only if the last change was longer ago than a tick when they were
    // read.
    const std::int64_t tick = modified % kSecond == 0 ? 2 * kSecond : kSecond / 20;
    isReusable = std::chrono::nanoseconds(now).count() - modified > tick;
    names.emplace(folder);
  }

  bool isUpToDate(const struct stat& status) const {
    return isReusable && names->isComplete() && device == status.st_dev && node == status.st_ino &&
           modified == ModifiedAt(status);
  }

  dev_t device;
  ino_t node;
  std::int64_t modified;
  bool isReusable = false;
  std::optional<FolderNames> names;  // read after `modified` was
};

constexpr std::size_t kRememberedFolders = 16;

const FolderNames& NamesIn(const std::string& folder, const struct stat& status) {
  thread_local std::unordered_map<std::string, Listing> remembered;
  auto at = remembered.find(folder);
  if (at == remembered.end()) {
    if (remembered.size() >= kRememberedFolders) remembered.clear();
    at = remembered.emplace(folder, Listing(folder, status)).first;
  } else if (!at->second.isUpToDate(status)) {
    at->second = Listing(folder, status);
  }
  return *at->second.names;
}

FoundPath Find(const std::string& path) {
  // The system refuses longer paths, and would read a path with a zero byte only up to there.
  if (path.size() >= PATH_MAX || path.find('\0') != std::string::npos) return {path};
  const auto exact = Status(path).kind;
  const auto nameEnd = path.find_last_not_of('/') + 1;
  if (exact != Kind::Nothing || nameEnd == 0 || path == ".") return {path, exact};

  const auto nameStart = path.find_last_of('/', nameEnd - 1) + 1;
  const auto name = path.substr(nameStart, nameEnd - nameStart);
  auto folder = Find(nameStart == 0 ? "." : path.substr(0, nameStart)).path;
  const Status status(folder);
  if (!folder.ends_with('/')) folder += '/';
  const auto given = folder + name;
  if (status.kind != Kind::Folder)
    return {given, status.kind == Kind::Unknown ? Kind::Unknown : Kind::Nothing};
  const auto kind = Status(given).kind;
  if (kind != Kind::Nothing) return {given, kind};
  const auto& names = NamesIn(folder, status);
  if (const char* const spelled = names.find(name))
    return {folder + spelled, Status(folder + spelled).kind};
  return {given, names.isComplete() ? Kind::Nothing : Kind::Unknown};
}

}  // namespace

FoundPath FindPath(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  return Find(text);
}

FoundPath FindPathForSure(std::string_view path) {
  FoundPath found;
  const auto isSure = [&] {
    found = FindPath(path);
    return found.kind != Kind::Unknown;
  };
  if (!RetryUntil(isSure)) throw base::Failure("the disk can't be looked at");
  return found;
}

}  // namespace platform
