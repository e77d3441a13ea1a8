// What the sources for Windows share: the system's texts, names, handles and failures.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

// The system's headers rename this one to suit their character set.
#undef DeleteFile

namespace platform {

// The program asks for an administrator's rights. Some compilers' headers lack the system's name.
inline constexpr DWORD kElevationRequired = 740;

// UTF-8 to the system's texts and back. Nothing comes back of a text that is no valid Unicode.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// The name by which the system takes a path of any length, relative or not, with either separator.
// Empty, which names nothing, for a path that holds a zero or leads to a device such as "nul".
std::wstring FullName(std::string_view path);

// Throws with the system's last error.
void Check(bool success);

class Handle {
 public:
  explicit Handle(HANDLE handle = nullptr)
      : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  ~Handle() { close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  explicit operator bool() const { return handle_ != nullptr; }
  HANDLE get() const { return handle_; }
  HANDLE* address() { return &handle_; }
  void close() {
    if (handle_) CloseHandle(handle_);
    handle_ = nullptr;
  }

 private:
  HANDLE handle_;
};

}  // namespace platform
