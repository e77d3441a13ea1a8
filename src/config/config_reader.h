// Reads Config\Kestrivane.ini, once per program start.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "config/configuration.h"

namespace config {

// What a file of ours says in its head, and no other does.
inline constexpr std::string_view kBanner = "Kestrivane UI®";

// What begins the lists of folders.
inline constexpr std::array<std::string_view, 3> kPathKeys = {
    ";ROMpaths=", ";SNAPpaths=", ";ICONpaths="};

// The file's configuration; the default bindings where there is no file or it can't be read.
// Copies a file that another program wrote to Kestrivane.ini.bak.
Configuration LoadConfigFile(const std::string& appFolder);

struct ParseResult {
  bool complete = false;  // no failure ended the parse
  bool bannerSeen = false;
};

// Takes the whole file, each line followed by CR LF. A failure ends the parse at its line without a
// message; what was stored up to then stays.
ParseResult ParseConfigText(std::string_view text, Configuration& configuration);

}  // namespace config
