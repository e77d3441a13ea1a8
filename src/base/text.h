// Texts are UTF-8 in std::string. Lengths and positions named "chars" count characters, not bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace base {

inline constexpr std::string_view kLineEnd = "\r\n";

// The text without the spaces at both ends. Other white space stays.
std::string_view Trim(std::string_view text);

// The pieces between the separators. An empty text has no pieces.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

// The text with ASCII and most Latin, Greek and Cyrillic letters in lower case, for comparisons.
std::string FoldCase(std::string_view text);

std::vector<std::string> SortedByFoldedCase(std::vector<std::string> texts);

// These four ignore the case of ASCII letters only.

// The byte position of `wanted`, or npos.
std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted);
bool ContainsIgnoringCase(std::string_view text, std::string_view wanted);
bool EqualIgnoringCase(std::string_view a, std::string_view b);
// Replaces every occurrence of `wanted`.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement);

// The number of bytes that the first `chars` characters take, at most the text's length.
std::size_t OffsetOfChar(std::string_view text, std::size_t chars);

std::size_t CharCount(std::string_view text);

// Removes the first character from a text that is not empty and returns it. Returns nothing and
// leaves the text alone if it does not begin with well-formed UTF-8.
std::optional<char32_t> TakeChar(std::string_view& text);

bool IsUtf8(std::string_view text);

// The value of a plain decimal number: sign, digits, fraction, with spaces around it allowed.
// Nothing for any other text.
std::optional<double> ToNumber(std::string_view text);

// ToNumber, rounded to an integer. Throws if the text is no number or the value exceeds 32 bits.
int ToInteger(std::string_view text);

// A number from 0 to 255 in decimal digits, with spaces around it allowed. Throws for other text.
unsigned char ToByte(std::string_view text);

// `number` in decimal with at least `digits` digits.
std::string PaddedNumber(long long number, int digits);

// Seconds as "h:mm:ss". The hours are not padded and have no upper limit.
std::string HoursMinutesSeconds(long long seconds);

}  // namespace base
