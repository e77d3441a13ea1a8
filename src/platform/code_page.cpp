#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace platform {
namespace {

// Characters of the bytes 0x80 to 0x9F; all other bytes stand for the character of their number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void AppendUtf8(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0U | code >> 6U);
    text += static_cast<char>(0x80U | (code & 0x3FU));
  } else {
    text += static_cast<char>(0xE0U | code >> 12U);
    text += static_cast<char>(0x80U | (code >> 6U & 0x3FU));
    text += static_cast<char>(0x80U | (code & 0x3FU));
  }
}

// The next character of well-formed UTF-8, taken off the front; nothing for malformed text.
std::optional<char32_t> TakeChar(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || text.size() < length) return {};
  char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return {};
    code = code << 6U | (byte & 0x3FU);
  }
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  if (overlong || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF) return {};
  text.remove_prefix(length);
  return code;
}

std::optional<char> ByteOf(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto* const at = std::find(kHighControls.begin(), kHighControls.end(), code);
  if (at == kHighControls.end()) return {};
  return static_cast<char>(0x80 + (at - kHighControls.begin()));
}

// Well-formed UTF-8 with a character that the code page lacks can only be meant as UTF-8.
bool IsForeignUtf8(std::string_view line) {
  bool foreign = false;
  while (!line.empty()) {
    const auto code = TakeChar(line);
    if (!code) return false;
    foreign = foreign || !ByteOf(*code);
  }
  return foreign;
}

// Nothing for a line with a character outside the code page.
std::optional<std::string> ToCodePage(std::string_view line) {
  std::string bytes;
  while (!line.empty()) {
    const auto code = TakeChar(line);
    const auto byte = code ? ByteOf(*code) : std::nullopt;
    if (!byte) return {};
    bytes += *byte;
  }
  return bytes;
}

// The code page has some lines whose bytes would read as UTF-8, such as "É®": they stand as UTF-8
// with this mark behind them.
constexpr std::string_view kMark = "\xEF\xBB\xBF";

bool NeedsMark(std::string_view line) {
  const auto bytes = ToCodePage(line);
  return bytes && IsForeignUtf8(*bytes);
}

void AppendDecodedLine(std::string& text, std::string_view line) {
  if (line.ends_with(kMark) && NeedsMark(line.substr(0, line.size() - kMark.size()))) {
    text += line.substr(0, line.size() - kMark.size());
    return;
  }
  if (IsAscii(line) || IsForeignUtf8(line)) {
    text += line;
    return;
  }
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(text, byte >= 0x80 && byte <= 0x9F ? kHighControls.at(byte - 0x80U) : byte);
  }
}

void AppendEncodedLine(std::string& bytes, std::string_view line) {
  if (IsAscii(line)) {
    bytes += line;
  } else if (const auto encoded = ToCodePage(line); encoded && !IsForeignUtf8(*encoded)) {
    bytes += *encoded;
  } else {
    bytes += line;
    if (encoded) bytes += kMark;
  }
}

// Hands each line with its ending (CR, LF or both, or none at the end) to the function.
template <class Function>
void ForEachLine(std::string_view text, std::string_view endings, const Function& function) {
  while (!text.empty()) {
    const auto end = std::min(text.find_first_of(endings), text.size());
    auto next = std::min(end + 1, text.size());
    if (end < text.size() && text[end] == '\r' && next < text.size() && text[next] == '\n') ++next;
    function(text.substr(0, end), text.substr(end, next - end));
    text.remove_prefix(next);
  }
}

}  // namespace

std::string DecodeCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  ForEachLine(bytes, "\r\n", [&](std::string_view line, std::string_view ending) {
    AppendDecodedLine(text, line);
    text += ending;
  });
  return text;
}

std::string EncodeCodePage(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  ForEachLine(text, "\r\n", [&](std::string_view line, std::string_view ending) {
    AppendEncodedLine(bytes, line);
    bytes += ending;
  });
  return bytes;
}

std::string DecodeLines(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + 2);
  ForEachLine(bytes, "\r", [&](std::string_view line, std::string_view) {
    if (line.find('\n') == std::string_view::npos)
      AppendDecodedLine(text, line);
    else
      text += DecodeCodePage(line);
    text += "\r\n";
  });
  return text;
}

}  // namespace platform
