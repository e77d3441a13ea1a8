#include "platform/system_windows.h"

#include <system_error>

#include "base/failure.h"

namespace platform {

std::wstring ToWide(std::string_view text) {
  const auto size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), size)));
  return wide;
}

std::string FromWide(std::wstring_view text) {
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), static_cast<int>(text.size()),
                          bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

std::wstring FullName(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return {};
  const auto given = ToWide(path);
  std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(
      GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  if (full.empty() || full.starts_with(L"\\\\.\\")) return {};
  if (full.starts_with(L"\\\\?\\")) return full;
  // With this prefix the system takes a name literally and does not limit its length.
  return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

void Check(bool success) {
  if (!success)
    throw base::Failure(std::system_category().message(static_cast<int>(GetLastError())));
}

}  // namespace platform
