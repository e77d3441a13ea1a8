// Finds paths in any letter case on a case-sensitive file system.
#pragma once

#include <string>

namespace platform {

struct FoundPath {
  enum class Kind { nothing, file, folder, other };

  std::string path;  // in the system's spelling; missing components as given
  Kind kind = Kind::nothing;
};

// `path` has the system's separators. The exact spelling is tried first.
FoundPath FindPath(const std::string& path);

}  // namespace platform
