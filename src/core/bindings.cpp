#include "core/bindings.h"

#include <algorithm>

#include "base/text.h"

namespace core {

using base::ReplaceIgnoringCase;

BindingCells CellsOf(std::string_view value) {
  const auto plain = ReplaceIgnoringCase(ReplaceIgnoringCase(value, "\"", ""), "NONE", "");
  const auto tokens = base::Split(plain, ",");
  BindingCells cells;
  std::copy_n(tokens.begin(), std::min(tokens.size(), cells.size()), cells.begin());
  return cells;
}

std::string ValueOf(const BindingCells& cells) {
  std::string tokens;
  for (const auto& cell : cells) {
    if (cell.empty()) continue;
    if (!tokens.empty()) tokens += ',';
    tokens += cell;
  }
  return tokens.empty() ? std::string(kNoBinding) : '"' + tokens + '"';
}

bool IsNumeric(std::string_view cell) { return base::ToNumber(cell).has_value(); }

std::string WithDeviceNumbers(std::string_view value, int player) {
  return ReplaceIgnoringCase(ReplaceIgnoringCase(value, "KEY_", "KEY1_"), "MOUSE_",
                             "MOUSE" + std::to_string(player) + "_");
}

std::string WithoutDeviceNumbers(std::string_view value) {
  std::string result(value);
  for (const std::string_view device : {"KEY", "MOUSE"})
    for (const std::string_view number : {"1_", "2_"})
      result = ReplaceIgnoringCase(result, std::string(device) + std::string(number),
                                   std::string(device) + "_");
  return result;
}

}  // namespace core
