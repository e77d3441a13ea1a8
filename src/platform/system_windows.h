// What the sources for Windows share: the system's texts, paths, handles and failures.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

// windows.h makes this a macro for one of two other names.
#undef DeleteFile

namespace platform {

// The error of starting a program that asks for administrator rights. Some compilers' headers lack
// the system's name for it.
inline constexpr DWORD kElevationRequired = 740;

// Convert between UTF-8 and the system's texts. The result is empty if the text is invalid.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// The absolute path in the form that the system accepts at any length. The given path may be
// relative and have either separator. Empty, which leads to no file, if the path contains a zero
// byte or leads to a device such as "nul".
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
