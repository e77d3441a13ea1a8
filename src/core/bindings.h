// The text of an input's value: tokens joined by "," inside double quotes, "NONE" for no binding,
// or a bare number. Tokens are never validated.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace core {

inline constexpr std::size_t kBindingColumns = 3;
using BindingCells = std::array<std::string, kBindingColumns>;

inline constexpr std::string_view kNoBinding = "\"NONE\"";

// The first three tokens of a value, for show: without quotes, an unbound one empty.
BindingCells CellsOf(std::string_view value);

// The value that the cells make; empty cells close up.
std::string ValueOf(const BindingCells& cells);

// True for what a plain conversion to a number accepts.
bool IsNumeric(std::string_view cell);

// Raw Input tells keyboards and mice apart: keyboard 1 for all, the player's own mouse.
std::string WithDeviceNumbers(std::string_view value, int player);
std::string WithoutDeviceNumbers(std::string_view value);

}  // namespace core
