// Reads any bytes as the configuration file and writes it. Reading that text and writing again must
// give the same text, but for cleared bindings. The first line of the bytes is also the name of a
// game whose play is counted before the first write, and the binding of an input of the emulator.
#include <algorithm>

#include "base/error_boundary.h"
#include "base/text.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "config/writable_names.h"
#include "core/bindings.h"
#include "platform/code_page.h"
#include "startup/startup.h"
#include "support.h"

namespace {

using base::ContainsIgnoringCase;
using fuzz::Require;

// Joining cells and splitting the value gives the same cells.
void CheckCells(core::BindingCells cells) {
  const auto value = core::ValueOf(cells);
  Require(value.size() > 2 && value.front() == '"' && value.find('"', 1) == value.size() - 1,
          "a value is quoted");
  // Splitting removes "NONE" inside a token. No token of the emulator contains it.
  const auto hasNone = [](auto& cell) { return ContainsIgnoringCase(cell, "NONE"); };
  if (std::any_of(cells.begin(), cells.end(), hasNone)) return;
  std::stable_partition(cells.begin(), cells.end(), [](auto& cell) { return !cell.empty(); });
  Require(core::CellsOf(value) == cells, "the cells come back without gaps");
}

// Numbering the devices can be repeated and undone.
void CheckNumbering(std::string_view value, int player) {
  const auto numbered = core::WithDeviceNumbers(value, player);
  const auto plain = core::WithoutDeviceNumbers(value);
  for (const auto* device : {"KEY1_", "KEY2_", "MOUSE1_", "MOUSE2_"})
    Require(!ContainsIgnoringCase(plain, device), "no device has a number");
  Require(core::WithDeviceNumbers(numbered, 3 - player) == numbered,
          "every device is numbered, and once");
  Require(base::FoldCase(core::WithoutDeviceNumbers(numbered)) == base::FoldCase(plain),
          "numbering can be taken back");
}

void CheckBinding(std::string_view value) {
  auto cells = core::CellsOf(value);
  for (const auto* cell : {"", "JOY1_BUTTON5"}) {
    Require(cells[0].find_first_of("\",") == cells[0].npos, "a cell is one token");
    CheckCells(cells);
    cells[1] = cell;
    CheckCells(cells);
  }
  for (const int player : {1, 2}) CheckNumbering(value, player);
}

config::Configuration Start() {
  auto start = config::Defaults(Module1::AppFolder);
  // Only the first four inputs keep their default bindings, so that the written text is short.
  for (auto slot = core::kFirstInputSlot + 4; slot < core::kSlotCount; ++slot)
    start.Profiles[0].Slots[slot].Value = core::kNoBinding;
  return start;
}

// Reads the bytes into the shared state.
void Read(std::string_view bytes) {
  static const auto start = Start();
  auto read = start;
  config::ParseConfigText(platform::DecodeLines(bytes), read);
  Require(read.GameListPref <= 1, "the filter is set");
  for (const auto& profile : read.Profiles) Require(base::IsUtf8(profile.Name), "names are UTF-8");
  config::Adopt(std::move(read));
}

std::string Written() { return platform::EncodeCodePage(config::ConfigText()); }

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  Read(bytes);
  auto& profiles = Module1::Profiles;
  if (profiles.size() > core::kMaxProfiles)
    return Require(!base::RunGuarded([] { config::ConfigText(); }),
                   "too many rows are not written");
  const auto text = platform::DecodeLines(bytes);
  const auto game = text.substr(0, text.find(base::kLineEnd));
  CheckBinding(game);
  const bool isCounted = config::IsWritableGame(game);
  if (isCounted) Module1::PlayLog[0] = {game, "1", "30"};
  // Odd headers among the bytes give names whose written header is read as another name.
  for (auto row = profiles.begin() + 2; row != profiles.end(); ++row)
    if (row->Name == "Global" || row->Name.starts_with("]") ||
        row->Name.find(" ]") != row->Name.npos)
      row->Name = "odd";
  const auto rows = profiles.size();
  const auto written = Written();
  bool isCleared = false;
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    isCleared |= profiles[1].Slots[slot].Value == core::kNoBinding &&
                 profiles[0].Slots[slot].Value != core::kNoBinding;
  Read(written);
  Require(!isCounted || Module1::PlayLog[0].GameId == game, "a play that was counted is kept");
  Require(profiles.size() == rows, "each row is kept");
  const auto rewritten = Written();
  // A cleared binding is not written, so the next read leaves it empty, and then the default
  // counts.
  Require(isCleared == (rewritten != written), "only a cleared binding changes the file");
  if (!isCleared) return;
  Read(rewritten);
  Require(Written() == rewritten, "the next write changes nothing");
}
