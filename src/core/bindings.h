// The value of an input is a text: tokens joined by "," inside double quotes, "NONE" in quotes for
// no binding, or a number without quotes. Tokens are not validated.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace core {

inline constexpr std::size_t kBindingColumns = 3;
using BindingCells = std::array<std::string, kBindingColumns>;

inline constexpr std::string_view kNoBinding = "\"NONE\"";

// The first three tokens of a value as the input table shows them. An input without a binding has
// empty cells.
BindingCells CellsOf(std::string_view value);

// Joins the tokens of the cells that are not empty into a value in quotes. Not for a number.
std::string ValueOf(const BindingCells& cells);

// Whether the cell holds a number (an input that is on or off) instead of a token.
bool IsNumeric(std::string_view cell);

// Add or remove the numbers that Raw Input gives to keyboards and mice. All players use keyboard 1,
// and each player the mouse of the same number.
std::string WithDeviceNumbers(std::string_view value, int player);
std::string WithoutDeviceNumbers(std::string_view value);

}  // namespace core
