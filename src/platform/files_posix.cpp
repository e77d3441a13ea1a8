#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/open_file_posix.h"
#include "platform/path_search_posix.h"
#include "platform/posix_failure.h"

namespace platform {
namespace {

std::string WithSystemSeparators(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

FoundPath Find(std::string_view path) { return FindPath(WithSystemSeparators(path)); }

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

bool IsWithin(std::string_view path, std::string_view folder) {
  if (!path.starts_with(folder)) return false;
  const auto rest = path.substr(folder.size());
  return rest.empty() || rest.front() == '/' || folder.ends_with('/');
}

std::string SystemPath(std::string_view path) { return Find(path).path; }

bool IsFile(std::string_view path) { return Find(path).kind == FoundPath::Kind::file; }

bool IsFolder(std::string_view path) { return Find(path).kind == FoundPath::Kind::folder; }

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
  const auto size = file.size();
  if (size > most) throw base::Failure("file too large");
  std::string bytes(static_cast<std::size_t>(size), '\0');
  for (std::size_t done = 0; done < bytes.size();) {
    const auto count = Patiently(
        [&] { return read(file.descriptor(), bytes.data() + done, bytes.size() - done); });
    Check(count >= 0);
    if (count == 0) throw base::Failure("the file was cut while it was read");
    done += static_cast<std::size_t>(count);
  }
  return bytes;
}

void ReadPieces(std::string_view path, std::size_t most,
                const std::function<bool(std::string_view piece)>& takesMore) {
  const OpenFile file(Find(path).path, O_RDONLY);
  std::string bytes(most, '\0');
  for (;;) {
    const auto count = Patiently([&] { return read(file.descriptor(), bytes.data(), most); });
    Check(count >= 0);
    if (count == 0 || !takesMore({bytes.data(), static_cast<std::size_t>(count)})) return;
  }
}

}  // namespace platform
