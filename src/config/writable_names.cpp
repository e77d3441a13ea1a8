#include "config/writable_names.h"

#include <algorithm>

#include "base/text.h"

namespace config {

bool IsWritableName(std::string_view name) {
  const auto separates = [](char c) {
    return (c >= 0 && c < 0x20) || c == '\\' || c == '*' || c == '"';
  };
  return base::IsUtf8(name) && std::ranges::none_of(name, separates);
}

bool IsWritableValue(std::string_view path) {
  return path.find_first_of(";=") == std::string_view::npos &&
         path.find("[ ") == std::string_view::npos;
}

}  // namespace config
