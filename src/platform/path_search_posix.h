// Finds paths in any letter case on a case-sensitive file system.
#pragma once

#include <string>
#include <string_view>

namespace platform {

struct FoundPath {
  // Nothing: the system says that there is no such file. Unknown: the system can't tell.
  enum class Kind { Nothing, File, Folder, Other, Unknown };

  std::string path;  // in the system's spelling; missing components as given
  Kind kind = Kind::Nothing;
};

// Finds what the path leads to. The exact spelling is tried first.
FoundPath FindPath(std::string_view path);

// Repeats FindPath while the kind is Unknown, for at most FilePatience, and then throws.
FoundPath FindPathForSure(std::string_view path);

}  // namespace platform
