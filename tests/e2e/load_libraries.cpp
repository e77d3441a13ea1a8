// Loads the libraries that it is given by name, with no care where from. Without names it only has
// what every program with a window imports.
#include <objbase.h>
#include <windows.h>

int main(int count, char** words) {
  for (int word = 1; word < count; ++word) LoadLibraryA(words[word]);
  // Never comes true; the calls make the imports.
  if (count < 0) {
    MessageBoxA(nullptr, "", "", MB_OK);
    ShellExecuteW(nullptr, nullptr, L"", nullptr, nullptr, SW_HIDE);
    GetOpenFileNameW(nullptr);
    CoUninitialize();
  }
}
