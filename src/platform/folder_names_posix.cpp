#include "platform/folder_names_posix.h"

#include <dirent.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

#include "base/text.h"

namespace platform {
namespace {

// Equal for all spellings of a name, since letters beyond ASCII are left out.
std::uint32_t HashOf(std::string_view name) {
  std::uint32_t hash = 2166136261;
  for (const unsigned char c : name)
    if (c < 0x80) hash = (hash ^ (c >= 'A' && c <= 'Z' ? c + 32U : c)) * 16777619;
  return hash;
}

}  // namespace

FolderNames::FolderNames(const std::string& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
  errno = stream ? 0 : errno;
  while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
    index_.emplace_back(HashOf(entry->d_name), static_cast<std::uint32_t>(names_.size()));
    names_.append(entry->d_name, std::strlen(entry->d_name) + 1);
  }
  isComplete_ = stream && errno == 0;
  std::sort(index_.begin(), index_.end());
}

const char* FolderNames::find(std::string_view name) const {
  const auto hash = HashOf(name);
  const char* found = nullptr;
  for (auto at = std::lower_bound(index_.begin(), index_.end(), std::pair(hash, 0U));
       at != index_.end() && at->first == hash; ++at) {
    const char* spelled = names_.c_str() + at->second;
    if (spelled == name) return spelled;
    if (!found && base::FoldCase(spelled) == base::FoldCase(name)) found = spelled;
  }
  return found;
}

}  // namespace platform
