// Services of the operating system that report failure by an empty text or false.
#pragma once

#include <string>

namespace launch {

// Runs a command to its end and gives what it wrote to standard output; empty on any failure.
std::string ShellExecuteCapture(const std::string& sCommandLine, bool bShowWindow = true);

// Hands an address to the system's opener.
void OpenUrl(const std::string& address);

}  // namespace launch
