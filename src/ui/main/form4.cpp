#include "ui/main/form4.h"

#include "core/module1.h"
#include "i18n/message_catalogue.h"

namespace ui {
namespace {

constexpr forms::Colour kWhite{255, 255, 255};
constexpr forms::Colour kBlack{0, 0, 0};

}  // namespace

Form4::Form4() : Form("Form4", forms::Border::FixedDialog, 10950, 7290) {
  setColours(kWhite, kBlack);
  tbxError.setBackColour(kWhite);
  tbxError.setTextColour(kBlack);
  onLoad = [this] { Form_Load(); };
  onKeyPress = [this](int keyCode) { Form_KeyPress(keyCode); };
}

void Form4::Form_Load() {
  setTitle(i18n::Msg(i18n::Message::ErrorReportTitle));
  tbxError.setText(Module1::ErrorText);
  tbxError.setAccessibleName(i18n::Msg(i18n::Message::ErrorReportTitle));
}

void Form4::Form_KeyPress(int keyCode) {
  if (keyCode == forms::kEscape) close();
}

}  // namespace ui
