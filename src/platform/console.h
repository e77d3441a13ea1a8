#pragma once

#include <string>
#include <vector>

namespace platform {

// The arguments after the program's name: on Windows in UTF-8, elsewhere the bytes of `argv`. The
// parameters are those of `main`.
std::vector<std::string> ProgramArguments(int argc, char** argv);

// Writes the text, in UTF-8, to standard output and returns whether all of it was written. On
// Windows, a program with windows has a standard output only if it is redirected. Without one the
// text goes to the console that the program was started from, or else into a message box.
bool PrintOutput(const std::string& text);

// Writes the text to standard error or the console that the program was started from, if there is
// one.
void PrintError(const std::string& text);

}  // namespace platform
