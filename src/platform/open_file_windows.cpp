#include <algorithm>
#include <filesystem>

#include "base/failure.h"
#include "platform/open_file.h"
#include "platform/patience.h"
#include "platform/system_windows.h"

namespace platform {
namespace {

constexpr DWORD kEveryone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Repeats a call while it fails with `error`, the sign that another program is using the file, for
// at most FilePatience.
bool RetryWhile(DWORD error, const std::function<bool()>& call) {
  bool succeeded = false;
  RetryUntil([&] {
    succeeded = call();
    return succeeded || GetLastError() != error;
  });
  return succeeded;
}

// Locks the file, so that two front-ends that save at once do not mix their texts and none reads a
// half-written text. Returns whether another front-end has the lock, always false on a file system
// without locks. The locked byte is far behind the end of every file, because Windows lets nobody
// else read locked bytes and the emulator may read the file at any time.
bool IsLockedElsewhere(HANDLE file, bool saves) {
  OVERLAPPED place{};
  place.Offset = 0xFFFFFFFE;
  place.OffsetHigh = 0x7FFFFFFF;
  const DWORD kind = LOCKFILE_FAIL_IMMEDIATELY | (saves ? LOCKFILE_EXCLUSIVE_LOCK : 0);
  const auto lock = [&] { return LockFileEx(file, kind, 0, 1, 0, &place) != 0; };
  return !RetryWhile(ERROR_LOCK_VIOLATION, lock) && GetLastError() == ERROR_LOCK_VIOLATION;
}

bool MoveTo(HANDLE file, long long position) {
  LARGE_INTEGER distance{};
  distance.QuadPart = position;
  return SetFilePointerEx(file, distance, nullptr, FILE_BEGIN);
}

// The number of bytes to read or write by one call.
DWORD Part(std::size_t size) { return static_cast<DWORD>(std::min<std::size_t>(size, 1U << 30U)); }

bool Write(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD done = 0;
    if (!WriteFile(file, bytes.data(), Part(bytes.size()), &done, nullptr)) return false;
    bytes.remove_prefix(done);
  }
  return true;
}

}  // namespace

// The system releases the lock when the file is closed.
struct OpenFile::Native {
  explicit Native(HANDLE opened) : file(opened) {}

  Handle file;
};

OpenFile::OpenFile(const std::string& path, Use use) {
  const auto name = FullName(path);
  const bool saves = use == Use::Saving;
  const DWORD access = saves ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const DWORD others = saves ? FILE_SHARE_READ | FILE_SHARE_WRITE : kEveryone;
  HANDLE file = INVALID_HANDLE_VALUE;
  // A virus scanner or an indexer may have the file open for a moment.
  Check(RetryWhile(ERROR_SHARING_VIOLATION, [&] {
    file = CreateFileW(name.c_str(), access, others, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
    return file != INVALID_HANDLE_VALUE;
  }));
  native_ = std::make_unique<Native>(file);
  if (IsLockedElsewhere(file, saves) && saves)
    throw base::Failure("another program keeps the file");
}

OpenFile::~OpenFile() = default;

long long OpenFile::size() const {
  LARGE_INTEGER size{};
  Check(GetFileSizeEx(native_->file.get(), &size) != 0);
  return size.QuadPart;
}

Rights OpenFile::rights() const { return {}; }

std::string OpenFile::read(long long from, std::size_t most) const {
  Check(MoveTo(native_->file.get(), from));
  std::string bytes(most, '\0');
  std::size_t done = 0;
  for (DWORD count = 1; count > 0 && done < most; done += count)
    Check(ReadFile(native_->file.get(), bytes.data() + done, Part(most - done), &count, nullptr));
  bytes.resize(done);
  return bytes;
}

bool OpenFile::setRights(Rights /*rights*/) const { return true; }

bool OpenFile::write(long long at, std::string_view bytes) const {
  return MoveTo(native_->file.get(), at) && Write(native_->file.get(), bytes);
}

bool OpenFile::setSize(long long size) const {
  return MoveTo(native_->file.get(), size) && SetEndOfFile(native_->file.get());
}

bool OpenFile::sync() const { return FlushFileBuffers(native_->file.get()); }

// If the file system can't reserve space, writing decides whether there is room.
bool OpenFile::hasRoom(long long oldSize, long long size) const {
  FILE_ALLOCATION_INFO room{};
  room.AllocationSize.QuadPart = std::max(oldSize, size);
  return SetFileInformationByHandle(native_->file.get(), FileAllocationInfo, &room, sizeof room) ||
         GetLastError() != ERROR_DISK_FULL;
}

struct NewFile::Native {
  ~Native() {
    const bool isUnfinished = file && !isKept;
    file.close();
    if (isUnfinished) DeleteFileW(name.c_str());
  }

  std::wstring name;
  Handle file;
  bool isNameTaken = false;
  bool isKept = false;
};

// On Windows every file has a name.
NewFile::NewFile(const std::string& path, Way way, Rights /*rights*/)
    : native_(std::make_unique<Native>()) {
  if (way == Way::WithoutName) return;
  native_->name = FullName(path);
  const HANDLE file = CreateFileW(native_->name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  native_->isNameTaken = file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS;
  if (file != INVALID_HANDLE_VALUE) *native_->file.address() = file;
}

NewFile::~NewFile() = default;

bool NewFile::isOpen() const { return static_cast<bool>(native_->file); }

bool NewFile::isNameTaken() const { return native_->isNameTaken; }

bool NewFile::add(std::string_view bytes) const { return Write(native_->file.get(), bytes); }

bool NewFile::keepAs(const std::string& path) {
  native_->isKept = FlushFileBuffers(native_->file.get());
  if (native_->isKept) SyncFolderOf(path);
  return native_->isKept;
}

// A failure is ignored: file systems that can't sync a folder keep its changes in a journal.
void SyncFolderOf(const std::string& path) {
  const auto folder = std::filesystem::path(FullName(path)).parent_path();
  const Handle handle(CreateFileW(folder.c_str(), GENERIC_WRITE, kEveryone, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (handle) FlushFileBuffers(handle.get());
}

}  // namespace platform
