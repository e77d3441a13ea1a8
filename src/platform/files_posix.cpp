#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <utility>
#include <vector>

#include "base/error_boundary.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/open_file.h"
#include "platform/path_search_posix.h"
#include "platform/posix_failure.h"

namespace platform {
namespace {

// The names of the entries in a folder that `wanted` accepts. Links are followed.
std::vector<std::string> NamesIn(const std::string& folder, bool (*wanted)(const struct stat&)) {
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
  Check(stream != nullptr);
  std::vector<std::string> names;
  errno = 0;
  while (const dirent* entry = readdir(stream.get())) {
    const std::string_view name = entry->d_name;
    struct stat status {};
    if (name == "." || name == "..") continue;
    if (fstatat(dirfd(stream.get()), entry->d_name, &status, 0) == 0 && wanted(status))
      names.emplace_back(name);
    errno = 0;
  }
  Check(errno == 0);
  return base::SortedByFoldedCase(std::move(names));
}

}  // namespace

bool IsWithin(std::string_view path, std::string_view folder) {
  if (!path.starts_with(folder)) return false;
  const auto rest = path.substr(folder.size());
  return rest.empty() || rest.front() == '/' || folder.ends_with('/');
}

std::string SystemPath(std::string_view path) { return FindPath(path).path; }

Existence LookForFile(std::string_view path) {
  auto kind = FoundPath::Kind::Unknown;
  if (!base::RunGuarded([&] { kind = FindPathForSure(path).kind; })) return Existence::Unknown;
  return kind == FoundPath::Kind::File ? Existence::There : Existence::NotThere;
}

bool IsFile(std::string_view path) { return FindPath(path).kind == FoundPath::Kind::File; }

bool IsFolder(std::string_view path) { return FindPath(path).kind == FoundPath::Kind::Folder; }

void MakeFolder(std::string_view path) {
  const auto folder = FindPathForSure(path).path;
  Check(mkdir(folder.c_str(), 0777) == 0);
  SyncFolderOf(folder);
}

void DeleteFile(std::string_view path) { Check(unlink(FindPath(path).path.c_str()) == 0); }

std::vector<std::string> SubfolderNames(std::string_view folder) {
  return NamesIn(FindPath(folder).path,
                 [](const struct stat& status) { return S_ISDIR(status.st_mode); });
}

std::vector<std::string> FileNames(std::string_view folder) {
  return NamesIn(FindPath(folder).path,
                 [](const struct stat& status) { return S_ISREG(status.st_mode); });
}

}  // namespace platform
