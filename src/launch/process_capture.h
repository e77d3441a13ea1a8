// Services of the operating system whose failures are not reported.
#pragma once

#include <string>

namespace launch {

// Runs a command, without a shell, to its end. Returns its standard output, at most 16 MB of
// it, or an empty text on failure.
std::string ShellExecuteCapture(const std::string& sCommandLine, bool bShowWindow = true);

// Opens a web address in the system's browser. Does nothing on failure.
void OpenUrl(const std::string& address);

}  // namespace launch
