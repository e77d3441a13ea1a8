// The single-byte code page of the configuration file, Windows-1252. A line that holds a character
// outside it stands in the file as UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// Bytes to UTF-8 and back, line by line; encoding what was decoded gives the bytes back.
std::string DecodeCodePage(std::string_view bytes);
std::string EncodeCodePage(std::string_view text);

// Whether a file or folder of this name can be named in such a file: UTF-8 without control
// characters, backslash, asterisk and double quote, which separate or enclose names and paths there
// on every system.
bool IsWritableName(std::string_view name);

// Whether a path of such names can also be an option's value there: the rest of the line, or of the
// file, would be read as something else behind ";", a second "=" and "[ ".
bool IsWritableValue(std::string_view path);

// Decoded text whose lines, which end at CR or CR LF in `bytes`, each end in CR LF.
std::string DecodeLines(std::string_view bytes);

}  // namespace platform
