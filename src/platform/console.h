#pragma once

#include <string>
#include <vector>

namespace platform {

// The arguments behind the program's name, in UTF-8 where the system has them as characters.
// `count` and `words` are those of `main`.
std::vector<std::string> ProgramArguments(int count, char** words);

// Writes the text, in UTF-8, to standard output. On Windows, where a program with windows has none
// unless it is redirected, to the console that the program was started from, or else into a message
// box. Answers whether all of it was written.
bool PrintOutput(const std::string& text);

// Writes the text to standard error or the console that the program was started from, if there is
// one.
void PrintError(const std::string& text);

}  // namespace platform
