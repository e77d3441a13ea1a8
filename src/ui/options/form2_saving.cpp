// What the save button does: controls into values, values into the right row, the row into the
// file.
#include <algorithm>

#include "config/config_writer.h"
#include "config/user_settings.h"
#include "core/option_catalogue.h"
#include "ui/options/form2.h"

namespace ui {

using namespace Module1;

namespace {

void Stage(std::string_view option, std::string value) {
  StagedOptions.at(static_cast<std::size_t>(core::OptionIndex(option))) = std::move(value);
}

// A shader's path between double quotes; nothing for an empty list.
std::string ShaderValue(const forms::ListBox& list) {
  return list.count() > 0 ? '"' + list.text(0) + '"' : std::string();
}

}  // namespace

void Form2::cmdSave_Click() {
  StageOptions();
  StoreFolders();
  auto& row = RowInHand();
  if (const int selected = cmbInputType.selectedRow(); selected >= 0)
    row.InputMethod = static_cast<unsigned char>(selected);
  for (std::size_t slot = 0; slot < core::kGeneralSlotCount; ++slot) {
    if (StagedOptions[slot] != EffectiveValues[slot])
      row.Slots[slot].Value = StagedOptions[slot];
    else if (!isGlobal())
      row.Slots[slot].Value.clear();
  }
  // The bindings are global, whatever the scope.
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    Profiles[1].Slots[slot].Value = EffectiveValues[slot];
  Profiles[1].Slots[core::kCrosshairsSlot].Value = EffectiveValues[core::kCrosshairsSlot];
  config::WriteConfigFile();
  config::SaveUserSettings();
  OptionsSaved = true;
  close();
}

void Form2::StageOptions() const {
  const auto stage = [](std::string_view option, const auto& control) {
    Stage(option, std::to_string(control.value()));
  };
  stage("EmulateSound", chkAudio[0]);
  stage("EmulateDSB", chkAudio[1]);
  stage("FlipStereo", chkFlipStereo);
  Stage("ShowFrameRate", chkFullscreen.value() == 0 ? std::to_string(chkFPS.value()) : "0");
  stage("FullScreen", chkFullscreen);
  stage("WideScreen", chkWidescreen);
  stage("Vsync", chkVsync);
  Stage("MultiThreaded", chkMulti.enabled() ? std::to_string(chkMulti.value()) : "");
  stage("Throttle", chkThrottle);
  stage("PowerPCFrequency", hslPPC);
  stage("SoundVolume", hslVolume[0]);
  stage("MusicVolume", hslVolume[1]);
  stage("Balance", hslBalance);
  Stage("FragmentShader", ShaderValue(lstFolders[3]));
  Stage("VertexShader", ShaderValue(lstFolders[4]));
  if (chkCustRes.value() == 0) {
    const auto& size = ResolutionList.at(static_cast<std::size_t>(cmbRes.selectedRow()));
    Stage("XResolution", std::to_string(size.Width));
    Stage("YResolution", std::to_string(size.Height));
  } else {
    Stage("XResolution", tbxCustRes[0].text());
    Stage("YResolution", tbxCustRes[1].text());
  }
}

void Form2::StoreFolders() const {
  std::array<std::string, 5>* const tables[] = {&RomPaths, &SnapPaths, &IconPaths};
  for (int index = 0; index < 3; ++index) {
    auto& table = *tables[index];
    std::fill(table.begin() + 1, table.begin() + 4, std::string());
    for (int row = 0; row < lstFolders[index].count(); ++row)
      table.at(static_cast<std::size_t>(row) + 1) = lstFolders[index].text(row);
  }
}

core::Profile& Form2::RowInHand() const {
  if (isGlobal()) return Profiles[1];
  const auto& name = game().RomName;
  for (auto row = Profiles.size() - 1; row >= 2; --row)
    if (Profiles[row].Name == name) return Profiles[row];
  Profiles.emplace_back().Name = name;
  return Profiles.back();
}

}  // namespace ui
