#pragma once

#include <string>

namespace platform {

// The folder of the program's own executable, without a separator at its end unless it is a root.
std::string ProgramFolder();

// Takes the place of the executable's folder from then on; for tests.
void SetProgramFolder(std::string folder);

// Makes the folder the working folder, which started programs inherit. Throws on failure.
void SetWorkingFolder(const std::string& folder);

}  // namespace platform
