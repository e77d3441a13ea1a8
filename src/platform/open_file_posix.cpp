#include "platform/open_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/patience.h"
#include "platform/posix_failure.h"

namespace platform {
namespace {

// Repeats a system call while it is interrupted or would have to wait for another program, for at
// most FilePatience. Returns the call's last result.
template <class Call>
auto RetryWhileBusy(const Call& call) {
  decltype(call()) answer{};
  RetryUntil([&] {
    answer = call();
    return answer >= 0 || (errno != EINTR && errno != EAGAIN);
  });
  return answer;
}

struct stat StatusOf(int file) {
  struct stat status {};
  Check(fstat(file, &status) == 0);
  return status;
}

// Writes all bytes by calls of `write`, each of which may write only some of them.
template <class Write>
bool WriteAll(std::string_view bytes, const Write& write) {
  while (!bytes.empty()) {
    const auto count = RetryWhileBusy([&] { return write(bytes); });
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// Calls fsync or fdatasync. A file system that does not support them counts as synced.
bool Sync(int file, int (*sync)(int)) {
  return RetryWhileBusy([&] { return sync(file); }) == 0 || errno == EINVAL || errno == ENOSYS ||
         errno == EOPNOTSUPP;
}

// Whether the system lets this process write files of this size.
bool IsWithinLimit(long long size) {
  rlimit limit{};
  return getrlimit(RLIMIT_FSIZE, &limit) == 0 && static_cast<rlim_t>(size) <= limit.rlim_cur;
}

// Reserves disk space without changing the file's size. Returns false if there is not enough. If
// the file system can't reserve space, the free space decides.
bool Reserve(int file, off_t from, off_t length) {
  const auto reserve = [&] { return fallocate(file, FALLOC_FL_KEEP_SIZE, from, length); };
  if (length == 0 || RetryWhileBusy(reserve) == 0) return true;
  if (errno != EOPNOTSUPP && errno != ENOSYS) return false;
  struct statvfs disk {};
  return fstatvfs(file, &disk) != 0 || disk.f_blocks == 0 ||
         disk.f_bavail * disk.f_frsize >= static_cast<fsblkcnt_t>(length);
}

std::string FolderOf(const std::string& path) {
  const auto folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

// The path at the end of a chain of links. There may be no file of this name.
std::string EndOfLinks(std::string path) {
  constexpr int kMaxLinks = 40;
  std::error_code isNoLink;
  for (int links = 0; links < kMaxLinks; ++links) {
    const auto next = std::filesystem::read_symlink(path, isNoLink);
    if (isNoLink) return path;
    path = (std::filesystem::path(path).parent_path() / next).string();
  }
  throw base::Failure("links without end");
}

}  // namespace

struct OpenFile::Native {
  ~Native() { close(descriptor); }
  int descriptor;
};

OpenFile::OpenFile(const std::string& path, Use use) {
  const bool saves = use == Use::Saving;
  const int flags = (saves ? O_RDWR : O_RDONLY) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const int file = RetryWhileBusy([&] { return open(path.c_str(), flags); });
  Check(file >= 0);
  native_.reset(new Native{file});
  if (!S_ISREG(StatusOf(file).st_mode)) throw base::Failure("not a regular file");
  const int lock = (saves ? LOCK_EX : LOCK_SH) | LOCK_NB;
  // Other errors mean that the file system has no locks.
  const bool isLockedElsewhere =
      RetryWhileBusy([&] { return flock(file, lock); }) != 0 && errno == EWOULDBLOCK;
  if (isLockedElsewhere && saves) throw base::Failure("another program keeps the file");
}

OpenFile::~OpenFile() = default;

long long OpenFile::size() const { return StatusOf(native_->descriptor).st_size; }

Rights OpenFile::rights() const { return StatusOf(native_->descriptor).st_mode & 0777U; }

std::string OpenFile::read(long long from, std::size_t most) const {
  std::string bytes(most, '\0');
  std::size_t done = 0;
  while (done < most) {
    const auto count = RetryWhileBusy([&] {
      return pread(native_->descriptor, bytes.data() + done, most - done,
                   static_cast<off_t>(from) + static_cast<off_t>(done));
    });
    Check(count >= 0);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  bytes.resize(done);
  return bytes;
}

bool OpenFile::setRights(Rights rights) const {
  return !rights || fchmod(native_->descriptor, *rights) == 0;
}

bool OpenFile::write(long long at, std::string_view bytes) const {
  const auto end = static_cast<off_t>(at) + static_cast<off_t>(bytes.size());
  return WriteAll(bytes, [&](std::string_view rest) {
    return pwrite(native_->descriptor, rest.data(), rest.size(),
                  end - static_cast<off_t>(rest.size()));
  });
}

bool OpenFile::setSize(long long size) const {
  return RetryWhileBusy([&] { return ftruncate(native_->descriptor, size); }) == 0;
}

bool OpenFile::sync() const { return Sync(native_->descriptor, fdatasync); }

bool OpenFile::hasRoom(long long oldSize, long long size) const {
  if (!IsWithinLimit(std::max(oldSize, size))) return false;
  // Some file systems write a changed block to a new place, so that overwriting takes space too. So
  // space for both texts is reserved behind the end of the file, and given back.
  const bool hasRoom = Reserve(native_->descriptor, oldSize, oldSize + size);
  if (!setSize(oldSize)) return false;
  return hasRoom && Reserve(native_->descriptor, oldSize, std::max(size - oldSize, 0LL));
}

struct NewFile::Native {
  ~Native() {
    if (descriptor >= 0) close(descriptor);
    if (isNamed) unlink(path.c_str());
  }

  std::string path;
  Rights rights;
  int descriptor = -1;
  bool isNamed = false;
  bool isNameTaken = false;
  long long size = 0;
};

NewFile::NewFile(const std::string& path, Way way, Rights rights)
    : native_(new Native{EndOfLinks(path), rights}) {
  const bool isNamed = way == Way::UnderItsName;
  const int flags = (isNamed ? O_CREAT | O_EXCL : O_TMPFILE) | O_WRONLY | O_CLOEXEC;
  const auto where = isNamed ? native_->path : FolderOf(native_->path);
  // Nobody else may read the file before keepAs gives it its final rights.
  const mode_t mode = rights ? 0600 : 0666;
  native_->descriptor = RetryWhileBusy([&] { return open(where.c_str(), flags, mode); });
  native_->isNamed = isNamed && isOpen();
  native_->isNameTaken = isNamed && !isOpen() && errno == EEXIST;
}

NewFile::~NewFile() = default;

bool NewFile::isOpen() const { return native_->descriptor >= 0; }

bool NewFile::isNameTaken() const { return native_->isNameTaken; }

bool NewFile::add(std::string_view bytes) const {
  native_->size += static_cast<long long>(bytes.size());
  return IsWithinLimit(native_->size) && WriteAll(bytes, [&](std::string_view rest) {
           return write(native_->descriptor, rest.data(), rest.size());
         });
}

bool NewFile::keepAs(const std::string& path) {
  // Fails on file systems without permission bits, which does not matter.
  if (native_->rights) static_cast<void>(fchmod(native_->descriptor, *native_->rights));
  if (!Sync(native_->descriptor, fsync)) return false;
  if (!native_->isNamed) {
    const auto nameless = "/proc/self/fd/" + std::to_string(native_->descriptor);
    native_->path = EndOfLinks(path);
    if (linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, native_->path.c_str(), AT_SYMLINK_FOLLOW)) {
      native_->isNameTaken = errno == EEXIST;
      return false;
    }
  }
  native_->isNamed = false;
  SyncFolderOf(native_->path);
  return true;
}

void SyncFolderOf(const std::string& path) {
  RetryUntil([&] {
    const int folder = open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return errno == EACCES;
    const bool done = Sync(folder, fsync);
    close(folder);
    return done;
  });
}

}  // namespace platform
