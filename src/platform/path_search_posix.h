// Finds paths in any letter case on a case-sensitive file system.
#pragma once

#include <string>
#include <string_view>

namespace platform {

struct FoundPath {
  // Nothing means that the system says so; it can fail to tell.
  enum class Kind { Nothing, File, Folder, Other, Unknown };

  std::string path;  // in the system's spelling; missing components as given
  Kind kind = Kind::Nothing;
};

// The exact spelling is tried first.
FoundPath FindPath(std::string_view path);

// Looks again, for the patience of files, while the kind is unknown, and then fails.
FoundPath FindPathForSure(std::string_view path);

}  // namespace platform
