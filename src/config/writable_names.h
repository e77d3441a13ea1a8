// What the configuration file can hold of names and paths.
#pragma once

#include <string>
#include <string_view>

namespace config {

// Whether a file or folder of this name can be named in the file: UTF-8 without control characters,
// backslash, asterisk and double quote, which separate or enclose names and paths there on every
// system, and without the key of another list.
bool IsWritableName(std::string_view name);

// Whether this is so of all names on a path from the root or a drive.
bool IsWritablePath(std::string_view path);

// Whether a path of such names can also be an option's value there: the rest of the line, or of the
// file, would be read as something else behind ";", a second "=" and "[ ", and the whole line with
// the program's name in it.
bool IsWritableValue(std::string_view path);

// Whether a game of this short name can have a section and a play record of its own: they must read
// back as that game's.
bool IsWritableGame(const std::string& romName);

}  // namespace config
