#include <memory>

#include "platform/console.h"
#include "platform/system_windows.h"
// Needs windows.h before it.
#include <shellapi.h>

namespace platform {
namespace {

bool WriteAll(HANDLE file, const std::string& text) {
  DWORD written = 0;
  return WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
         written == text.size();
}

// Writes the text to a stream and sets `success`. Returns false if the program lacks this stream.
bool WriteToStream(DWORD stream, const std::string& text, bool& success) {
  const auto file = GetStdHandle(stream);
  if (!file || GetFileType(file) == FILE_TYPE_UNKNOWN) return false;
  success = WriteAll(file, text);
  return true;
}

// A program with windows has no console of its own, but can write to that of its parent.
bool WriteToParentConsole(const std::string& text) {
  if (!AttachConsole(ATTACH_PARENT_PROCESS)) return false;
  bool success = false;
  {
    const Handle console(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                     nullptr));
    const auto wide = ToWide(text);
    DWORD written = 0;
    success = console && WriteConsoleW(console.get(), wide.data(), static_cast<DWORD>(wide.size()),
                                       &written, nullptr);
  }
  FreeConsole();
  return success;
}

}  // namespace

std::vector<std::string> ProgramArguments(int, char**) {
  // The arguments of `main` are in the system's code page, which may lack characters.
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> arguments;
  for (int index = 1; words && index < count; ++index)
    arguments.push_back(FromWide(words.get()[index]));
  return arguments;
}

bool PrintOutput(const std::string& text) {
  bool success = false;
  if (WriteToStream(STD_OUTPUT_HANDLE, text, success)) return success;
  return WriteToParentConsole(text) || MessageBoxW(nullptr, ToWide(text).c_str(), L"Kestrivane UI",
                                                   MB_OK | MB_ICONINFORMATION) != 0;
}

void PrintError(const std::string& text) {
  bool success = false;
  if (!WriteToStream(STD_ERROR_HANDLE, text, success)) WriteToParentConsole(text);
}

}  // namespace platform
