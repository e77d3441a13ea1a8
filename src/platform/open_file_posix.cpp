#include "platform/open_file_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix_failure.h"

namespace platform {

OpenFile::OpenFile(const std::string& path, int mode)
    : descriptor_(Patiently(
          [&] { return open(path.c_str(), mode | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666); })) {
  Check(descriptor_ >= 0);
  struct stat status {};
  const bool isFile = fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
  const bool writes = (mode & O_ACCMODE) != O_RDONLY;
  const int lock = (writes ? LOCK_EX : LOCK_SH) | LOCK_NB;
  // Some file systems know no locks.
  const bool isForeign =
      isFile && Patiently([&] { return flock(descriptor_, lock); }) != 0 && errno == EWOULDBLOCK;
  if (isFile && !(isForeign && writes)) return;
  close(descriptor_);
  throw base::Failure(isFile ? "another program keeps the file" : "not a regular file");
}

OpenFile::~OpenFile() { close(descriptor_); }

off_t OpenFile::size() const {
  struct stat status {};
  Check(fstat(descriptor_, &status) == 0);
  return status.st_size;
}

}  // namespace platform
