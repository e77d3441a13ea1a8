// The chooser of one new binding: keyboard, mouse or joystick.
#pragma once

#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"

namespace ui {

// Sets InputChoice to the chosen token, or to the empty text if the user closes the dialog without
// a choice.
class frmInput2 : public forms::Form {
 public:
  frmInput2();

 private:
  static constexpr int kRows = 3;

  void Form_Load();
  void cmbInputs_Click(int row);
  void cmdOK_Click(int row);

  forms::Label Label1{*this, "Label1", {150, 240, 1065, 255}, "Keyboard"};
  forms::Label Label2{*this, "Label2", {150, 840, 1065, 255}, "Mouse"};
  forms::Label Label3{*this, "Label3", {150, 1440, 1065, 255}, "Joystick"};
  forms::ComboBox cmbHardN[kRows] = {{*this, "cmbHardN(0)", {1260, 150, 720, 360}},
                                     {*this, "cmbHardN(1)", {1260, 750, 720, 360}},
                                     {*this, "cmbHardN(2)", {1260, 1350, 720, 360}}};
  forms::ComboBox cmbInputs[kRows] = {{*this, "cmbInputs(0)", {2070, 150, 2970, 360}},
                                      {*this, "cmbInputs(1)", {2070, 750, 2970, 360}},
                                      {*this, "cmbInputs(2)", {2070, 1350, 2970, 360}}};
  forms::CommandButton cmdOK[kRows] = {{*this, "cmdOK(0)", {5160, 150, 750, 360}, "OK"},
                                       {*this, "cmdOK(1)", {5160, 750, 750, 360}, "OK"},
                                       {*this, "cmdOK(2)", {5160, 1350, 750, 360}, "OK"}};
};

}  // namespace ui
