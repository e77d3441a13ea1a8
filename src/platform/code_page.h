// The encoding of files and of other programs' output, line by line. A line is UTF-8 if it is
// well-formed UTF-8 and has a character beyond ASCII; any other line is in the system's code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// Converts to UTF-8 with CR LF as line end. In `bytes`, lines end at CR or CR LF, or at LF if there
// is no CR in the whole text. A byte order mark at the start is dropped. No line end is added to
// the last line.
std::string DecodeCodePage(std::string_view bytes);

// DecodeCodePage, with a line end after the last line too.
std::string DecodeLines(std::string_view bytes);

// Encodes lines that end in CR LF so that they decode to the same text. A line is written in the
// code page, or as UTF-8 if the code page lacks one of its characters or the bytes would read as
// UTF-8.
std::string EncodeCodePage(std::string_view text);

// Convert one line between the system's code page and UTF-8. On a system without code pages it is
// Windows-1252. ToSystemPage returns nothing if the code page lacks a character.
std::string FromSystemPage(std::string_view bytes);
std::optional<std::string> ToSystemPage(std::string_view text);

}  // namespace platform
