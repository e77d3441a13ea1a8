// The third page of the advanced options, which is disabled: settings of joystick axes. Nothing
// saves the rows of its list.
#pragma once

#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"

namespace ui {

class JoystickPage {
 public:
  explicit JoystickPage(forms::Frame& frame);

  // Selects the first axis and the first setting.
  void load();

 private:
  static constexpr int kLists = 3;

  void cmbJoy_Click(int index);
  void cmdAdd_Click();
  void cmdDel_Click();

  forms::Label lblJoy_[kLists];
  forms::ComboBox cmbJoy_[kLists];
  forms::Label lblValue_;
  forms::TextBox tbxValue_;
  forms::Label lblValueX_;
  forms::CommandButton cmdAdd_, cmdDel_;
  forms::ListBox lst_;
};

}  // namespace ui
