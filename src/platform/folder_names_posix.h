#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

// The names in one folder at the time it was read, searchable in any letter case.
class FolderNames {
 public:
  explicit FolderNames(const std::string& folder);

  // The folder's spelling of the name, or null if it has none. An exact match is preferred.
  const char* find(std::string_view name) const;

  // False if the system failed to list the whole folder.
  bool isComplete() const { return isComplete_; }

 private:
  std::string names_;                                           // each followed by a zero
  std::vector<std::pair<std::uint32_t, std::uint32_t>> index_;  // hash, offset in names_
  bool isComplete_ = false;
};

}  // namespace platform
