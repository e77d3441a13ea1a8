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

// The type of a folder's entry, of a link that of its target. Other entries are not asked
// themselves: one may be a volume whose server is off, and then the call would not return.
unsigned char TypeOf(DIR& folder, const dirent& entry) {
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type;
  struct stat status {};
  if (fstatat(dirfd(&folder), entry.d_name, &status, 0) != 0) return DT_UNKNOWN;
  return IFTODT(status.st_mode);
}

// The names of the entries in a folder that have this type.
std::vector<std::string> NamesIn(const std::string& folder, unsigned char type) {
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
  Check(stream != nullptr);
  std::vector<std::string> names;
  errno = 0;
  while (const dirent* entry = readdir(stream.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != ".." && TypeOf(*stream, *entry) == type) names.emplace_back(name);
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
  return NamesIn(FindPath(folder).path, DT_DIR);
}

std::vector<std::string> FileNames(std::string_view folder) {
  return NamesIn(FindPath(folder).path, DT_REG);
}

}  // namespace platform
