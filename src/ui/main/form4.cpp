#include "ui/main/form4.h"

#include "core/module1.h"
#include "i18n/message_catalogue.h"

namespace ui {
namespace {

// A screen reader speaks this much at once. All of the text can be read line by line.
constexpr std::size_t kSpokenBytes = 2000;

}  // namespace

Form4::Form4() : Form("Form4", forms::Border::FixedDialog, 10950, 7290) {
  setColours(forms::kWhite, forms::kBlack);
  tbxError.setBackColour(forms::kWhite);
  tbxError.setTextColour(forms::kBlack);
  onLoad = [this] { Form_Load(); };
  onEscape = [this] { close(); };
}

void Form4::Form_Load() {
  setTitle(i18n::Msg(i18n::Message::ErrorReportTitle));
  tbxError.setText(Module1::ErrorText);
  tbxError.setAccessibleName(i18n::Msg(i18n::Message::ErrorReportTitle));
  // Of the text box itself, a screen reader speaks the first line only.
  setDescription(Module1::ErrorText.substr(0, kSpokenBytes));
}

}  // namespace ui
