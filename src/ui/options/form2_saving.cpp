// Saving the dialog: controls into values, values into the right row, the row into the file; and
// dropping the row of a game.
#include <string_view>
#include <utility>

#include "config/config_writer.h"
#include "config/user_settings.h"
#include "config/writable_names.h"
#include "core/option_catalogue.h"
#include "core/profiles.h"
#include "ui/options/form2.h"
#include "ui/options/restoring.h"

namespace ui {

using namespace Module1;

void Form2::cmdSave_Click() {
  const auto staged = StageOptions();
  folders_.StoreFolders();
  StoreOptions(staged);
  InputPage::StoreBindings();
  config::WriteConfigFile();
  config::SaveUserSettings();
  OptionsSaved = true;
  close();
}

// The slots for which the save has a value: what the loading did not reach and the user did not
// touch is left as it was.
std::vector<core::Slot> Form2::StageOptions() const {
  std::vector<core::Slot> staged;
  const auto stage = [&](std::string_view option, std::string value) {
    staged.push_back(core::OptionIndex(option));
    StagedOptions[staged.back()] = std::move(value);
  };
  for (const auto& control : options_)
    if (control.speaks()) stage(control.option, control.staged());
  for (const auto& [option, value] : folders_.StagedShaders()) stage(option, value);
  const auto [width, height] = video_.StagedResolution();
  stage("XResolution", width);
  stage("YResolution", height);
  // What the advanced dialog left waits for the options of all games.
  for (auto slot = core::kFirstAdvancedSlot; slot < core::kPerGameSlots; ++slot)
    if (isGlobal() && !StagedOptions[slot].empty()) staged.push_back(slot);
  return staged;
}

void Form2::StoreOptions(const std::vector<core::Slot>& staged) const {
  auto* row = RowInHand();
  if (!row) return;
  if (const int system = input_.inputSystem(); system >= 0)
    row->InputMethod = static_cast<unsigned char>(system);
  for (const auto slot : staged) {
    if (StagedOptions[slot] != EffectiveValues[slot])
      row->Slots[slot].Value = StagedOptions[slot];
    else if (!isGlobal())
      row->Slots[slot].Value.clear();
    if (slot >= core::kFirstAdvancedSlot && slot < core::kPerGameSlots) StagedOptions[slot].clear();
  }
}

// Nothing for a game that the file can't hold a row of.
core::Profile* Form2::RowInHand() {
  if (isGlobal()) return &Profiles[1];
  const auto& name = game().RomName;
  if (const auto rows = core::RowsOfGame(name); !rows.empty()) return &Profiles[rows.back()];
  if (!config::IsWritableGame(name)) return nullptr;
  Profiles.emplace_back().Name = name;
  return &Profiles.back();
}

void Form2::lblGameDef_Click() {
  if (!AskForDefaults(*this) || Profiles.size() <= 2) return;
  if (const auto rows = core::RowsOfGame(game().RomName); !rows.empty()) {
    if (rows.front() + 1 < Profiles.size()) Profiles[rows.front()] = std::move(Profiles.back());
    Profiles.pop_back();
  }
  config::WriteConfigFile();
  config::SaveUserSettings();
  close();
}

}  // namespace ui
