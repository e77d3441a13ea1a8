// Overwriting a file in place, so that whatever interrupts it leaves the old text or the new one.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/files.h"
#include "platform/open_file_posix.h"
#include "platform/posix_failure.h"

namespace platform {
namespace {

// Deletes a file that was made for a save which then failed. A link to it stays.
class NewFile {
 public:
  NewFile(std::string path, bool isNew) : path_(std::move(path)), unwritten_(isNew) {}
  ~NewFile() {
    std::error_code failed;
    if (unwritten_) std::filesystem::remove(std::filesystem::canonical(path_, failed), failed);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void keep() { unwritten_ = false; }

 private:
  std::string path_;
  bool unwritten_;
};

// Reserves room on the disk without a change of the file's length; false if there is none. Where
// the file system can't reserve, it is asked what is free.
bool Reserve(int file, off_t from, off_t length) {
  const auto reserve = [&] { return fallocate(file, FALLOC_FL_KEEP_SIZE, from, length); };
  if (length == 0 || Patiently(reserve) == 0) return true;
  if (errno != EOPNOTSUPP && errno != ENOSYS) return false;
  struct statvfs disk {};
  return fstatvfs(file, &disk) != 0 || disk.f_blocks == 0 ||
         disk.f_bavail * disk.f_frsize >= static_cast<fsblkcnt_t>(length);
}

// Whether this process may write files so large.
bool IsWithinLimit(off_t size) {
  rlimit limit{};
  Check(getrlimit(RLIMIT_FSIZE, &limit) == 0);
  return static_cast<rlim_t>(size) <= limit.rlim_cur;
}

// Fails if a file of this size can't take the place of one of the old size.
void EnsureRoom(int file, off_t oldSize, off_t size) {
  if (!IsWithinLimit(std::max(oldSize, size)))
    throw base::Failure("beyond the limit on file sizes");
  // Some file systems write everything to a new place, so that room inside the file is none: what
  // can be reserved behind its end, and given back, is there for the whole of both texts.
  bool hasRoom = Reserve(file, oldSize, oldSize + size);
  Check(ftruncate(file, oldSize) == 0);
  hasRoom = hasRoom && Reserve(file, oldSize, std::max<off_t>(size - oldSize, 0));
  if (!hasRoom) throw base::Failure("no room on the disk");
}

// Gives a file that is not there yet its name only once it holds all of its text. False where the
// file system can't, or something has the name.
bool SaveAsNew(const std::string& path, std::string_view bytes) {
  if (!IsWithinLimit(static_cast<off_t>(bytes.size()))) return false;
  const auto folder = std::filesystem::path(path).parent_path();
  const int file = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0) return false;
  bool done = true;
  while (done && !bytes.empty()) {
    const auto count = Patiently([&] { return write(file, bytes.data(), bytes.size()); });
    done = count > 0;
    if (done) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  const auto nameless = "/proc/self/fd/" + std::to_string(file);
  done = done && fsync(file) == 0 &&
         linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
  close(file);
  return done;
}

}  // namespace

void WriteBytes(std::string_view path, std::string_view bytes) {
  const auto spelled = SystemPath(path);
  const bool isNew = !IsFile(path);
  if (isNew && SaveAsNew(spelled, bytes)) return;
  const OpenFile file(spelled, O_RDWR | O_CREAT);
  const auto oldSize = file.size();
  const auto size = static_cast<off_t>(bytes.size());
  NewFile made(spelled, isNew && oldSize == 0);
  EnsureRoom(file.descriptor(), oldSize, size);

  // Until the file is cut, empty lines stand for the end of a longer old text: it can be read at
  // any time, and comes to the disk before its length does.
  std::string text(bytes);
  while (static_cast<off_t>(text.size()) < oldSize) text += text.ends_with('\r') ? '\n' : '\r';
  for (std::size_t done = 0; done < text.size();) {
    const auto count = Patiently([&] {
      return pwrite(file.descriptor(), text.data() + done, text.size() - done,
                    static_cast<off_t>(done));
    });
    Check(count > 0);
    done += static_cast<std::size_t>(count);
  }
  made.keep();
  Check(Patiently([&] { return fdatasync(file.descriptor()); }) == 0);
  if (size >= oldSize) return;
  Check(ftruncate(file.descriptor(), size) == 0);
  Check(Patiently([&] { return fsync(file.descriptor()); }) == 0);
}

}  // namespace platform
