// Saving and restoring: stages the values of the controls, stores them in the row of the scope,
// writes the file; restoring removes the first row of a game and moves the last row of the table
// there.
#include <string>
#include <utility>
#include <vector>

#include "config/config_writer.h"
#include "config/user_settings.h"
#include "config/writable_names.h"
#include "core/profiles.h"
#include "ui/options/form2.h"
#include "ui/shared/restore_question.h"

namespace ui {

void Form2::cmdSave_Click() {
  const auto staged = StageOptions();
  folders_.StoreFolders();
  StoreOptions(staged);
  InputPage::StoreBindings();
  config::WriteConfigFile();
  config::SaveUserSettings();
  Module1::OptionsSaved = true;
  close();
}

// Fills StagedOptions and returns the slots that the save stores. Controls that the loading did not
// reach and the user did not change are left out, so that their options stay as they are.
std::vector<core::Slot> Form2::StageOptions() {
  std::vector<core::Slot> staged;
  const auto stage = [&](core::Slot slot, std::string value) {
    staged.push_back(slot);
    Module1::StagedOptions[slot] = std::move(value);
  };
  for (const auto& control : options_)
    if (control.hasValueToStore()) stage(control.option, control.staged());
  for (const auto& [option, value] : folders_.StagedShaders()) stage(option, value);
  const auto [width, height] = video_.StagedResolution();
  stage(core::option::XResolution, width);
  stage(core::option::YResolution, height);
  // Only a global save stores what the advanced dialog staged; after another it stays staged.
  for (auto slot = core::kFirstAdvancedSlot; slot < core::kPerGameSlots; ++slot)
    if (isGlobal() && !Module1::StagedOptions[slot].empty()) staged.push_back(slot);
  return staged;
}

void Form2::StoreOptions(const std::vector<core::Slot>& staged) {
  auto* row = RowInHand();
  if (!row) return;
  if (const int system = input_.inputSystem(); system >= 0)
    row->InputMethod = static_cast<unsigned char>(system);
  for (const auto slot : staged) {
    if (Module1::StagedOptions[slot] != Module1::EffectiveValues[slot])
      row->Slots[slot].Value = Module1::StagedOptions[slot];
    else if (!isGlobal())
      row->Slots[slot].Value.clear();
    if (slot >= core::kFirstAdvancedSlot && slot < core::kPerGameSlots)
      Module1::StagedOptions[slot].clear();
  }
}

// The row that the save writes to, added if the game has none. Null for a game that the
// configuration file can't hold.
core::Profile* Form2::RowInHand() {
  if (isGlobal()) return &Module1::Profiles[1];
  const auto& name = game().RomName;
  if (const auto rows = core::RowsOfGame(name); !rows.empty())
    return &Module1::Profiles[rows.back()];
  if (!config::IsWritableGame(name)) return nullptr;
  Module1::Profiles.emplace_back().Name = name;
  return &Module1::Profiles.back();
}

void Form2::lblGameDef_Click() {
  if (!AskForDefaults(*this) || Module1::Profiles.size() <= 2) return;
  if (const auto rows = core::RowsOfGame(game().RomName); !rows.empty()) {
    if (rows.front() + 1 < Module1::Profiles.size())
      Module1::Profiles[rows.front()] = std::move(Module1::Profiles.back());
    Module1::Profiles.pop_back();
  }
  config::WriteConfigFile();
  config::SaveUserSettings();
  close();
}

}  // namespace ui
