#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <vector>

#include "base/failure.h"
#include "base/text.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/path_search.h"

namespace platform {
namespace {

std::string WithSystemSeparators(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

FoundPath Find(std::string_view path) { return FindPath(WithSystemSeparators(path)); }

void Check(bool success) {
  if (!success) throw base::Failure(std::strerror(errno));
}

class OpenFile {
 public:
  // Never waits for the other end of a pipe, and refuses what is no regular file.
  OpenFile(const std::string& path, int mode)
      : descriptor_(open(path.c_str(), mode | O_CLOEXEC | O_NONBLOCK, 0666)) {
    Check(descriptor_ >= 0);
    struct stat status {};
    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
      close(descriptor_);
      throw base::Failure("not a regular file");
    }
    waitForOthers((mode & O_ACCMODE) == O_RDONLY ? LOCK_SH : LOCK_EX);
    size_ = lseek(descriptor_, 0, SEEK_END);
    lseek(descriptor_, 0, SEEK_SET);
  }
  ~OpenFile() { close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  off_t size() const { return size_; }
  int descriptor() const { return descriptor_; }

 private:
  // Two front-ends that save at once must not mix their texts. The lock of a stranger who keeps it
  // is not waited for.
  void waitForOthers(int lock) const {
    constexpr int kTries = 100;
    constexpr std::chrono::milliseconds kPause(5);
    for (int i = 0; i < kTries && flock(descriptor_, lock | LOCK_NB) != 0; ++i) {
      if (errno != EWOULDBLOCK && errno != EINTR) return;
      TheClock().sleep(kPause);
    }
  }

  int descriptor_;
  off_t size_ = 0;
};

// The names in a folder, or in none, that lead to what `wanted` accepts.
std::vector<std::string> NamesIn(const std::string& folder, bool (*wanted)(const struct stat&)) {
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
  Check(stream != nullptr);
  std::vector<std::string> names;
  while (const dirent* entry = readdir(stream.get())) {
    const std::string_view name = entry->d_name;
    struct stat status {};
    if (name == "." || name == "..") continue;
    if (fstatat(dirfd(stream.get()), entry->d_name, &status, 0) == 0 && wanted(status))
      names.emplace_back(name);
  }
  return base::SortedIgnoringCase(std::move(names));
}

}  // namespace

std::string SystemPath(std::string_view path) { return Find(path).path; }

bool IsFile(std::string_view path) {
  const auto found = Find(path);
  return found.status && S_ISREG(found.status->st_mode);
}

bool IsFolder(std::string_view path) {
  const auto found = Find(path);
  return found.status && S_ISDIR(found.status->st_mode);
}

void MakeFolder(std::string_view path) { Check(mkdir(Find(path).path.c_str(), 0777) == 0); }

void DeleteFile(std::string_view path) { Check(unlink(Find(path).path.c_str()) == 0); }

std::vector<std::string> SubfolderNames(std::string_view folder) {
  return NamesIn(Find(folder).path,
                 [](const struct stat& status) { return S_ISDIR(status.st_mode); });
}

std::vector<std::string> FileNames(std::string_view folder) {
  return NamesIn(Find(folder).path,
                 [](const struct stat& status) { return S_ISREG(status.st_mode); });
}

std::string ReadBytes(std::string_view path, long long most) {
  const OpenFile file(Find(path).path, O_RDONLY);
  if (file.size() > most) throw base::Failure("file too large");
  std::string bytes(static_cast<std::size_t>(file.size()), '\0');
  std::size_t done = 0;
  while (done < bytes.size()) {
    const auto count = read(file.descriptor(), bytes.data() + done, bytes.size() - done);
    Check(count >= 0);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  bytes.resize(done);
  return bytes;
}

void WriteBytes(std::string_view path, std::string_view bytes) {
  const auto found = Find(path);
  // Where the file system can't reserve room, the library does so by reading and writing.
  const OpenFile file(found.path, O_RDWR | O_CREAT);
  const auto size = static_cast<off_t>(bytes.size());
  // Room first, and only then the bytes: a full disk must not cost the old content.
  if (size > file.size()) {
    if (const int error = posix_fallocate(file.descriptor(), 0, size); error != 0) {
      Check(found.status ? ftruncate(file.descriptor(), file.size()) == 0
                         : unlink(found.path.c_str()) == 0);
      throw base::Failure(std::strerror(error));
    }
  }
  while (!bytes.empty()) {
    const auto count = write(file.descriptor(), bytes.data(), bytes.size());
    Check(count > 0);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  Check(ftruncate(file.descriptor(), size) == 0);
}

}  // namespace platform
