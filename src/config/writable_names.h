// Which names and paths the configuration file can hold.
#pragma once

#include <string>
#include <string_view>

namespace config {

// Whether the file can hold the name of a file or folder. It can't if the name is no UTF-8,
// contains a control character, backslash, asterisk or double quote, which separate or enclose
// names in the file, or contains the key of a list.
bool IsWritableName(std::string_view name);

// Whether the file can hold every name of a path that begins at a root or drive.
bool IsWritablePath(std::string_view path);

// Whether such a path can also be the value of an option. It can't if it contains ";", "=" or "[ ",
// behind which the reader would take the rest for something else, or the banner, for which it would
// take the whole line.
bool IsWritableValue(std::string_view path);

// Whether the file can hold a section and a play record for a game of this short name, so that both
// read back as that game's.
bool IsWritableGame(const std::string& romName);

}  // namespace config
