#include "ui/options/form2.h"

#include <algorithm>

#include "base/quietly.h"
#include "base/text.h"
#include "core/option_catalogue.h"
#include "i18n/message_catalogue.h"

namespace ui {

using core::EffectiveValue;
using core::OptionIndex;
using i18n::Msg;
using namespace Module1;

namespace {

std::string ValueInForce(std::string_view option) {
  return EffectiveValue(static_cast<unsigned char>(OptionIndex(option)));
}

}  // namespace

Form2::Form2(const forms::Form& main)
    : Form("Form2", forms::Border::FixedTool, 7965, 4950), main_(main) {
  setTitle("   Options");
  setDefaultButton(cmdSave);
  optOPT[0].select();
  for (int page = 1; page < 5; ++page) frmOPT[page].setVisible(false);
  lblGameDef.makeLink();
  lblGameDef.setVisible(false);

  onLoad = [this] { Form_Load(); };
  onKeyPress = [this](int keyCode) {
    if (keyCode == forms::kEscape) close();
  };
  for (int page = 0; page < 5; ++page) optOPT[page].onClick = [this, page] { optOPT_Click(page); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  btnCancel.onClick = [this] { btnCancel_Click(); };
  lblGameDef.onClick = [this] { lblGameDef_Click(); };
  WirePages();
  WireFolders();
  WireInputs();
}

void Form2::Form_Load() {
  bool inList = false;
  base::Quietly([&] {
    FillControls();
    inList = SelectResolution();
  });
  if (!inList) base::Quietly([this] { FillCustomResolution(); });
  ApplyOptionsLanguage();
  optOPT[0].setFocus();
}

void Form2::FillControls() {
  for (int row = 0; row < 20; ++row) {
    const auto& size = ResolutionList.at(static_cast<std::size_t>(row));
    cmbRes.add(std::to_string(size.Width) + "x" + std::to_string(size.Height));
  }
  cmbRes.select(0);
  // The bindings are global in either scope.
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    EffectiveValues[slot] = Profiles[1].Slots[slot].Value;
  const auto crosshairs = EffectiveValue(core::kCrosshairsSlot);
  EffectiveValues[core::kCrosshairsSlot] = crosshairs;
  FillFromOptions();
  DisableWhatOldEmulatorsLack();
  FillFolderLists();
  ApplyScope();
  if (cmbInputType.selectedRow() < 0) cmbInputType.select(0);
  FillInputLists();
}

void Form2::FillFromOptions() {
  const auto fill = [](auto& control, std::string_view option) {
    control.setValue(base::ToInteger(ValueInForce(option)));
  };
  fill(chkAudio[0], "EmulateSound");
  fill(chkAudio[1], "EmulateDSB");
  fill(chkFlipStereo, "FlipStereo");
  fill(chkFPS, "ShowFrameRate");
  fill(chkFullscreen, "FullScreen");
  fill(chkWidescreen, "WideScreen");
  fill(chkVsync, "Vsync");
  fill(chkMulti, "MultiThreaded");
  fill(chkThrottle, "Throttle");
  fill(hslPPC, "PowerPCFrequency");
  fill(hslVolume[0], "SoundVolume");
  fill(hslVolume[1], "MusicVolume");
  fill(hslBalance, "Balance");
}

void Form2::DisableWhatOldEmulatorsLack() {
  if (EmulatorVersion >= "0.3a") return;
  forms::Control* const controls[] = {&chkMulti, &Label6,  &chkWidescreen, &hslBalance,
                                      &Label9,   &Label10, &lblBalance,    &chkVsync};
  for (auto* control : controls) control->setEnabled(false);
}

void Form2::ApplyScope() {
  if (isGlobal()) {
    setTitle(Msg(125));
    cmbInputType.select(Profiles[1].InputMethod);
    return;
  }
  setTitle(Msg(170) + game().Title);
  optOPT[2].setVisible(false);
  optOPT[4].setLeft(optOPT[3].box().left);
  optOPT[3].setLeft(optOPT[2].box().left);
  for (int index = 0; index < 3; ++index) {
    forms::Control* const controls[] = {&Label1[index], &lstFolders[index], &cmdAddPath[index],
                                        &cmdRemovePath[index]};
    for (auto* control : controls) control->setVisible(false);
  }
  lblGameDef.setVisible(true);
  const auto own =
      std::find_if(Profiles.rbegin(), Profiles.rend() - 2,
                   [this](const auto& profile) { return profile.Name == game().RomName; });
  if (own != Profiles.rend() - 2) cmbInputType.select(own->InputMethod);
}

bool Form2::SelectResolution() {
  return cmbRes.selectText(ValueInForce("XResolution") + "x" + ValueInForce("YResolution"));
}

void Form2::FillCustomResolution() {
  tbxCustRes[0].setText(ValueInForce("XResolution"));
  tbxCustRes[1].setText(ValueInForce("YResolution"));
  chkCustRes.setValue(1);
}

void Form2::optOPT_Click(int index) {
  for (int page = 0; page < 5; ++page) frmOPT[page].setVisible(page == index);
}

void Form2::btnCancel_Click() {
  OptionsSaved = false;
  close();
}

}  // namespace ui
