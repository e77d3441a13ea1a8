#include "platform/files.h"

#include "base/error_boundary.h"
#include "base/text.h"
#include "platform/code_page.h"

namespace platform {

bool FileExists(std::string& FilePath) {
  bool exists = false;
  base::RunGuarded([&] {
    FilePath = base::ReplaceIgnoringCase(FilePath, "\\\\", "\\");
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
  bool any = false;
  for (const auto& name : FileNames(folder)) {
    if (!base::FoldCase(name).ends_with(ending)) continue;
    any = true;
    DeleteFile(Joined(folder, name));
  }
  if (!any) throw base::Failure("no such file");
}

void CopyFileBytes(std::string_view from, std::string_view to) { WriteBytes(to, ReadBytes(from)); }

std::string ReadText(std::string_view path) { return DecodeLines(ReadBytes(path)); }

void WriteText(std::string_view path, std::string_view text) {
  WriteBytes(path, EncodeCodePage(text));
}

}  // namespace platform
