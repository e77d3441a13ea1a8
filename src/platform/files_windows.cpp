#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "base/failure.h"
#include "base/text.h"

// The system's headers rename this one to suit their character set.
#undef DeleteFile
#include "platform/files.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

fs::path ToPath(std::string_view path) {
  return fs::path(std::u8string(path.begin(), path.end()), fs::path::native_format)
      .make_preferred();
}

std::string ToText(const fs::path& path) {
  const auto text = path.u8string();
  return {text.begin(), text.end()};
}

void Check(bool success) {
  if (!success)
    throw base::Failure(std::system_category().message(static_cast<int>(GetLastError())));
}

// The folder's names of regular files or of folders, sorted ignoring case.
std::vector<std::string> NamesIn(std::string_view folder, fs::file_type wanted) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(ToPath(folder))) {
    std::error_code unreadable;
    if (entry.status(unreadable).type() == wanted) names.push_back(ToText(entry.path().filename()));
  }
  return base::SortedIgnoringCase(std::move(names));
}

// A file that is there keeps its content when it is opened. One that is not is gone again unless
// its writing came to an end.
class FileToWrite {
 public:
  explicit FileToWrite(fs::path path)
      : path_(std::move(path)),
        handle_(CreateFileW(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {
    Check(handle_ != INVALID_HANDLE_VALUE);
    keep_ = GetLastError() == ERROR_ALREADY_EXISTS;
  }
  ~FileToWrite() {
    CloseHandle(handle_);
    if (!keep_) DeleteFileW(path_.c_str());
  }
  FileToWrite(const FileToWrite&) = delete;
  FileToWrite& operator=(const FileToWrite&) = delete;

  void keep() { keep_ = true; }
  long long size() const {
    LARGE_INTEGER size{};
    Check(GetFileSizeEx(handle_, &size) != 0);
    return size.QuadPart;
  }
  // Cuts the file, or makes room on the disk. The next byte is written at the file's start.
  void setSize(long long size) {
    moveTo(size);
    Check(SetEndOfFile(handle_) != 0);
    moveTo(0);
  }
  void write(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto part = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 20U));
      DWORD done = 0;
      Check(WriteFile(handle_, bytes.data(), part, &done, nullptr) != 0 && done > 0);
      bytes.remove_prefix(done);
    }
  }

 private:
  void moveTo(long long position) {
    LARGE_INTEGER distance{};
    distance.QuadPart = position;
    Check(SetFilePointerEx(handle_, distance, nullptr, FILE_BEGIN) != 0);
  }

  fs::path path_;
  HANDLE handle_;
  bool keep_ = false;
};

}  // namespace

std::string SystemPath(std::string_view path) { return ToText(ToPath(path)); }

bool IsFile(std::string_view path) {
  std::error_code unreadable;
  return fs::is_regular_file(ToPath(path), unreadable);
}

bool IsFolder(std::string_view path) {
  std::error_code unreadable;
  return fs::is_directory(ToPath(path), unreadable);
}

std::vector<std::string> SubfolderNames(std::string_view folder) {
  return NamesIn(folder, fs::file_type::directory);
}

std::vector<std::string> FileNames(std::string_view folder) {
  return NamesIn(folder, fs::file_type::regular);
}

void MakeFolder(std::string_view path) { fs::create_directory(ToPath(path)); }

void DeleteFile(std::string_view path) { Check(DeleteFileW(ToPath(path).c_str()) != 0); }

std::string ReadBytes(std::string_view path, long long most) {
  if (!IsFile(path)) throw base::Failure("not a regular file");
  if (fs::file_size(ToPath(path)) > static_cast<std::uintmax_t>(most))
    throw base::Failure("file too large");
  std::ifstream file;
  file.exceptions(std::ios::badbit | std::ios::failbit);
  file.open(ToPath(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void ReadPieces(std::string_view path, std::size_t most,
                const std::function<bool(std::string_view piece)>& takesMore) {
  if (!IsFile(path)) throw base::Failure("not a regular file");
  std::ifstream file(ToPath(path), std::ios::binary);
  std::string bytes(most, '\0');
  do {
    file.read(bytes.data(), static_cast<std::streamsize>(most));
  } while (file.gcount() > 0 && takesMore({bytes.data(), static_cast<std::size_t>(file.gcount())}));
}

void WriteBytes(std::string_view path, std::string_view bytes) {
  FileToWrite file(ToPath(path));
  const auto size = static_cast<long long>(bytes.size());
  // Room first, and only then the bytes: a full disk must not cost the old content.
  if (size > file.size()) file.setSize(size);
  file.write(bytes);
  file.setSize(size);
  file.keep();
}

}  // namespace platform
