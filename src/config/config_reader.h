// Reads Config\Kestrivane.ini into the shared state, once per program start.
#pragma once

#include <optional>
#include <string_view>

namespace config {

// Reads the file, or takes the default bindings if there is none, and then loads the game
// catalogue, whose answer it gives. A file that is there and can't be read still leads to default
// bindings and the catalogue.
std::optional<unsigned char> LoadConfigFile();

// The whole file, each line followed by CR LF. A failure ends the parse quietly at its line; what
// was stored up to then stays.
void ParseConfigText(std::string_view text);

}  // namespace config
