// Finding a path on a system that minds letter case.
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace platform {

struct FoundPath {
  std::string path;                   // in the system's spelling; missing components as given
  std::optional<struct stat> status;  // of what the path leads to; nothing if that is not there
};

// `path` has the system's separators. The exact spelling is tried first.
FoundPath FindPath(const std::string& path);

}  // namespace platform
