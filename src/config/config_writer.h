// Generates Config\Kestrivane.ini from the shared state.
#pragma once

#include <string>

namespace config {

// The whole file as text. Fails if Profiles has more rows than the format can count, or had to
// leave some of the file's out.
std::string ConfigText();

// Writes the file. One that is not as this run read or wrote it is copied to Kestrivane.ini.unread
// first. A failure is reported to nobody and leaves the file on disk as it was, or else its text in
// that copy.
void WriteConfigFile();

}  // namespace config
