// The binding editor: four lists that scroll and select together as one table, and the changes of a
// cell.
#include <string>

#include "core/bindings.h"
#include "i18n/message_catalogue.h"
#include "platform/forms/message_box.h"
#include "ui/input/frm_input2.h"
#include "ui/input/input_page.h"

namespace ui {

void InputPage::lstInput_Click(int index) {
  const int row = lstInput[index].selectedRow();
  for (int other = 0; other < kColumns; ++other)
    if (other != index) lstInput[other].select(row);
}

void InputPage::lstInput_Scroll(int index) {
  const int row = lstInput[index].topRow();
  for (int other = 0; other < kColumns; ++other)
    if (other != index) lstInput[other].setTopRow(row);
}

void InputPage::lstInput_DblClick(int index) {
  const int row = lstInput[index].selectedRow();
  if (index == 0 || row < 0) return;
  if (core::IsNumeric(lstInput[1].text(row)) && index != 1) return;
  const bool numeric = core::IsNumeric(lstInput[index].text(row));
  if (numeric) {
    switch (forms::MsgBox(i18n::Msg(i18n::Message::EnableQuestion), forms::Buttons::YesNoCancel,
                          forms::BoxIcon::None, lstInput[0].text(row))) {
      case forms::Answer::Yes:
        Module1::InputChoice = "1";
        break;
      case forms::Answer::No:
        Module1::InputChoice = "0";
        break;
      default:
        Module1::InputChoice.clear();
    }
  } else {
    frmInput2 chooser;
    chooser.centreOver(form_);
    chooser.showModal(form_);
  }
  if (Module1::InputChoice.empty()) return;
  lstInput[index].setText(row, Module1::InputChoice);
  if (numeric)
    ValueOfRow(row) = Module1::InputChoice;
  else
    RebuildValue(row);
}

void InputPage::lstInput_Delete(int index) {
  const int row = lstInput[index].selectedRow();
  if (index == 0 || row < 0) return;
  if (core::IsNumeric(lstInput[1].text(row))) {
    // A numeric row is switched off instead of emptied: it has to stay numeric.
    if (index != 1) return;
    lstInput[1].setText(row, "0");
    ValueOfRow(row) = "0";
    return;
  }
  lstInput[index].setText(row, {});
  RebuildValue(row);
}

std::string& InputPage::ValueOfRow(int row) {
  return Module1::EffectiveValues[lstInput[0].itemData(row)];
}

void InputPage::RebuildValue(int row) {
  ValueOfRow(row) =
      core::ValueOf({lstInput[1].text(row), lstInput[2].text(row), lstInput[3].text(row)});
}

}  // namespace ui
