// Generates Config\Kestrivane.ini from the shared state.
#pragma once

#include <string>

namespace config {

// The whole file as text. Fails if Profiles has more rows than the format can count, or had to
// leave some of the file's out.
std::string ConfigText();

// Writes the file. What a failure kept from being read is copied to Kestrivane.ini.unread first. A
// failure is quiet and leaves the file on disk as it was.
void WriteConfigFile();

}  // namespace config
