// The code page: decoding gives UTF-8 and loses nothing; encoding loses only what can't be told
// apart.
#include "platform/code_page.h"

#include "support.h"

void fuzz::Examine(std::string_view bytes) {
  const auto text = platform::DecodeCodePage(bytes);
  Require(IsUtf8(text), "decoded text is UTF-8");
  Require(platform::EncodeCodePage(text) == bytes, "encoding gives the bytes back");
  const auto lines = platform::DecodeLines(bytes);
  Require(lines.empty() == bytes.empty() && (lines.empty() || lines.ends_with("\r\n")),
          "each line ends");

  // The bytes as a text of the program's own, such as a folder that the user chose.
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (IsUtf8(bytes) && bytes.find(kMark) == bytes.npos)
    Require(platform::DecodeCodePage(platform::EncodeCodePage(bytes)) == bytes,
            "a text comes back");
}
