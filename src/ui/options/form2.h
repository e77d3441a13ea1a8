// The options dialog, global or for one game: scope, load order, saving, restoring. The controls of
// a page belong to the class of that page.
#pragma once

#include <vector>

#include "core/module1.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/option_button.h"
#include "ui/input/input_page.h"
#include "ui/options/audio_page.h"
#include "ui/options/folders_page.h"
#include "ui/options/machine_page.h"
#include "ui/options/option_control.h"
#include "ui/options/video_page.h"

namespace ui {

class Form2 : public forms::Form {
 public:
  // The advanced options open centred over `main`.
  explicit Form2(const forms::Form& main);

 private:
  static constexpr int kPages = 5;

  void Form_Load();
  void FillControls();
  void DisableWhatOldEmulatorsLack();
  void ShowAsOneGame();
  void SelectInputSystem();
  void ApplyOptionsLanguage();
  void optOPT_Click(int index);
  void btnCancel_Click();
  static bool isGlobal() { return Module1::OptionScope == core::kGlobalScope; }
  static const core::GameEntry& game() { return Module1::GameCatalog[Module1::OptionScope]; }

  // Saving and restoring.
  void cmdSave_Click();
  std::vector<core::Slot> StageOptions();
  void StoreOptions(const std::vector<core::Slot>& staged);
  static core::Profile* RowInHand();
  void lblGameDef_Click();

  // The frames come first, because later controls lie above earlier ones.
  forms::Frame frmOPT[kPages] = {{*this, "frmOPT(0)", {128, 600, 7680, 4215}},
                                 {*this, "frmOPT(1)", {128, 600, 7680, 4215}},
                                 {*this, "frmOPT(2)", {128, 600, 7680, 4215}},
                                 {*this, "frmOPT(3)", {128, 600, 7680, 4215}},
                                 {*this, "frmOPT(4)", {128, 600, 7680, 4215}}};
  forms::OptionButton optOPT[kPages] = {
      {*this, "optOPT(0)", {130, 120, 615, 615}, forms::Picture::FromAsset("page_audio.png")},
      {*this, "optOPT(1)", {743, 120, 615, 615}, forms::Picture::FromAsset("page_video.png")},
      {*this, "optOPT(2)", {1358, 120, 615, 615}, forms::Picture::FromAsset("page_input.png")},
      {*this, "optOPT(3)", {1973, 120, 615, 615}, forms::Picture::FromAsset("page_machine.png")},
      {*this, "optOPT(4)", {2588, 120, 615, 615}, forms::Picture::FromAsset("page_folders.png")}};
  forms::Label lblGameDef{*this, "lblGameDef", {2760, 360, 1530, 195}, "Restore options", kLink};
  forms::CommandButton cmdSave{*this, "cmdSave", {5280, 120, 1215, 375}, "&Save"};
  forms::CommandButton btnCancel{*this, "btnCancel", {6600, 120, 1215, 375}, "&Exit"};

  AudioPage audio_{frmOPT[0]};
  VideoPage video_{frmOPT[1]};
  InputPage input_;
  MachinePage machine_{frmOPT[3]};
  FoldersPage folders_{frmOPT[4]};
  std::vector<OptionControl> options_;  // of all pages, in load order
};

}  // namespace ui
