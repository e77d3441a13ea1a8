// The page of Form2 with the bindings of all inputs.
#pragma once

#include <string>

#include "core/bindings.h"
#include "core/module1.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/form.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/option_button.h"
#include "ui/shared/page_fonts.h"

namespace ui {

class InputPage {
 public:
  // `form` owns the dialogs that the page opens. The advanced options open centred over `main`.
  InputPage(forms::Frame& frame, forms::Form& form, const forms::Form& main);

  // Copies the bindings of the Global row to EffectiveValues. Does not fill the lists.
  static void LoadBindings();
  // The number of the selected input system, -1 for none. Selecting a system renames the devices in
  // the bindings under edit.
  int inputSystem() const { return cmbInputType.selectedRow(); }
  void SelectInputSystem(int code) { cmbInputType.select(code); }
  void FillInputLists();
  // Copies the bindings of EffectiveValues to the Global row.
  static void StoreBindings();
  void ApplyLanguage();

 private:
  static constexpr int kColumns = 4;
  static constexpr int kGroups = 4;

  void AddInputRow(const std::string& name, core::Slot slot, const core::BindingCells& cells);
  void cmbInputType_Click();
  static void ApplyRawInputNames();
  static void ClearRawInputNames();
  void lblLoadDefaults_Click();
  void lblAdvOpts_Click();

  // The binding editor.
  void lstInput_Click(int index);
  void lstInput_Scroll(int index);
  void lstInput_DblClick(int index);
  void lstInput_Delete(int index);
  std::string& ValueOfRow(int row);
  void RebuildValue(int row);

  forms::Frame& frame_;
  forms::Form& form_;
  const forms::Form& main_;

  forms::OptionButton optTypeInputs[kGroups] = {
      {frame_, "optTypeInputs(0)", {120, 300, 1080, 255}, "BASICS"},
      {frame_, "optTypeInputs(1)", {1215, 300, 1005, 255}, "GUN"},
      {frame_, "optTypeInputs(2)", {2235, 300, 1155, 255}, "RACE"},
      {frame_, "optTypeInputs(3)", {3390, 300, 1050, 255}, "OTHERS"}};
  forms::Label Label11{frame_, "Label11", {4455, 330, 690, 255}, "Player", {}, forms::Align::Right};
  forms::OptionButton optPlayer[2] = {{frame_, "optPlayer(0)", {5175, 300, 405, 255}, "1"},
                                      {frame_, "optPlayer(1)", {5595, 300, 405, 255}, "2"}};
  forms::ComboBox cmbInputType{frame_, "cmbInputType", {6045, 255, 1530, 345}};
  forms::Label Label8[kColumns] = {
      {frame_, "Label8(0)", {120, 720, 1710, 210}, "Action", kSmallBold},
      {frame_, "Label8(1)", {1845, 720, 1800, 210}, "Button 1", kSmallBold},
      {frame_, "Label8(2)", {3660, 720, 1800, 210}, "Button 2", kSmallBold},
      {frame_, "Label8(3)", {5475, 720, 2100, 210}, "Button 3", kSmallBold}};
  forms::ListBox lstInput[kColumns] = {{frame_, "lstInput(0)", {120, 960, 1725, 2790}},
                                       {frame_, "lstInput(1)", {1830, 960, 1830, 2790}},
                                       {frame_, "lstInput(2)", {3645, 960, 1830, 2790}},
                                       {frame_, "lstInput(3)", {5460, 960, 2115, 2790}}};
  forms::Label lblAdvOpts{
      frame_, "lblAdvOpts", {120, 3840, 1695, 195}, "Advanced options...", kLink};
  forms::Label lblLoadDefaults{
      frame_, "lblLoadDefaults",  {5130, 3840, 2445, 195}, "Restore all inputs to default",
      kLink,  forms::Align::Right};
};

}  // namespace ui
