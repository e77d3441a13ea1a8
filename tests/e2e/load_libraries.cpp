// Loads the libraries that it gets as arguments, from wherever the system finds them. Without
// arguments it only loads what every program with a window imports.
#include <objbase.h>
#include <windows.h>

int main(int argc, char** argv) {
  for (int index = 1; index < argc; ++index) LoadLibraryA(argv[index]);
  // Never true; the calls only put the functions into the import table.
  if (argc < 0) {
    MessageBoxA(nullptr, "", "", MB_OK);
    ShellExecuteW(nullptr, nullptr, L"", nullptr, nullptr, SW_HIDE);
    GetOpenFileNameW(nullptr);
    CoUninitialize();
  }
}
