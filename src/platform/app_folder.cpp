#include "platform/app_folder.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/failure.h"

#ifdef _WIN32
#include <array>

#include "platform/system_windows.h"
#endif

namespace platform {
namespace {

void Check(const std::error_code& error) {
  if (error) throw base::Failure(error.message());
}

std::filesystem::path ExecutablePath() {
#ifdef _WIN32
  std::array<wchar_t, 32768> buffer{};
  GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
  std::wstring name = buffer.data();
  // For a program on another machine, Wine gives "UNC\server" instead of "\\server".
  if (name.starts_with(L"UNC\\")) name.replace(0, 4, L"\\\\");
  return name;
#else
  std::error_code error;
  auto path = std::filesystem::read_symlink("/proc/self/exe", error);
  // Without /proc, the working folder counts as the program's own.
  return error ? std::filesystem::current_path(error) / "." : path;
#endif
}

std::string& Folder() {
  static std::string folder = [] {
    const auto text = ExecutablePath().parent_path().u8string();
    return std::string(text.begin(), text.end());
  }();
  return folder;
}

}  // namespace

std::string ProgramFolder() { return Folder(); }

void SetProgramFolder(std::string folder) { Folder() = std::move(folder); }

void SetWorkingFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::current_path(std::u8string(folder.begin(), folder.end()), error);
  Check(error);
}

}  // namespace platform
