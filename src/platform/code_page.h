// Text from and for outside. A line of well-formed UTF-8 with a character beyond ASCII is UTF-8,
// any other is in the system's code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// UTF-8 whose lines end in CR LF. In `bytes` a line ends at CR or CR LF, where there is no CR at
// all at LF. A UTF-8 mark at the start is dropped. The last line stays without an end if it has
// none.
std::string DecodeCodePage(std::string_view bytes);

// The same, and the last line ends too.
std::string DecodeLines(std::string_view bytes);

// Lines that end in CR LF, as bytes that decode to the same text: in the code page where that can
// spell them and they would not read as UTF-8, else as UTF-8.
std::string EncodeCodePage(std::string_view text);

// One line in the system's code page, Windows-1252 where the system has none of its own, as UTF-8
// and back. The latter gives nothing for a line with a character outside the code page.
std::string FromSystemPage(std::string_view bytes);
std::optional<std::string> ToSystemPage(std::string_view text);

}  // namespace platform
