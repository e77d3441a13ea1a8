// The code page: decoding gives UTF-8, and encoding and decoding a text gives the same text.
#include "platform/code_page.h"

#include "support.h"

void fuzz::Examine(std::string_view bytes) {
  const auto comesBack = [](std::string_view text) {
    Require(platform::DecodeCodePage(platform::EncodeCodePage(text)) == text, "a text comes back");
  };
  const auto text = platform::DecodeCodePage(bytes);
  Require(IsUtf8(text), "decoded text is UTF-8");
  const auto lines = platform::DecodeLines(bytes);
  Require(lines.starts_with(text) && (lines.empty() || lines.ends_with("\r\n")), "each line ends");
  const bool hasForeignLines = bytes.find('\r') == bytes.npos && bytes.find('\n') != bytes.npos;
  Require(!hasForeignLines || base::ReplaceIgnoringCase(text, "\r\n", "").find('\n') == text.npos,
          "another system's lines end");
  comesBack(text);
  comesBack(lines);

  // The bytes as a text of the program's own, such as a folder that the user chose.
  if (IsUtf8(bytes) && bytes.find_first_of("\r\n") == bytes.npos) comesBack(bytes);
}
