// The options dialog: five pages, for all games or for one.
#pragma once

#include <array>
#include <string>
#include <utility>

#include "core/module1.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/drive_list.h"
#include "platform/forms/file_list.h"
#include "platform/forms/folder_tree.h"
#include "platform/forms/form.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/option_button.h"
#include "platform/forms/scroll_bar.h"
#include "platform/forms/text_box.h"

namespace ui {

class Form2 : public forms::Form {
 public:
  // `main` is what the dialogs that this one opens are centred over.
  explicit Form2(const forms::Form& main);

 private:
  static constexpr int kLists = 5;    // folder and shader lists
  static constexpr int kColumns = 4;  // of the input table
  static constexpr int kGroups = 4;

  // Shell.
  void Form_Load();
  void FillControls();
  void FillFromOptions();
  void DisableWhatOldEmulatorsLack();
  void ApplyScope();
  bool SelectResolution();
  void FillCustomResolution();
  void optOPT_Click(int index);
  void btnCancel_Click();
  bool isGlobal() const { return Module1::OptionScope == core::kGlobalScope; }
  const core::GameEntry& game() const { return Module1::GameCatalog.at(Module1::OptionScope); }
  void ApplyOptionsLanguage();
  void NameControls();

  // Audio, video and machine pages.
  void WirePages();
  void hslVolume_Change(int index);
  void hslBalance_Change();
  void hslPPC_Change();
  void chkFullscreen_Click();
  void chkCustRes_Click();

  // Folders page.
  void WireFolders();
  void FillFolderLists();
  void cmdAddPath_Click(int index);
  void cmdRemovePath_Click(int index);
  void AddFolder(int index);
  void StartFileChoice(int index);
  void File1_DblClick();
  void Drive1_Change();
  void lstFolders_Click(int index);
  void SetFolderPageEnabled(bool state);

  // Saving and restoring.
  void cmdSave_Click();
  void StageOptions() const;
  void StoreFolders() const;
  core::Profile& RowInHand() const;
  bool AskForDefaults() const;
  void lblGameDef_Click();
  void lblLoadDefaults_Click();
  void lblAdvOpts_Click();

  // Input page.
  void WireInputs();
  void FillInputLists();
  void AddInputRow(const std::string& name, int slot, const std::array<std::string, 3>& cells);
  void lstInput_Click(int index);
  void lstInput_Scroll(int index);
  void lstInput_DblClick(int index);
  void lstInput_KeyDown(int index, int keyCode);
  void RebuildValue(int row);
  void cmbInputType_Click();
  void ApplyRawInputNames();
  void ClearRawInputNames();

  const forms::Form& main_;
  int ShaderTarget = 0;
  std::array<bool, kLists> SavedAddEnabled{};
  std::array<bool, kLists> SavedRemoveEnabled{};

  static constexpr forms::FontStyle kText{9.75};
  static constexpr forms::FontStyle kBold{9.75, true};
  static constexpr forms::FontStyle kSmallBold{8.25, true};
  static constexpr auto kCentre = forms::Align::Centre;
  static constexpr auto kRight = forms::Align::Right;

  // The pages come first: what is built later lies above them.
  forms::Frame frmOPT[5] = {{*this, "frmOPT(0)", {128, 600, 7680, 4215}},
                            {*this, "frmOPT(1)", {128, 600, 7680, 4215}},
                            {*this, "frmOPT(2)", {128, 600, 7680, 4215}},
                            {*this, "frmOPT(3)", {128, 600, 7680, 4215}},
                            {*this, "frmOPT(4)", {128, 600, 7680, 4215}}};

  forms::OptionButton optOPT[5] = {
      {*this, "optOPT(0)", {130, 120, 615, 615}, forms::Picture::FromAsset("page_audio.png")},
      {*this, "optOPT(1)", {743, 120, 615, 615}, forms::Picture::FromAsset("page_video.png")},
      {*this, "optOPT(2)", {1358, 120, 615, 615}, forms::Picture::FromAsset("page_input.png")},
      {*this, "optOPT(3)", {1973, 120, 615, 615}, forms::Picture::FromAsset("page_machine.png")},
      {*this, "optOPT(4)", {2588, 120, 615, 615}, forms::Picture::FromAsset("page_folders.png")}};
  forms::Label lblGameDef{
      *this, "lblGameDef", {2760, 360, 1530, 195}, "Restore options", {8.25, false, false, true}};
  forms::CommandButton cmdSave{*this, "cmdSave", {5280, 120, 1215, 375}, "&Save"};
  forms::CommandButton btnCancel{*this, "btnCancel", {6600, 120, 1215, 375}, "&Exit"};

  // Audio.
  forms::CheckBox chkAudio[2] = {
      {frmOPT[0], "chkAudio(0)", {240, 360, 1455, 255}, "Sound", kText, 1},
      {frmOPT[0], "chkAudio(1)", {240, 1320, 1455, 255}, "Music", kText, 1}};
  forms::Label Label4{frmOPT[0], "Label4", {2280, 390, 1575, 255}, "Volume:", kText, kRight};
  forms::Label Label5{frmOPT[0], "Label5", {2295, 1350, 1575, 255}, "Volume:", kText, kRight};
  forms::Label lblVolume[2] = {
      {frmOPT[0], "lblVolume(0)", {3975, 390, 735, 255}, "100 %", kBold, kCentre},
      {frmOPT[0], "lblVolume(1)", {3975, 1350, 735, 255}, "100 %", kBold, kCentre}};
  forms::ScrollBar hslVolume[2] = {
      {frmOPT[0], "hslVolume(0)", {240, 720, 7200, 375}, 0, 100, 10, 100},
      {frmOPT[0], "hslVolume(1)", {240, 1680, 7200, 375}, 0, 100, 10, 100}};
  forms::Label Label9{frmOPT[0], "Label9", {240, 2400, 3135, 255}, "Rear/Front Balance", kText};
  forms::Label lblBalance{frmOPT[0],  "lblBalance", {1755, 2400, 4215, 255},
                          "Centered", kBold,        kCentre};
  forms::ScrollBar hslBalance{frmOPT[0], "hslBalance", {240, 2760, 7200, 375}, -100, 100, 25, 0};
  forms::Label Label10{frmOPT[0], "Label10", {240, 3120, 7200, 255},
                       {},        kText,     forms::Align::Spread};
  forms::CheckBox chkFlipStereo{frmOPT[0], "chkFlipStereo", {240, 3720, 7215, 255}, {}, kText, 0};

  // Video.
  forms::Label Label7{frmOPT[1], "Label7", {240, 420, 1215, 375}, "Resolution:", kText};
  forms::ComboBox cmbRes{frmOPT[1], "cmbRes", {1560, 360, 1575, 360}, kText};
  forms::CheckBox chkCustRes{frmOPT[1], "chkCustRes", {3720, 360, 1815, 375}, "Custom:", kText, 0};
  forms::TextBox tbxCustRes[2] = {
      {frmOPT[1], "tbxCustRes(0)", {5520, 360, 855, 375}, forms::TextBox::Accept::Digits, 4, kText},
      {frmOPT[1],
       "tbxCustRes(1)",
       {6600, 360, 855, 375},
       forms::TextBox::Accept::Digits,
       4,
       kText}};
  forms::Label lblCustRes{frmOPT[1], "lblCustRes", {6360, 405, 255, 255}, "x", kText, kCentre};
  forms::CheckBox chkFullscreen{frmOPT[1], "chkFullscreen", {240, 960, 7215, 255}, {}, kText, 0};
  forms::CheckBox chkWidescreen{frmOPT[1], "chkWidescreen", {240, 1560, 7215, 255}, {}, kText, 0};
  forms::CheckBox chkThrottle{frmOPT[1], "chkThrottle", {240, 2160, 7215, 255}, {}, kText, 1};
  forms::CheckBox chkFPS{frmOPT[1], "chkFPS", {240, 2760, 7335, 255}, {}, kText, 0};
  forms::CheckBox chkVsync{frmOPT[1], "chkVsync", {240, 3360, 7335, 255}, {}, kText, 1};

  // Input.
  forms::OptionButton optTypeInputs[kGroups] = {
      {frmOPT[2], "optTypeInputs(0)", {120, 300, 1080, 255}, "BASICS"},
      {frmOPT[2], "optTypeInputs(1)", {1215, 300, 1050, 255}, "GUN"},
      {frmOPT[2], "optTypeInputs(2)", {2280, 300, 1155, 255}, "RACE"},
      {frmOPT[2], "optTypeInputs(3)", {3450, 300, 1050, 255}, "OTHERS"}};
  forms::Label Label11{frmOPT[2], "Label11", {4440, 330, 690, 255}, "Player", {}, kRight};
  forms::OptionButton optPlayer[2] = {{frmOPT[2], "optPlayer(0)", {5175, 300, 405, 255}, "1"},
                                      {frmOPT[2], "optPlayer(1)", {5595, 300, 405, 255}, "2"}};
  forms::ComboBox cmbInputType{frmOPT[2], "cmbInputType", {6045, 255, 1530, 345}};
  forms::Label Label8[kColumns] = {
      {frmOPT[2], "Label8(0)", {120, 720, 1710, 210}, "Action", kSmallBold},
      {frmOPT[2], "Label8(1)", {1845, 720, 1800, 210}, "Button 1", kSmallBold},
      {frmOPT[2], "Label8(2)", {3660, 720, 1800, 210}, "Button 2", kSmallBold},
      {frmOPT[2], "Label8(3)", {5475, 720, 2100, 210}, "Button 3", kSmallBold}};
  forms::ListBox lstInput[kColumns] = {{frmOPT[2], "lstInput(0)", {120, 960, 1725, 2790}},
                                       {frmOPT[2], "lstInput(1)", {1830, 960, 1830, 2790}},
                                       {frmOPT[2], "lstInput(2)", {3645, 960, 1830, 2790}},
                                       {frmOPT[2], "lstInput(3)", {5460, 960, 2115, 2790}}};
  forms::Label lblAdvOpts{frmOPT[2],
                          "lblAdvOpts",
                          {120, 3840, 1695, 195},
                          "Advanced options...",
                          {8.25, false, false, true}};
  forms::Label lblLoadDefaults{frmOPT[2],
                               "lblLoadDefaults",
                               {5130, 3840, 2445, 195},
                               "Restore all inputs to default",
                               {8.25, false, false, true},
                               kRight};

  // Machine.
  forms::Label Label2{frmOPT[3], "Label2", {240, 360, 3135, 255}, "PowerPC's frequency:", kText};
  forms::Label lblPPC{frmOPT[3], "lblPPC", {3360, 360, 975, 255}, "50 MHz", kBold, kCentre};
  forms::ScrollBar hslPPC{frmOPT[3], "hslPPC", {240, 720, 7215, 375}, 1, 1000, 10, 50};
  forms::Label Label3[2] = {
      {frmOPT[3], "Label3(0)", {240, 1080, 255, 255}, "1", kText},
      {frmOPT[3], "Label3(1)", {6840, 1080, 615, 255}, "1000", kText, kRight}};
  forms::CheckBox chkMulti{frmOPT[3], "chkMulti", {240, 1800, 7215, 255}, {}, kText, 1};
  forms::Label Label6{frmOPT[3], "Label6", {240, 2160, 7215, 1815}, {}, kText};

  // Folders.
  forms::DriveList Drive1{frmOPT[4], "Drive1", {120, 240, 3015, 315}};
  forms::FolderTree Dir1{frmOPT[4], "Dir1", {120, 600, 3015, 3465}};
  forms::FileList File1{frmOPT[4], "File1", {120, 300, 3015, 3795}};
  forms::Label Label1[kLists] = {
      {frmOPT[4], "Label1(0)", {3240, 240, 3735, 225}, "ROMS:", kSmallBold},
      {frmOPT[4], "Label1(1)", {3240, 1125, 3735, 225}, "Snapshots:", kSmallBold},
      {frmOPT[4], "Label1(2)", {3240, 2010, 3735, 225}, "Icons:", kSmallBold},
      {frmOPT[4], "Label1(3)", {3240, 3120, 3735, 225}, "Fragment Shader:", kSmallBold},
      {frmOPT[4], "Label1(4)", {3240, 3600, 3735, 225}, "Vertex Shader:", kSmallBold}};
  forms::ListBox lstFolders[kLists] = {{frmOPT[4], "lstFolders(0)", {3240, 480, 4335, 645}},
                                       {frmOPT[4], "lstFolders(1)", {3240, 1365, 4335, 645}},
                                       {frmOPT[4], "lstFolders(2)", {3240, 2250, 4335, 645}},
                                       {frmOPT[4], "lstFolders(3)", {3240, 3360, 4335, 255}},
                                       {frmOPT[4], "lstFolders(4)", {3240, 3840, 4335, 255}}};
  forms::CommandButton cmdAddPath[kLists] = {
      {frmOPT[4], "cmdAddPath(0)", {7050, 225, 255, 255}, "+", kSmallBold},
      {frmOPT[4], "cmdAddPath(1)", {7050, 1110, 255, 255}, "+", kSmallBold},
      {frmOPT[4], "cmdAddPath(2)", {7050, 1995, 255, 255}, "+", kSmallBold},
      {frmOPT[4], "cmdAddPath(3)", {7050, 3120, 255, 255}, "+", kSmallBold},
      {frmOPT[4], "cmdAddPath(4)", {7050, 3600, 255, 255}, "+", kSmallBold}};
  forms::CommandButton cmdRemovePath[kLists] = {
      {frmOPT[4], "cmdRemovePath(0)", {7305, 225, 255, 255}, "-", kSmallBold},
      {frmOPT[4], "cmdRemovePath(1)", {7305, 1110, 255, 255}, "-", kSmallBold},
      {frmOPT[4], "cmdRemovePath(2)", {7305, 1995, 255, 255}, "-", kSmallBold},
      {frmOPT[4], "cmdRemovePath(3)", {7305, 3120, 255, 255}, "-", kSmallBold},
      {frmOPT[4], "cmdRemovePath(4)", {7305, 3600, 255, 255}, "-", kSmallBold}};
};

}  // namespace ui
