#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

// The names in one folder as they stood when it was read, to be found in any letter case.
class FolderNames {
 public:
  explicit FolderNames(const std::string& folder);

  // The name as the folder spells it, rather as given if there are several; nothing without one.
  const char* find(std::string_view name) const;

 private:
  std::string names_;                                           // each with a zero behind it
  std::vector<std::pair<std::uint32_t, std::uint32_t>> index_;  // hash, offset in names_
};

}  // namespace platform
