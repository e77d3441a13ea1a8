#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

#include "base/failure.h"

namespace base {
namespace {

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

constexpr bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

// The lower-case form of a character that takes two bytes in UTF-8.
unsigned FoldTwoByte(unsigned code) {
  if ((code >= 0xC0 && code <= 0xDE && code != 0xD7) || (code >= 0x391 && code <= 0x3A9) ||
      (code >= 0x410 && code <= 0x42F))
    return code + 32;
  if (code >= 0x400 && code <= 0x40F) return code + 80;
  const bool evenIsUpper = (code >= 0x100 && code <= 0x137 && code != 0x130) ||
                           (code >= 0x14A && code <= 0x177) || (code >= 0x460 && code <= 0x4FF);
  const bool oddIsUpper = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
  if (evenIsUpper) return code | 1U;
  if (oddIsUpper) return code + (code & 1U);
  return code;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> pieces;
  if (text.empty()) return pieces;
  for (;;) {
    const auto end = text.find(separator);
    pieces.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + separator.size());
  }
}

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  for (std::size_t i = 0; i < folded.size(); ++i) {
    const auto byte = static_cast<unsigned char>(folded[i]);
    if (byte < 0x80) {
      folded[i] = Lower(folded[i]);
    } else if (byte >= 0xC2 && byte <= 0xDF && i + 1 < folded.size() &&
               IsContinuation(folded[i + 1])) {
      const unsigned code =
          FoldTwoByte((byte & 0x1FU) << 6U | (static_cast<unsigned char>(folded[i + 1]) & 0x3FU));
      folded[i] = static_cast<char>(0xC0U | code >> 6U);
      folded[++i] = static_cast<char>(0x80U | (code & 0x3FU));
    }
  }
  return folded;
}

std::vector<std::string> SortedByFoldedCase(std::vector<std::string> texts) {
  std::vector<std::pair<std::string, std::string>> rows;  // folded, as spelled
  rows.reserve(texts.size());
  for (auto& text : texts) {
    auto folded = FoldCase(text);
    rows.emplace_back(std::move(folded), std::move(text));
  }
  std::sort(rows.begin(), rows.end());
  for (std::size_t row = 0; row < rows.size(); ++row) texts[row] = std::move(rows[row].second);
  return texts;
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted) {
  const std::string_view::const_iterator at =
      std::search(text.begin(), text.end(), wanted.begin(), wanted.end(),
                  [](char a, char b) { return Lower(a) == Lower(b); });
  if (at == text.end() && !wanted.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(at - text.begin());
}

bool ContainsIgnoringCase(std::string_view text, std::string_view wanted) {
  return FindIgnoringCase(text, wanted) != std::string_view::npos;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Lower(x) == Lower(y); });
}

std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement) {
  std::string result;
  for (;;) {
    const auto at = FindIgnoringCase(text, wanted);
    result += text.substr(0, at);
    if (at == std::string_view::npos) return result;
    result += replacement;
    text.remove_prefix(at + wanted.size());
  }
}

std::size_t OffsetOfChar(std::string_view text, std::size_t chars) {
  std::size_t offset = 0;
  for (; chars > 0 && offset < text.size(); --chars) {
    ++offset;
    while (offset < text.size() && IsContinuation(text[offset])) ++offset;
  }
  return offset;
}

std::size_t CharCount(std::string_view text) {
  std::size_t chars = 0;
  for (; !text.empty(); ++chars) text.remove_prefix(OffsetOfChar(text, 1));
  return chars;
}

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

bool IsUtf8(std::string_view text) {
  while (!text.empty())
    if (!TakeChar(text)) return false;
  return true;
}

std::optional<double> ToNumber(std::string_view text) {
  text = Trim(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto digits = text.substr(text.starts_with('-') ? 1 : 0);
  if (digits.find_first_not_of("0123456789.") != std::string_view::npos) return {};
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (end != text.data() + text.size() || error == std::errc::invalid_argument) return {};
  // The number is beyond the range of a double.
  if (error != std::errc()) return text.starts_with('-') ? -HUGE_VAL : HUGE_VAL;
  return number;
}

int ToInteger(std::string_view text) {
  const auto number = ToNumber(text);
  if (!number) throw Failure("not a number");
  const double rounded = std::nearbyint(*number);
  if (rounded < std::numeric_limits<int>::min() || rounded > std::numeric_limits<int>::max())
    throw Failure("number too large");
  return static_cast<int>(rounded);
}

unsigned char ToByte(std::string_view text) {
  text = Trim(text);
  unsigned char number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || error != std::errc() || end != text.data() + text.size())
    throw Failure("not a number from 0 to 255");
  return number;
}

std::string PaddedNumber(long long number, int digits) {
  auto text = std::to_string(number);
  if (const auto wanted = static_cast<std::size_t>(digits); text.size() < wanted)
    text.insert(0, wanted - text.size(), '0');
  return text;
}

std::string HoursMinutesSeconds(long long seconds) {
  const long long hours = seconds / 3600;
  const long long minutes = (seconds - hours * 3600) / 60;
  return std::to_string(hours) + ":" + PaddedNumber(minutes, 2) + ":" +
         PaddedNumber(seconds - hours * 3600 - minutes * 60, 2);
}

}  // namespace base
