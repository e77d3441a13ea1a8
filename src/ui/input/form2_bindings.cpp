// The binding editor: four lists that act as one table, and what changes a cell.
#include "core/bindings.h"
#include "i18n/message_catalogue.h"
#include "platform/forms/message_box.h"
#include "ui/input/frm_input2.h"
#include "ui/options/form2.h"

namespace ui {

using namespace Module1;

namespace {

constexpr int kDeleteKey = 46;

}  // namespace

void Form2::lstInput_Click(int index) {
  const int row = lstInput[index].selectedRow();
  for (int other = 0; other < kColumns; ++other)
    if (other != index) lstInput[other].select(row);
}

void Form2::lstInput_Scroll(int index) {
  const int row = lstInput[index].topRow();
  for (int other = 0; other < kColumns; ++other)
    if (other != index) lstInput[other].setTopRow(row);
}

void Form2::lstInput_DblClick(int index) {
  const int row = lstInput[index].selectedRow();
  if (index == 0 || row < 0) return;
  if (core::IsNumeric(lstInput[1].text(row)) && index != 1) return;
  const bool numeric = core::IsNumeric(lstInput[index].text(row));
  if (numeric) {
    switch (forms::MsgBox(i18n::Msg(15), forms::Buttons::YesNoCancel, forms::BoxIcon::None,
                          lstInput[0].text(row))) {
      case forms::Answer::Yes:
        InputChoice = "1";
        break;
      case forms::Answer::No:
        InputChoice = "0";
        break;
      default:
        InputChoice.clear();
    }
  } else {
    frmInput2 chooser;
    chooser.centreOver(*this);
    chooser.showModal(*this);
  }
  if (InputChoice.empty()) return;
  lstInput[index].setText(row, InputChoice);
  if (numeric)
    EffectiveValues.at(static_cast<std::size_t>(lstInput[0].itemData(row))) = InputChoice;
  else
    RebuildValue(row);
}

void Form2::lstInput_KeyDown(int index, int keyCode) {
  const int row = lstInput[index].selectedRow();
  if (index == 0 || keyCode != kDeleteKey || row < 0) return;
  if (core::IsNumeric(lstInput[1].text(row))) {
    // A numeric row goes back to its off state and stays numeric.
    if (index != 1) return;
    lstInput[1].setText(row, "0");
    EffectiveValues.at(static_cast<std::size_t>(lstInput[0].itemData(row))) = "0";
    return;
  }
  lstInput[index].setText(row, {});
  RebuildValue(row);
}

void Form2::RebuildValue(int row) {
  EffectiveValues.at(static_cast<std::size_t>(lstInput[0].itemData(row))) =
      core::ValueOf({lstInput[1].text(row), lstInput[2].text(row), lstInput[3].text(row)});
}

}  // namespace ui
