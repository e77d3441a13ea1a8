#include <algorithm>
#include <chrono>
#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/system_windows.h"

namespace platform {
namespace {

constexpr DWORD kEveryone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Those of what a link leads to; INVALID_FILE_ATTRIBUTES if there is nothing of that name.
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
  FindClose(search);
  return base::SortedIgnoringCase(std::move(names));
}

// Repeats for at most a second what another program is in the way of, which `error` tells.
template <class Call>
bool Patiently(DWORD error, const Call& call) {
  constexpr int kTries = 200;
  constexpr std::chrono::milliseconds kPause(5);
  for (int tries = 1;; ++tries) {
    if (call()) return true;
    if (GetLastError() != error || tries == kTries) return false;
    TheClock().sleep(kPause);
  }
}

HANDLE Open(const std::wstring& name, DWORD access, DWORD others, DWORD existence) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  // A search for viruses or an index may hold the file for a moment.
  Check(Patiently(ERROR_SHARING_VIOLATION, [&] {
    handle = CreateFileW(name.c_str(), access, others, nullptr, existence, FILE_ATTRIBUTE_NORMAL,
                         nullptr);
    return handle != INVALID_HANDLE_VALUE;
  }));
  return handle;
}

// Two front-ends that save at once must not mix their texts, nor one read what the other has half
// written. The byte that they lock lies far behind the end of every file: the system keeps everyone
// from what is locked, and the emulator reads whenever it likes.
class Lock {
 public:
  Lock(HANDLE file, DWORD kind) : file_(file) {
    const bool known = Patiently(ERROR_LOCK_VIOLATION, [&] {
      locked_ = LockFileEx(file_, kind | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place_) != 0;
      return locked_;
    });
    // Some file systems know no locks.
    Check(known || GetLastError() != ERROR_LOCK_VIOLATION);
  }
  ~Lock() {
    if (locked_) UnlockFileEx(file_, 0, 1, 0, &place_);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  HANDLE file_;
  OVERLAPPED place_ = [] {
    OVERLAPPED place{};
    place.Offset = 0xFFFFFFFE;
    place.OffsetHigh = 0x7FFFFFFF;
    return place;
  }();
  bool locked_ = false;
};

long long SizeOf(HANDLE file) {
  LARGE_INTEGER size{};
  Check(GetFileSizeEx(file, &size) != 0);
  return size.QuadPart;
}

bool MoveTo(HANDLE file, long long position) {
  LARGE_INTEGER distance{};
  distance.QuadPart = position;
  return SetFilePointerEx(file, distance, nullptr, FILE_BEGIN);
}

bool Cut(HANDLE file, long long size) { return MoveTo(file, size) && SetEndOfFile(file); }

// Reserves room on the disk without a change of the file's length; false if there is none. What a
// file system can't reserve shows when it is written.
bool Reserve(HANDLE file, long long size) {
  FILE_ALLOCATION_INFO room{};
  room.AllocationSize.QuadPart = size;
  return SetFileInformationByHandle(file, FileAllocationInfo, &room, sizeof room) ||
         GetLastError() != ERROR_DISK_FULL;
}

bool Write(HANDLE file, std::string_view bytes) {
  if (!MoveTo(file, 0)) return false;
  while (!bytes.empty()) {
    const auto part = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30U));
    DWORD done = 0;
    if (!WriteFile(file, bytes.data(), part, &done, nullptr)) return false;
    bytes.remove_prefix(done);
  }
  return true;
}

// At most `most` bytes from this place on.
std::string Read(HANDLE file, long long from, std::size_t most) {
  Check(MoveTo(file, from));
  std::string bytes(most, '\0');
  std::size_t done = 0;
  for (DWORD count = 1; count > 0 && done < most; done += count) {
    const auto part = static_cast<DWORD>(std::min<std::size_t>(most - done, 1U << 30U));
    Check(ReadFile(file, bytes.data() + done, part, &count, nullptr));
  }
  bytes.resize(done);
  return bytes;
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

bool IsFile(std::string_view path) { return IsFileKind(Attributes(FullName(path))); }

bool IsFolder(std::string_view path) { return IsFolderKind(Attributes(FullName(path))); }

std::vector<std::string> SubfolderNames(std::string_view folder) {
  return NamesIn(folder, IsFolderKind);
}

std::vector<std::string> FileNames(std::string_view folder) { return NamesIn(folder, IsFileKind); }

void MakeFolder(std::string_view path) {
  Check(CreateDirectoryW(FullName(path).c_str(), nullptr) != 0);
}

void DeleteFile(std::string_view path) { Check(DeleteFileW(FullName(path).c_str()) != 0); }

std::string ReadBytes(std::string_view path, long long most) {
  const Handle file(Open(FullName(path), GENERIC_READ, kEveryone, OPEN_EXISTING));
  const Lock lock(file.get(), 0);
  const auto size = SizeOf(file.get());
  if (size > most) throw base::Failure("file too large");
  auto bytes = Read(file.get(), 0, static_cast<std::size_t>(size));
  if (static_cast<long long>(bytes.size()) < size)
    throw base::Failure("the file was cut while it was read");
  return bytes;
}

void ReadPieces(std::string_view path, std::size_t most,
                const std::function<bool(std::string_view piece)>& takesMore) {
  const Handle file(Open(FullName(path), GENERIC_READ, kEveryone, OPEN_EXISTING));
  for (long long from = 0;; from += static_cast<long long>(most)) {
    const auto piece = Read(file.get(), from, most);
    if (piece.empty() || !takesMore(piece)) return;
  }
}

void WriteBytes(std::string_view path, std::string_view bytes) {
  const auto name = FullName(path);
  Handle file(
      Open(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS));
  const bool isNew = GetLastError() != ERROR_ALREADY_EXISTS;
  const Lock lock(file.get(), LOCKFILE_EXCLUSIVE_LOCK);
  const auto oldSize = SizeOf(file.get());
  const auto size = static_cast<long long>(bytes.size());
  const auto oldBytes = Read(file.get(), 0, static_cast<std::size_t>(oldSize));

  // Until the file is cut, empty lines stand for the end of a longer old text: it can be read at
  // any time, and comes to the disk before its length does.
  std::string text(bytes);
  while (text.size() < oldBytes.size()) text += text.ends_with('\r') ? '\n' : '\r';
  if (!Reserve(file.get(), static_cast<long long>(text.size())) || !Write(file.get(), text) ||
      !FlushFileBuffers(file.get())) {
    const auto error = GetLastError();
    Write(file.get(), oldBytes);
    Cut(file.get(), oldSize);
    if (isNew && oldSize == 0) {
      file.close();
      DeleteFileW(name.c_str());
    }
    SetLastError(error);
    Check(false);
  }
  if (size >= oldSize) return;
  Check(Cut(file.get(), size) && FlushFileBuffers(file.get()));
}

}  // namespace platform
