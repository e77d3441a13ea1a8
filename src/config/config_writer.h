// Generates Config\Kestrivane.ini from the shared state.
#pragma once

#include <string>

namespace config {

// The whole file as text. Throws if Profiles has more rows than the format can count.
std::string ConfigText();

// Writes the file. A failure is quiet and leaves the file on disk as it was.
void WriteConfigFile();

}  // namespace config
