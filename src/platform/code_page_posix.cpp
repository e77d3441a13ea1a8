#include <algorithm>
#include <array>

#include "base/text.h"
#include "platform/code_page.h"

namespace platform {
namespace {

// The characters of bytes 0x80 to 0x9F. Every other byte is the character with the same number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

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

}  // namespace

std::string FromSystemPage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(text, byte >= 0x80 && byte <= 0x9F ? kHighControls.at(byte - 0x80U) : byte);
  }
  return text;
}

std::optional<std::string> ToSystemPage(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const auto code = base::TakeChar(text);
    if (!code) return {};
    if (*code < 0x80 || (*code >= 0xA0 && *code <= 0xFF)) {
      bytes += static_cast<char>(*code);
      continue;
    }
    const auto* const at = std::find(kHighControls.begin(), kHighControls.end(), *code);
    if (at == kHighControls.end()) return {};
    bytes += static_cast<char>(0x80 + (at - kHighControls.begin()));
  }
  return bytes;
}

}  // namespace platform
