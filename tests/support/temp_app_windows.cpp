#include "platform/files.h"
#include "platform/system_windows.h"
#include "support/temp_app.h"

#include <tlhelp32.h>

namespace support {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kSettings = L"Software\\Kestrivane UI tests";

// Redirects HKEY_CURRENT_USER to a key of the test run's own.
struct Registry : testing::Environment {
  void SetUp() override {
    RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
    RegCreateKeyW(HKEY_CURRENT_USER, kSettings, &key);
    RegOverridePredefKey(HKEY_CURRENT_USER, key);
  }
  void TearDown() override {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(key);
    RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
  }
  static inline HKEY key = nullptr;
};

const auto* const kRegistry = testing::AddGlobalTestEnvironment(new Registry);

}  // namespace

void TempApp::clearSettings() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Kestrivane UI"); }

std::string TempApp::settings() {
  std::string text;
  for (const auto* section : {L"General", L"Path", L"GameTimeLog"}) {
    const auto name = L"Software\\Kestrivane UI\\" + std::wstring(section);
    wchar_t key[256], value[4096];
    HKEY opened = nullptr;
    if (RegOpenKeyW(HKEY_CURRENT_USER, name.c_str(), &opened) != ERROR_SUCCESS) continue;
    DWORD length = 256, size = sizeof value;
    for (DWORD at = 0; RegEnumValueW(opened, at, key, &length, nullptr, nullptr,
                                     reinterpret_cast<BYTE*>(value), &size) == ERROR_SUCCESS;
         ++at, length = 256, size = sizeof value) {
      const auto plain = platform::FromWide(value);
      const auto* const quote = plain.find(',') == std::string::npos ? "" : "\"";
      text += platform::FromWide({key, length}) + "=" + quote + plain + quote + "\n";
    }
    RegCloseKey(opened);
  }
  return text;
}

void RemoveAll(const fs::path& folder) {
  const auto name = ToText(folder);
  for (const auto& file : platform::FileNames(name)) {
    SetFileAttributesW(platform::FullName(name + "\\" + file).c_str(), FILE_ATTRIBUTE_NORMAL);
    platform::DeleteFile(name + "\\" + file);
  }
  for (const auto& inner : platform::SubfolderNames(name)) RemoveAll(folder / ToPath(inner));
  RemoveDirectoryW(platform::FullName(name).c_str());
}

void WaitForChild() {
  const platform::Handle all(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  PROCESSENTRY32W process{};
  process.dwSize = sizeof process;
  for (auto more = Process32FirstW(all.get(), &process); more;
       more = Process32NextW(all.get(), &process)) {
    // The desktop's own process may be a child too, and does not end.
    if (process.th32ParentProcessID != GetCurrentProcessId() ||
        std::wstring_view(process.szExeFile) != L"Kestrivane.exe")
      continue;
    const platform::Handle child(OpenProcess(SYNCHRONIZE, FALSE, process.th32ProcessID));
    WaitForSingleObject(child.get(), INFINITE);
  }
}

// Opens the files as another program would, so that nobody else may write to them.
Unprivileged::Unprivileged(const fs::path& locked) {
  std::vector<fs::path> files{locked};
  if (fs::is_directory(locked)) files.assign(fs::directory_iterator(locked), {});
  std::vector<HANDLE> handles;
  for (const auto& file : files)
    handles.push_back(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  undo_ = [handles] {
    for (auto* const handle : handles) CloseHandle(handle);
  };
}

}  // namespace support
