#include "text.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace standin {

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

bool SameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Lower, Lower);
}

std::string ToText(const std::filesystem::path& path) {
  const auto text = path.u8string();
  return {text.begin(), text.end()};
}

std::filesystem::path ToPath(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

std::vector<std::string> ReadLines(const std::filesystem::path& file, std::size_t limit) {
  std::ifstream in(file, std::ios::binary);
  std::string text(limit, '\0');
  in.read(text.data(), static_cast<std::streamsize>(limit));
  text.resize(static_cast<std::size_t>(in.gcount()));

  std::vector<std::string> lines;
  std::istringstream cut(text);
  for (std::string line; std::getline(cut, line);) lines.emplace_back(Trim(line));
  return lines;
}

KeyValue SplitKeyValue(std::string_view line) {
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) return {std::string(Trim(line)), {}};
  return {std::string(Trim(line.substr(0, equals))), std::string(Trim(line.substr(equals + 1)))};
}

}  // namespace standin
