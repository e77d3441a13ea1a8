// Reads Config\Kestrivane.ini, once per program start.
#pragma once

#include <string>
#include <string_view>

#include "config/configuration.h"

namespace config {

// Reads the file; without one, or if it can't be read or has more than 16 MB, returns the defaults
// with the default bindings. Copies a file that another program wrote to Kestrivane.ini.bak. Sets
// KnownConfigFile only if a save needs no copy of the file: it was read to its end, is not a file
// of ours that was cut short, and was copied if another program wrote it. A save drops what was not
// understood in a file of ours, such as comments and unknown options.
Configuration LoadConfigFile(const std::string& appFolder);

struct ParseResult {
  bool complete = false;  // no failure ended the parse
  bool markSeen = false;  // kFrontEndMark was found
  int lastHeadings = 0;   // how many lines contain kLastHeading
};

// Parses the text of a whole file, in which CR LF follows each line. A failure ends the parse at
// its line without a message; what was stored up to then stays.
ParseResult ParseConfigText(std::string_view text, Configuration& configuration);

}  // namespace config
