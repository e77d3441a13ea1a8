#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

// The text without blanks, tabs and line ends at both ends.
std::string_view Trim(std::string_view text);

// Whether two texts are the same but for the case of ASCII letters.
bool SameName(std::string_view a, std::string_view b);

// Convert between a path and UTF-8.
std::string ToText(const std::filesystem::path& path);
std::filesystem::path ToPath(std::string_view text);

// At most limit bytes of the file's text, cut into trimmed lines; none if it can't be read.
std::vector<std::string> ReadLines(const std::filesystem::path& file, std::size_t limit);

// Cuts "key = value" at its first "=" and trims both; without a "=" the value is empty.
struct KeyValue {
  std::string key;
  std::string value;
};
KeyValue SplitKeyValue(std::string_view line);

}  // namespace standin
