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
// characters, backslash and asterisk, which separate names and paths there on every system.
bool IsWritableName(std::string_view name);

// Decoded text whose lines, which end at CR or CR LF in `bytes`, each end in CR LF.
std::string DecodeLines(std::string_view bytes);

}  // namespace platform
