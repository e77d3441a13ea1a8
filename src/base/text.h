// Texts are UTF-8 in std::string. Lengths and positions named "chars" count characters, not bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace base {

inline constexpr std::string_view kLineEnd = "\r\n";

// Blanks (spaces only) removed from both ends.
std::string_view Trim(std::string_view text);

// The pieces between separators; an empty text gives no piece at all.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

// Lower-case form for comparisons: ASCII, Latin, Greek and Cyrillic letters.
std::string FoldCase(std::string_view text);

std::vector<std::string> SortedIgnoringCase(std::vector<std::string> texts);

// Byte position of `wanted`, or npos. Letter case of ASCII letters is ignored.
std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted);
bool ContainsIgnoringCase(std::string_view text, std::string_view wanted);
bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Every occurrence of `wanted` replaced; letter case of ASCII letters is ignored.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement);

// Byte offset behind the first `chars` characters, at most the text's length.
std::size_t OffsetOfChar(std::string_view text, std::size_t chars);

std::size_t CharCount(std::string_view text);

// Takes the first character off a text that is not empty. Nothing, and the text as it was, where it
// does not begin with well-formed UTF-8.
std::optional<char32_t> TakeChar(std::string_view& text);

bool IsUtf8(std::string_view text);

// A plain decimal number, blanks around it allowed: sign, digits, fraction. Nothing for other text.
std::optional<double> ToNumber(std::string_view text);

// ToNumber rounded to an integer. Fails for no number and outside 32 bits.
int ToInteger(std::string_view text);

// Decimal digits with blanks around them as a number from 0 to 255; fails for anything else.
unsigned char ToByte(std::string_view text);

// `number` in decimal with at least `digits` digits.
std::string PaddedNumber(long long number, int digits);

// Seconds as hours, ":", minutes, ":", seconds; the hours unpadded and without upper limit.
std::string HoursMinutesSeconds(long long seconds);

}  // namespace base
