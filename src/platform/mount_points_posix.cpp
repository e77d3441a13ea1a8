#include "platform/mount_points.h"

#include <fcntl.h>
#include <mntent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

namespace platform {
namespace {

// Whether the folder is in one of the system's own trees, which contain no files of a user.
bool IsOfTheSystem(std::string_view folder) {
  constexpr std::string_view kTrees[] = {"/dev",      "/proc",    "/sys",
                                         "/run/lock", "/var/run", "/var/lock"};
  return std::any_of(std::begin(kTrees), std::end(kTrees), [&](auto tree) {
    return folder.starts_with(tree) && (folder.size() == tree.size() || folder[tree.size()] == '/');
  });
}

// Whether a folder is mounted there, and not a single file. The kernel's cached answer is enough.
bool IsFolder(const char* path) {
  struct statx found {};
  return statx(AT_FDCWD, path, AT_STATX_DONT_SYNC | AT_NO_AUTOMOUNT, STATX_TYPE, &found) == 0 &&
         S_ISDIR(found.stx_mode);
}

}  // namespace

std::vector<std::string> MountPoints() {
  std::vector<std::string> folders;
  const std::unique_ptr<FILE, int (*)(FILE*)> table(setmntent("/proc/self/mounts", "r"), endmntent);
  while (const mntent* entry = table ? getmntent(table.get()) : nullptr) {
    // Access to an automatic mount point would mount it.
    if (IsOfTheSystem(entry->mnt_dir) || entry->mnt_type == std::string_view("autofs")) continue;
    if (IsFolder(entry->mnt_dir)) folders.emplace_back(entry->mnt_dir);
  }
  return folders;
}

}  // namespace platform
