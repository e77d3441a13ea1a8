// The single-byte code page of the configuration file, Windows-1252. A line that holds a character
// outside it stands in the file as UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// Bytes to UTF-8 and back, line by line; encoding what was decoded gives the bytes back.
std::string DecodeCodePage(std::string_view bytes);
std::string EncodeCodePage(std::string_view text);

// Decoded text whose lines, which end at CR or CR LF in `bytes`, each end in CR LF.
std::string DecodeLines(std::string_view bytes);

}  // namespace platform
