#include "ui/options/machine_page.h"

#include <string>

#include "i18n/message_catalogue.h"

namespace ui {

using i18n::Message;
using i18n::Msg;

MachinePage::MachinePage(forms::Frame& frame) : frame_(frame) {
  Label6.setWordWrap(true);
  hslPPC.onChange = [this] { hslPPC_Change(); };
}

std::vector<OptionControl> MachinePage::options() {
  auto multiThreaded = ForOption(core::option::MultiThreaded, chkMulti);
  // An old emulator does not know the option, so it must not be written to its file.
  multiThreaded.staged = [this] {
    return chkMulti.enabled() ? std::to_string(chkMulti.value()) : std::string();
  };
  return {multiThreaded, ForOption(core::option::PowerPCFrequency, hslPPC)};
}

void MachinePage::DisableWhatOldEmulatorsLack() {
  chkMulti.setEnabled(false);
  Label6.setEnabled(false);
}

void MachinePage::hslPPC_Change() {
  lblPPC.setCaption(std::to_string(hslPPC.value()) + " MHz");
  hslPPC.setValueText(lblPPC.caption());
}

void MachinePage::ApplyLanguage() {
  Label2.setCaption(Msg(Message::PpcFrequency));
  chkMulti.setCaption(Msg(Message::MultiThreading));
  Label6.setCaption(Msg(Message::MultiThreadingText));
  hslPPC.setAccessibleName(Label2.caption());
  hslPPC.setValueText(lblPPC.caption());
}

}  // namespace ui
