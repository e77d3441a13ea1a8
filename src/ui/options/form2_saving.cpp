// Saving the dialog: controls into values, values into the right row, the row into the file; and
// dropping the row of a game.
#include <utility>

#include "config/config_writer.h"
#include "config/user_settings.h"
#include "core/option_catalogue.h"
#include "core/profiles.h"
#include "ui/options/form2.h"
#include "ui/options/restoring.h"

namespace ui {

using namespace Module1;

void Form2::cmdSave_Click() {
  StageOptions();
  folders_.StoreFolders();
  StoreOptions();
  InputPage::StoreBindings();
  config::WriteConfigFile();
  config::SaveUserSettings();
  OptionsSaved = true;
  close();
}

void Form2::StageOptions() const {
  for (const auto& control : options_)
    StagedOptions[core::OptionIndex(control.option)] = control.staged();
  folders_.StageShaders();
  const auto [width, height] = video_.StagedResolution();
  StagedOptions[core::OptionIndex("XResolution")] = width;
  StagedOptions[core::OptionIndex("YResolution")] = height;
}

void Form2::StoreOptions() const {
  auto& row = RowInHand();
  if (const int system = input_.inputSystem(); system >= 0)
    row.InputMethod = static_cast<unsigned char>(system);
  for (core::Slot slot = 0; slot < core::kGeneralSlotCount; ++slot) {
    if (StagedOptions[slot] != EffectiveValues[slot])
      row.Slots[slot].Value = StagedOptions[slot];
    else if (!isGlobal())
      row.Slots[slot].Value.clear();
  }
}

core::Profile& Form2::RowInHand() {
  if (isGlobal()) return Profiles[1];
  const auto& name = game().RomName;
  if (const auto rows = core::RowsOfGame(name); !rows.empty()) return Profiles[rows.back()];
  Profiles.emplace_back().Name = name;
  return Profiles.back();
}

void Form2::lblGameDef_Click() {
  if (!AskForDefaults() || Profiles.size() <= 2) return;
  if (const auto rows = core::RowsOfGame(game().RomName); !rows.empty()) {
    if (rows.front() + 1 < Profiles.size()) Profiles[rows.front()] = std::move(Profiles.back());
    Profiles.pop_back();
  }
  config::WriteConfigFile();
  config::SaveUserSettings();
  close();
}

}  // namespace ui
