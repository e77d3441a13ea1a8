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

// Whether such a path can also be the value of an option. It can't if it contains ";", "=" or
// "[ ", which the reader would obey, or the mark of the front-end's own files.
bool IsWritableValue(std::string_view path);

// Whether a section and a play record for a game with this short name can be written so that both
// read back as that game's.
bool IsWritableGame(const std::string& romName);

}  // namespace config
