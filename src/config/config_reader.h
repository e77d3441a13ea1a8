// Reads Config\Kestrivane.ini, once per program start.
#pragma once

#include <string>
#include <string_view>

#include "config/configuration.h"

namespace config {

// The file's configuration; the default bindings where there is no file or it can't be read, as one
// of more than 16 MB. Copies a file that another program wrote to Kestrivane.ini.bak. The file
// counts as known only where nothing of it can be lost by a save: it was read to its end, is not
// one of ours that was cut short, and was copied if it had to be.
Configuration LoadConfigFile(const std::string& appFolder);

struct ParseResult {
  bool complete = false;  // no failure ended the parse
  bool markSeen = false;  // of a file of ours
  int lastHeadings = 0;   // a file of ours has one
};

// Takes the whole file, each line followed by CR LF. A failure ends the parse at its line without a
// message; what was stored up to then stays.
ParseResult ParseConfigText(std::string_view text, Configuration& configuration);

}  // namespace config
