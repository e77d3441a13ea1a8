// The dialog of the advanced options: force feedback, keys and mouse. Its texts are not translated.
#pragma once

#include <memory>
#include <vector>

#include "platform/forms/check_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/option_button.h"
#include "ui/advanced/advanced_bar.h"
#include "ui/advanced/joystick_page.h"

namespace ui {

// OK puts the values into StagedOptions; the next global save stores them. The first button shows
// the force feedback of the selected input system. Raw Input has none: there it shows the frame of
// keys and mouse.
class frmFF : public forms::Form {
 public:
  frmFF();

 private:
  static constexpr int kFrames = 4;
  static constexpr int kPages = 3;

  void Form_Load();
  void optADV_Click(int index);
  void cmdSave_Click();
  void ShowFrame(int index);
  // The frame whose force feedback is edited: 0 for DirectInput, 1 for the others, which for Raw
  // Input stays hidden and keeps its values.
  static int ForceFrame();

  forms::Frame frame[kFrames] = {{*this, "frame(0)", {128, 600, 7680, 4215}},
                                 {*this, "frame(1)", {128, 600, 7680, 4215}},
                                 {*this, "frame(2)", {128, 600, 7680, 4215}},
                                 {*this, "frame(3)", {128, 600, 7680, 4215}}};
  forms::OptionButton optADV[kPages] = {
      {*this, "optADV(0)", {130, 120, 615, 615}, forms::Picture::FromAsset("adv_force.png")},
      {*this, "optADV(1)", {743, 120, 615, 615}, forms::Picture::FromAsset("adv_keymouse.png")},
      {*this, "optADV(2)", {1358, 120, 615, 615}, forms::Picture::FromAsset("adv_joystick.png")}};
  forms::CommandButton cmdSave{*this, "cmdSave", {5280, 120, 1215, 375}, "OK"};
  forms::CommandButton btnCancel{*this, "btnCancel", {6600, 120, 1215, 375}, "Cancel"};

  static constexpr forms::Box kCheckBox{240, 300, 7200, 255};
  static constexpr forms::Box kDescription{240, 3360, 7200, 750};
  forms::CheckBox chkFF[2] = {{frame[0], "chkFF(0)", kCheckBox, "Enable Force Feedback", {9.75}},
                              {frame[1], "chkFF(1)", kCheckBox, "Enable Force Feedback", {9.75}}};
  forms::Label lblDesc[2] = {{frame[0], "lblDesc(0)", kDescription},
                             {frame[1], "lblDesc(1)", kDescription}};
  forms::Label labelKey{frame[2], "label(11)", {240, 270, 3000, 255}, "Key:", {9.75, true}};
  forms::Label labelMouse{frame[2], "label(12)", {240, 2190, 3000, 255}, "Mouse:", {9.75, true}};
  std::vector<std::unique_ptr<AdvancedBar>> bars_;
  JoystickPage joystick_{frame[3]};
};

}  // namespace ui
