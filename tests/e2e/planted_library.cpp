// A library that gets the name of one of the system's. When it is loaded, it creates a file with
// its own name and ".loaded" appended.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID /*reserved*/) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  std::wstring name(32768, L'\0');
  name.resize(GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size())));
  CloseHandle(CreateFileW((name + L".loaded").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr));
  return TRUE;
}
