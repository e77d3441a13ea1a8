#include "platform/files.h"

#include "base/error_boundary.h"
#include "base/text.h"

namespace platform {

bool FileExists(std::string& FilePath) {
  bool exists = false;
  base::RunGuarded([&] {
    const std::string start = FilePath.starts_with("\\\\") ? "\\\\" : "";
    FilePath = start + base::ReplaceIgnoringCase(FilePath.substr(start.size()), "\\\\", "\\");
    exists = IsFile(FilePath);
  });
  return exists;
}

std::string Joined(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.ends_with('\\') && !path.ends_with('/')) path += '\\';
  return path.append(name);
}

void DeleteFilesEndingIn(std::string_view folder, std::string_view ending) {
  for (const auto& name : FileNames(folder))
    if (base::FoldCase(name).ends_with(ending)) DeleteFile(Joined(folder, name));
}

}  // namespace platform
