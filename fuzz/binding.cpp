// The value of an input: splitting it into cells and joining them gives the same value, and
// numbering the devices can be repeated and undone.
#include <algorithm>

#include "core/bindings.h"
#include "support.h"

namespace {

using base::ContainsIgnoringCase;
using fuzz::Require;

void CheckRebuilding(core::BindingCells cells) {
  const auto value = core::ValueOf(cells);
  Require(value.size() > 2 && value.front() == '"' && value.find('"', 1) == value.size() - 1,
          "a value is quoted");
  Require(value.find(",,") == value.npos && value.find("\",") == value.npos &&
              value.find(",\"") == value.npos,
          "no token is empty");
  // Splitting removes "NONE" inside a token. No token of the emulator contains it.
  if (std::any_of(cells.begin(), cells.end(),
                  [](auto& cell) { return ContainsIgnoringCase(cell, "NONE"); }))
    return;
  std::stable_partition(cells.begin(), cells.end(), [](auto& cell) { return !cell.empty(); });
  Require(core::CellsOf(value) == cells, "the cells come back without gaps");
}

void CheckNumbering(std::string_view value, int player) {
  const auto numbered = core::WithDeviceNumbers(value, player);
  const auto plain = core::WithoutDeviceNumbers(value);
  Require(!ContainsIgnoringCase(numbered, "KEY_") && !ContainsIgnoringCase(numbered, "MOUSE_"),
          "every device has its number");
  for (const auto* device : {"KEY1_", "KEY2_", "MOUSE1_", "MOUSE2_"})
    Require(!ContainsIgnoringCase(plain, device), "no device has a number");
  Require(core::WithDeviceNumbers(numbered, 3 - player) == numbered, "nothing is numbered twice");
  Require(core::WithoutDeviceNumbers(plain) == plain, "nothing is taken twice");
  Require(base::FoldCase(core::WithoutDeviceNumbers(numbered)) == base::FoldCase(plain),
          "numbering can be taken back");
}

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  if (bytes.empty()) return;
  const auto choice = static_cast<unsigned char>(bytes.front());
  const auto value = bytes.substr(1);
  auto cells = core::CellsOf(value);
  for (const auto& cell : cells)
    Require(cell.find_first_of("\",") == cell.npos, "a cell is one token");
  CheckRebuilding(cells);
  cells.at(choice % cells.size()) = choice < 128 ? "JOY1_BUTTON5" : "";
  CheckRebuilding(cells);
  CheckNumbering(value, 1 + choice % 2);
}
