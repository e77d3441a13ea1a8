#include "ui/input/input_page.h"

#include <utility>

#include "base/text.h"
#include "core/profiles.h"
#include "i18n/message_catalogue.h"
#include "ui/advanced/frm_ff.h"
#include "ui/shared/restore_question.h"

namespace ui {

using i18n::Message;
using i18n::Msg;

namespace {

struct Group {
  core::Slot first, last;
  Message caption;
};

// Indexed like optTypeInputs.
constexpr Group kGroupsOfInputs[] = {{30, 63, Message::Basics},
                                     {110, 127, Message::Gun},
                                     {64, 81, Message::Race},
                                     {82, 109, Message::Others}};
constexpr int kGunGroup = 1;
constexpr int kLastGroup = 3;
static_assert(kGroupsOfInputs[0].first == core::kFirstInputSlot);
static_assert(kGroupsOfInputs[kGunGroup].last == core::kSlotCount - 1);

}  // namespace

InputPage::InputPage(forms::Frame& frame, forms::Form& form, const forms::Form& main)
    : frame_(frame), form_(form), main_(main) {
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
    if (column > 0) list.descriptionOf = [this](int row) { return lstInput[0].text(row); };
    if (column + 1 < kColumns) list.hideScrollBar();
    list.onClick = [this, column] { lstInput_Click(column); };
    list.onScroll = [this, column] { lstInput_Scroll(column); };
    list.onDblClick = [this, column] { lstInput_DblClick(column); };
    list.takeF2();
    list.onDelete = [this, column] { lstInput_Delete(column); };
  }
}

void InputPage::LoadBindings() {
  for (core::Slot slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    Module1::EffectiveValues[slot] = Module1::Profiles[1].Slots[slot].Value;
  const auto crosshairs = core::EffectiveValue(core::option::Crosshairs);
  Module1::EffectiveValues[core::option::Crosshairs] = crosshairs;
}

void InputPage::StoreBindings() {
  for (core::Slot slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    Module1::Profiles[1].Slots[slot].Value = Module1::EffectiveValues[slot];
  // In the scope of a game, the value under edit may be that game's own.
  if (Module1::OptionScope == core::kGlobalScope)
    Module1::Profiles[1].Slots[core::option::Crosshairs].Value =
        Module1::EffectiveValues[core::option::Crosshairs];
}

void InputPage::FillInputLists() {
  for (auto& list : lstInput) list.clear();
  int group = 0;
  while (group < kLastGroup && !optTypeInputs[group].selected()) ++group;
  const int player = optPlayer[0].selected() ? 0 : 1;
  for (auto slot = kGroupsOfInputs[group].first; slot <= kGroupsOfInputs[group].last; ++slot) {
    const auto& option = Module1::Profiles[0].Slots[slot];
    if (option.Kind != player) continue;
    AddInputRow(base::ReplaceIgnoringCase(option.Name, "Input", ""), slot,
                core::CellsOf(Module1::EffectiveValues[slot]));
  }
  if (group == kGunGroup)
    AddInputRow("Show Crosshairs", core::option::Crosshairs,
                {Module1::EffectiveValues[core::option::Crosshairs], {}, {}});
  for (auto& list : lstInput) list.setTopRow(0);
}

void InputPage::AddInputRow(const std::string& name, core::Slot slot,
                            const core::BindingCells& cells) {
  lstInput[0].setItemData(lstInput[0].add(name), slot);
  for (int column = 1; column < kColumns; ++column)
    lstInput[column].add(cells[static_cast<std::size_t>(column) - 1]);
}

void InputPage::cmbInputType_Click() {
  // The bindings are global, so a dialog for one game must not rename them.
  if (Module1::OptionScope == core::kGlobalScope) {
    if (inputSystem() == core::kRawInput)
      ApplyRawInputNames();
    else
      ClearRawInputNames();
  }
  Module1::Profiles[0].InputMethod = static_cast<unsigned char>(inputSystem());
  FillInputLists();
}

void InputPage::ApplyRawInputNames() {
  for (core::Slot slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    Module1::EffectiveValues[slot] = core::WithDeviceNumbers(
        Module1::EffectiveValues[slot], Module1::Profiles[0].Slots[slot].Kind + 1);
}

void InputPage::ClearRawInputNames() {
  for (core::Slot slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    Module1::EffectiveValues[slot] = core::WithoutDeviceNumbers(Module1::EffectiveValues[slot]);
}

void InputPage::lblLoadDefaults_Click() {
  if (!AskForDefaults(form_)) return;
  core::ResetInputsToDefaults(Module1::Profiles);
  LoadBindings();
  if (inputSystem() == core::kRawInput) ApplyRawInputNames();
  FillInputLists();
}

void InputPage::lblAdvOpts_Click() {
  if (inputSystem() < 0) return;
  Module1::AdvancedInputSystem = static_cast<unsigned char>(inputSystem());
  frmFF advanced;
  advanced.centreOver(main_);
  advanced.showModal(form_);
}

void InputPage::ApplyLanguage() {
  for (int group = 0; group < kGroups; ++group)
    optTypeInputs[group].setCaption(Msg(kGroupsOfInputs[group].caption));
  Label11.setCaption(Msg(Message::Player));
  Label8[0].setCaption(Msg(Message::Action));
  for (int column = 1; column < kColumns; ++column)
    Label8[column].setCaption(Msg(Message::Button) + std::to_string(column));
  lblLoadDefaults.setCaption(Msg(Message::RestoreInputs));
  lblAdvOpts.setCaption(Msg(Message::AdvancedOptions));
  for (auto& player : optPlayer)
    player.setAccessibleName(Label11.caption() + " " + player.caption());
  cmbInputType.setAccessibleName(Msg(Message::InputPage));
  for (int column = 0; column < kColumns; ++column) {
    lstInput[column].setAccessibleName(Label8[column].caption());
    lstInput[column].emptyRowName = Msg(Message::EmptyCell);
  }
}

}  // namespace ui
