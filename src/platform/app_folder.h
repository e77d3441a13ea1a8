#pragma once

#include <string>

namespace platform {

// The folder of the executable, without a trailing separator unless it is a root.
std::string ProgramFolder();

// Makes ProgramFolder return this folder instead. For tests.
void SetProgramFolder(std::string folder);

// Sets the working folder, which started programs inherit. Throws on failure.
void SetWorkingFolder(const std::string& folder);

}  // namespace platform
