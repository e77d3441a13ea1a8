#include <algorithm>
#include <string>
#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/open_file.h"
#include "platform/patience.h"
#include "platform/system_windows.h"

namespace platform {
namespace {

constexpr DWORD kEveryone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The attributes of a file or folder, of a link those of its target. INVALID_FILE_ATTRIBUTES if
// there is none.
DWORD Attributes(const std::wstring& name) {
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT))
    return attributes;
  const Handle target(CreateFileW(name.c_str(), 0, kEveryone, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION found{};
  return target && GetFileInformationByHandle(target.get(), &found) ? found.dwFileAttributes
                                                                    : INVALID_FILE_ATTRIBUTES;
}

bool IsFileKind(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES &&
         !(attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE));
}

bool IsFolderKind(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::vector<std::string> NamesIn(std::string_view folder, bool (*wanted)(DWORD attributes)) {
  auto start = FullName(folder);
  if (!start.ends_with(L'\\')) start += L'\\';
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileExW((start + L'*').c_str(), FindExInfoBasic, &entry,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  // An empty drive has not even the entries "." and "..".
  if (search == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_NOT_FOUND) return {};
  Check(search != INVALID_HANDLE_VALUE);
  std::vector<std::string> names;
  do {
    const std::wstring_view wide = entry.cFileName;
    if (wide == L"." || wide == L"..") continue;
    const DWORD attributes = entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT
                                 ? Attributes(start + entry.cFileName)
                                 : entry.dwFileAttributes;
    auto name = FromWide(wide);
    if (wanted(attributes) && !name.empty()) names.push_back(std::move(name));
  } while (FindNextFileW(search, &entry));
  const auto error = GetLastError();
  FindClose(search);
  SetLastError(error);
  Check(error == ERROR_NO_MORE_FILES);
  return base::SortedByFoldedCase(std::move(names));
}

}  // namespace

std::string SystemPath(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '/', '\\');
  return text;
}

bool IsWithin(std::string_view path, std::string_view folder) {
  const auto inner = base::FoldCase(SystemPath(path));
  const auto outer = base::FoldCase(SystemPath(folder));
  if (!inner.starts_with(outer)) return false;
  return inner.size() == outer.size() || inner[outer.size()] == '\\' || outer.ends_with('\\');
}

Existence LookForFile(std::string_view path) {
  constexpr DWORD kNoSuchFile[] = {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME,
                                   ERROR_BAD_PATHNAME, ERROR_DIRECTORY};
  const auto name = FullName(path);
  DWORD attributes = INVALID_FILE_ATTRIBUTES;
  const bool isSure = RetryUntil([&] {
    attributes = Attributes(name);
    return attributes != INVALID_FILE_ATTRIBUTES ||
           std::ranges::find(kNoSuchFile, GetLastError()) != std::end(kNoSuchFile);
  });
  if (!isSure) return Existence::Unknown;
  return IsFileKind(attributes) ? Existence::There : Existence::NotThere;
}

bool IsFile(std::string_view path) { return IsFileKind(Attributes(FullName(path))); }

bool IsFolder(std::string_view path) { return IsFolderKind(Attributes(FullName(path))); }

std::vector<std::string> SubfolderNames(std::string_view folder) {
  return NamesIn(folder, IsFolderKind);
}

std::vector<std::string> FileNames(std::string_view folder) { return NamesIn(folder, IsFileKind); }

void MakeFolder(std::string_view path) {
  Check(CreateDirectoryW(FullName(path).c_str(), nullptr) != 0);
  SyncFolderOf(std::string(path));
}

void DeleteFile(std::string_view path) { Check(DeleteFileW(FullName(path).c_str()) != 0); }

}  // namespace platform
