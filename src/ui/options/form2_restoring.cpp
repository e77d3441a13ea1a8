// The links that go back to defaults or on to the advanced options.
#include <algorithm>

#include "config/config_writer.h"
#include "config/user_settings.h"
#include "core/option_catalogue.h"
#include "i18n/message_catalogue.h"
#include "platform/forms/message_box.h"
#include "ui/advanced/frm_ff.h"
#include "ui/options/form2.h"

namespace ui {

using i18n::Msg;
using namespace Module1;

namespace {

constexpr std::size_t kFirstRestoredSlot = 28;

}  // namespace

bool Form2::AskForDefaults() const {
  return forms::MsgBox(Msg(13), forms::Buttons::YesNo, forms::BoxIcon::Question, Msg(14)) ==
         forms::Answer::Yes;
}

void Form2::lblGameDef_Click() {
  if (!AskForDefaults() || Profiles.size() <= 2) return;
  const auto own = std::find_if(Profiles.begin() + 2, Profiles.end(), [this](const auto& profile) {
    return profile.Name == game().RomName;
  });
  if (own != Profiles.end()) {
    if (own != Profiles.end() - 1) *own = std::move(Profiles.back());
    Profiles.pop_back();
  }
  config::WriteConfigFile();
  config::SaveUserSettings();
  close();
}

void Form2::lblLoadDefaults_Click() {
  if (!AskForDefaults()) return;
  core::ResetInputsToDefaults();
  for (auto slot = kFirstRestoredSlot; slot < core::kSlotCount; ++slot)
    EffectiveValues[slot] = Profiles[1].Slots[slot].Value;
  if (cmbInputType.selectedRow() == core::kRawInput) ApplyRawInputNames();
  FillInputLists();
}

void Form2::lblAdvOpts_Click() {
  if (cmbInputType.selectedRow() < 0) return;
  AdvancedInputSystem = static_cast<unsigned char>(cmbInputType.selectedRow());
  frmFF advanced;
  advanced.centreOver(main_);
  advanced.showModal(*this);
}

}  // namespace ui
