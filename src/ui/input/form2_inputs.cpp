// The Input page: the table of inputs, and the input system that names its devices.
#include "base/quietly.h"
#include "base/text.h"
#include "core/bindings.h"
#include "ui/options/form2.h"

namespace ui {

using namespace Module1;

namespace {

struct SlotRange {
  std::size_t first, last;
};

// By the index of optTypeInputs: BASICS, GUN, RACE, OTHERS.
constexpr SlotRange kGroupSlots[] = {{30, 63}, {110, 127}, {64, 81}, {82, 109}};
constexpr int kGun = 1;
constexpr int kOthers = 3;

}  // namespace

void Form2::WireInputs() {
  for (const auto* item : {"DirectInput", "XInput", "Raw Input"}) cmbInputType.add(item);
  cmbInputType.onClick = [this] { cmbInputType_Click(); };
  lblAdvOpts.makeLink();
  lblLoadDefaults.makeLink();
  lblAdvOpts.onClick = [this] { lblAdvOpts_Click(); };
  lblLoadDefaults.onClick = [this] { lblLoadDefaults_Click(); };
  optTypeInputs[0].select();
  optPlayer[0].select();
  for (auto& group : optTypeInputs) group.onClick = [this] { FillInputLists(); };
  for (auto& player : optPlayer) player.onClick = [this] { FillInputLists(); };
  for (int column = 0; column < kColumns; ++column) {
    auto& list = lstInput[column];
    if (column + 1 < kColumns) list.hideScrollBar();
    list.onClick = [this, column] { lstInput_Click(column); };
    list.onScroll = [this, column] { lstInput_Scroll(column); };
    list.onDblClick = [this, column] { lstInput_DblClick(column); };
    list.onKeyDown = [this, column](int keyCode) { lstInput_KeyDown(column, keyCode); };
  }
}

void Form2::FillInputLists() {
  for (auto& list : lstInput) list.clear();
  int group = 0;
  while (group < kOthers && !optTypeInputs[group].selected()) ++group;
  const int player = optPlayer[0].selected() ? 0 : 1;
  for (auto slot = kGroupSlots[group].first; slot <= kGroupSlots[group].last; ++slot) {
    const auto& option = Profiles[0].Slots[slot];
    if (option.Kind != player) continue;
    AddInputRow(base::ReplaceIgnoringCase(option.Name, "Input", ""), static_cast<int>(slot),
                core::CellsOf(EffectiveValues[slot]));
  }
  if (group == kGun)
    AddInputRow("Show Crosshairs", core::kCrosshairsSlot,
                {EffectiveValues[core::kCrosshairsSlot], {}, {}});
  for (auto& list : lstInput) list.setTopRow(0);
}

void Form2::AddInputRow(const std::string& name, int slot,
                        const std::array<std::string, 3>& cells) {
  lstInput[0].setItemData(lstInput[0].add(name), slot);
  for (int column = 1; column < kColumns; ++column) {
    const int row = lstInput[column].add(cells[static_cast<std::size_t>(column) - 1]);
    lstInput[column].describe(row, name);
  }
}

void Form2::cmbInputType_Click() {
  const int system = cmbInputType.selectedRow();
  // One game's options leave the bindings of all games alone.
  if (isGlobal()) {
    if (system == core::kRawInput)
      ApplyRawInputNames();
    else
      ClearRawInputNames();
  }
  Profiles[0].InputMethod = static_cast<unsigned char>(system);
  FillInputLists();
}

void Form2::ApplyRawInputNames() {
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    EffectiveValues[slot] =
        core::WithDeviceNumbers(EffectiveValues[slot], Profiles[0].Slots[slot].Kind + 1);
}

void Form2::ClearRawInputNames() {
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    EffectiveValues[slot] = core::WithoutDeviceNumbers(EffectiveValues[slot]);
}

}  // namespace ui
