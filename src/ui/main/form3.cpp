#include "ui/main/form3.h"

#include <string>

#include "base/text.h"
#include "core/version.h"
#include "i18n/message_catalogue.h"

namespace ui {
namespace {

using i18n::Message;
using i18n::Msg;

constexpr forms::Colour kBlue{0, 0, 255};

}  // namespace

Form3::Form3() : Form("Form3", forms::Border::None, 4680, 3090) {
  // The title itself keeps the desktop's text colour, so that it can be read on a dark desktop too.
  Label1.setTextColour(kBlue);
  Label6.setTextColour(kBlue);
  Label4.setTextColour(forms::kGrey);
  setTitle(Label2.caption());
  Label1.setRole(forms::Role::Decoration);
  Label6.setRole(forms::Role::Decoration);
  Image1.setRole(forms::Role::Picture);
  Image1.setAccessibleName(Label2.caption());
  onLoad = [this] { Form_Load(); };
  onEscape = [this] { close(); };
  onDblClick = [this] { close(); };
}

void Form3::Form_Load() {
  Label4.setCaption("v" + std::to_string(core::kMajor) + "." + std::to_string(core::kMinor) + " (" +
                    Msg(Message::Build) + " " + base::PaddedNumber(core::kRevision, 3) + ")");
  Image1.setPicture(forms::Picture::ProgramIcon(Image1.box().width));
  lblCredits.setCaption(Msg(Message::Credits));
  // No control takes the focus, so a screen reader would speak none of these texts.
  setDescription(Label4.caption() + "\n" + lblCredits.caption() + "\n" + Label3.caption());
}

}  // namespace ui
