// Generates Config\Kestrivane.ini from the shared state.
#pragma once

#include <string>

namespace config {

// The whole file as text. Throws if Profiles has more rows than the format allows, or if the file
// that was read had more.
std::string ConfigText();

// Writes the file. If the file on disk is not the one that this run read or last wrote, it is
// first copied to Kestrivane.ini.unread. A failure is not reported; the old text is then still in
// the file or in that copy.
void WriteConfigFile();

}  // namespace config
