#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <bitset>
#include <cerrno>
#include <climits>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <unordered_map>
#include <vector>

#include "base/text.h"
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
  if (!success) throw std::system_error(errno, std::generic_category());
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
      throw std::runtime_error("not a regular file");
    }
    size_ = status.st_size;
  }
  ~OpenFile() { close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  off_t size() const { return size_; }
  int descriptor() const { return descriptor_; }

 private:
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

std::vector<bool> WhichAreFiles(std::string_view folder, const std::vector<std::string>& names) {
  std::vector<bool> found(names.size());
  const auto path = Find(folder).path;
  std::unordered_multimap<std::string, std::size_t> wanted;  // not there in their exact spelling
  std::bitset<NAME_MAX + 1> lengths;  // of these; spares looking closer at most files
  for (std::size_t i = 0; i < names.size(); ++i) {
    struct stat status {};
    const auto file = path + "/" + names[i];
    if (file.find('\0') != std::string::npos) continue;
    if (stat(file.c_str(), &status) == 0) {
      found[i] = S_ISREG(status.st_mode);
    } else if (names[i].find_first_of("\\/") != std::string::npos) {
      found[i] = IsFile(std::string(folder) + "\\" + names[i]);
    } else if (names[i].size() < lengths.size()) {
      wanted.emplace(base::FoldCase(names[i]), i);
      lengths.set(names[i].size());
    }
  }
  if (wanted.empty()) return found;
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(path.c_str()), closedir);
  while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
    const std::string_view name = entry->d_name;
    if (!lengths[name.size()]) continue;
    const auto [first, last] = wanted.equal_range(base::FoldCase(name));
    if (first == last) continue;
    struct stat status {};
    const bool isFile =
        fstatat(dirfd(stream.get()), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
    for (auto match = first; isFile && match != last; ++match) found[match->second] = true;
  }
  return found;
}

std::string ReadBytes(std::string_view path) {
  const OpenFile file(Find(path).path, O_RDONLY);
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
  const OpenFile file(found.path, O_WRONLY | O_CREAT);
  const auto size = static_cast<off_t>(bytes.size());
  // Room first, and only then the bytes: a full disk must not cost the old content.
  if (size > file.size()) {
    if (const int error = posix_fallocate(file.descriptor(), 0, size); error != 0) {
      Check(found.status ? ftruncate(file.descriptor(), file.size()) == 0
                         : unlink(found.path.c_str()) == 0);
      throw std::system_error(error, std::generic_category());
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
