#include "ui/options/form2.h"

#include <algorithm>

#include "base/error_boundary.h"
#include "core/profiles.h"
#include "i18n/message_catalogue.h"

namespace ui {

using i18n::Message;
using i18n::Msg;

namespace {

// A value that a control can't take ends the load step, so this order decides which options are
// loaded by then.
constexpr core::Slot kLoadOrder[] = {core::option::EmulateSound, core::option::EmulateDSB,
                                     core::option::FlipStereo,   core::option::ShowFrameRate,
                                     core::option::FullScreen,   core::option::WideScreen,
                                     core::option::Vsync,        core::option::MultiThreaded,
                                     core::option::Throttle,     core::option::PowerPCFrequency,
                                     core::option::SoundVolume,  core::option::MusicVolume,
                                     core::option::Balance};

constexpr Message kPageNames[] = {Message::AudioPage, Message::VideoPage, Message::InputPage,
                                  Message::MachinePage, Message::FoldersPage};

}  // namespace

Form2::Form2(const forms::Form& main)
    : Form("Form2", forms::Border::FixedTool, 7965, 4950), input_(frmOPT[2], *this, main) {
  setTitle("   Options");
  setDefaultButton(cmdSave);
  optOPT[0].select();
  for (int page = 1; page < kPages; ++page) frmOPT[page].setVisible(false);
  lblGameDef.makeLink();
  lblGameDef.setVisible(false);
  for (const auto& options : {audio_.options(), video_.options(), machine_.options()})
    options_.insert(options_.end(), options.begin(), options.end());
  std::ranges::sort(options_, {}, [](const OptionControl& control) {
    return std::ranges::find(kLoadOrder, control.option) - std::begin(kLoadOrder);
  });

  onLoad = [this] { Form_Load(); };
  onEscape = [this] { close(); };
  for (int page = 0; page < kPages; ++page)
    optOPT[page].onClick = [this, page] { optOPT_Click(page); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  btnCancel.onClick = [this] { btnCancel_Click(); };
  lblGameDef.onClick = [this] { lblGameDef_Click(); };
  folders_.onEnable = [this](bool enabled) {
    cmdSave.setEnabled(enabled);
    btnCancel.setEnabled(enabled);
    for (auto& button : optOPT) button.setEnabled(enabled);
  };
}

void Form2::Form_Load() {
  // This comes first: what follows may fail, and a game's options must never look like the global
  // ones.
  if (!isGlobal()) ShowAsOneGame();
  bool inList = false;
  base::RunGuarded([&] {
    FillControls();
    inList = video_.SelectResolution();
  });
  if (!inList) base::RunGuarded([this] { video_.FillCustomResolution(); });
  for (auto& control : options_) control.stagedAtFirst = control.staged();
  ApplyOptionsLanguage();
  optOPT[0].setFocus();
}

void Form2::FillControls() {
  // This comes first, because a save compares with the global values even if the loading ends
  // early.
  for (core::Slot slot = 0; slot < core::kGeneralSlotCount; ++slot)
    if (slot < core::kFirstAdvancedSlot || slot >= core::kPerGameSlots)
      core::RecordGlobalValue(slot);
  video_.FillResolutions();
  InputPage::LoadBindings();
  for (auto& control : options_) {
    control.load(core::EffectiveNumber(control.option));
    control.loaded = true;
  }
  DisableWhatOldEmulatorsLack();
  folders_.Fill();
  SelectInputSystem();
  if (input_.inputSystem() < 0) input_.SelectInputSystem(0);
  input_.FillInputLists();
}

void Form2::DisableWhatOldEmulatorsLack() {
  if (Module1::EmulatorVersion >= "0.3a") return;
  audio_.DisableWhatOldEmulatorsLack();
  video_.DisableWhatOldEmulatorsLack();
  machine_.DisableWhatOldEmulatorsLack();
}

void Form2::ShowAsOneGame() {
  setTitle(Msg(Message::GameOptionsTitle) + game().Title);
  optOPT[2].setVisible(false);
  optOPT[4].setLeft(optOPT[3].box().left);
  optOPT[3].setLeft(optOPT[2].box().left);
  folders_.HideFolders();
  lblGameDef.setVisible(true);
}

void Form2::SelectInputSystem() {
  if (isGlobal()) {
    setTitle(Msg(Message::GlobalOptionsTitle));
    input_.SelectInputSystem(Module1::Profiles[1].InputMethod);
  } else if (const auto rows = core::RowsOfGame(game().RomName); !rows.empty()) {
    input_.SelectInputSystem(Module1::Profiles[rows.back()].InputMethod);
  }
}

void Form2::ApplyOptionsLanguage() {
  for (int page = 0; page < kPages; ++page) {
    const auto name = Msg(kPageNames[page]);
    optOPT[page].setToolTip(name);
    optOPT[page].setAccessibleName(name);
    frmOPT[page].setAccessibleName(name);
  }
  cmdSave.setCaption(Msg(Message::Save));
  btnCancel.setCaption(Msg(Message::Exit));
  lblGameDef.setCaption(Msg(Message::RestoreOptions));
  audio_.ApplyLanguage();
  video_.ApplyLanguage();
  input_.ApplyLanguage();
  machine_.ApplyLanguage();
  folders_.ApplyLanguage();
}

void Form2::optOPT_Click(int index) {
  for (int page = 0; page < kPages; ++page) frmOPT[page].setVisible(page == index);
}

void Form2::btnCancel_Click() {
  Module1::OptionsSaved = false;
  close();
}

}  // namespace ui
