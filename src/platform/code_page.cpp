#include "platform/code_page.h"

#include <algorithm>

#include "base/text.h"

namespace platform {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

bool ReadsAsUtf8(std::string_view line) {
  const bool isAscii = std::all_of(line.begin(), line.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return !isAscii && base::IsUtf8(line);
}

}  // namespace

std::string DecodeCodePage(std::string_view bytes) {
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  // A text without any CR comes from a system whose line end is LF.
  const char lineEnd = bytes.find('\r') == std::string_view::npos ? '\n' : '\r';
  std::string text;
  text.reserve(bytes.size());
  for (;;) {
    const auto end = bytes.find(lineEnd);
    const auto line = bytes.substr(0, end);
    text += ReadsAsUtf8(line) ? std::string(line) : FromSystemPage(line);
    if (end == std::string_view::npos) return text;
    text += base::kLineEnd;
    bytes.remove_prefix(end + (bytes.substr(end).starts_with(base::kLineEnd) ? 2 : 1));
  }
}

std::string DecodeLines(std::string_view bytes) {
  auto text = DecodeCodePage(bytes);
  if (!text.empty() && !text.ends_with(base::kLineEnd)) text += base::kLineEnd;
  return text;
}

std::string EncodeCodePage(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (;;) {
    const auto end = text.find(base::kLineEnd);
    const auto line = text.substr(0, end);
    const auto encoded = ToSystemPage(line);
    bytes += encoded && !ReadsAsUtf8(*encoded) ? *encoded : line;
    if (end == std::string_view::npos) break;
    bytes += base::kLineEnd;
    text.remove_prefix(end + base::kLineEnd.size());
  }
  // A reader drops one byte order mark, so a text that begins with one needs a second.
  if (bytes.starts_with(kMark)) bytes.insert(0, kMark);
  return bytes;
}

}  // namespace platform
