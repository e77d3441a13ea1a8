#include "ui/options/audio_page.h"

#include <cstdlib>
#include <string>

#include "i18n/message_catalogue.h"
#include "platform/forms/form.h"

namespace ui {

using i18n::Message;
using i18n::Msg;

AudioPage::AudioPage(forms::Frame& frame) : frame_(frame) {
  forms::Form::setTabOrder(
      {&chkAudio[0], &hslVolume[0], &chkAudio[1], &hslVolume[1], &hslBalance, &chkFlipStereo});
  // Otherwise screen readers would speak this label, which has no control beside it, before the
  // first control of the page.
  Label10.setRole(forms::Role::Decoration);
  for (int index = 0; index < 2; ++index)
    hslVolume[index].onChange = [this, index] { hslVolume_Change(index); };
  hslBalance.onChange = [this] { hslBalance_Change(); };
}

std::vector<OptionControl> AudioPage::options() {
  return {ForOption(core::option::EmulateSound, chkAudio[0]),
          ForOption(core::option::EmulateDSB, chkAudio[1]),
          ForOption(core::option::FlipStereo, chkFlipStereo),
          ForOption(core::option::SoundVolume, hslVolume[0]),
          ForOption(core::option::MusicVolume, hslVolume[1]),
          ForOption(core::option::Balance, hslBalance)};
}

void AudioPage::DisableWhatOldEmulatorsLack() {
  forms::Control* const controls[] = {&hslBalance, &Label9, &Label10, &lblBalance};
  for (auto* control : controls) control->setEnabled(false);
}

void AudioPage::hslVolume_Change(int index) {
  lblVolume[index].setCaption(std::to_string(hslVolume[index].value()) + "%");
  hslVolume[index].setValueText(lblVolume[index].caption());
}

void AudioPage::hslBalance_Change() {
  const int balance = hslBalance.value();
  lblBalance.setCaption(balance == 0 ? Msg(Message::Centered)
                                     : "+" + std::to_string(std::abs(balance)) +
                                           Msg(balance < 0 ? Message::ToRear : Message::ToFront));
  hslBalance.setValueText(lblBalance.caption());
}

void AudioPage::ApplyLanguage() {
  if (hslBalance.value() == 0) lblBalance.setCaption(Msg(Message::Centered));
  chkAudio[0].setCaption(Msg(Message::Sound));
  chkAudio[1].setCaption(Msg(Message::Music));
  Label4.setCaption(Msg(Message::Volume));
  Label5.setCaption(Msg(Message::Volume));
  Label9.setCaption(Msg(Message::Balance));
  Label10.setCaption(Msg(Message::BalanceEnds));
  chkFlipStereo.setCaption(Msg(Message::FlipStereo));
  hslVolume[0].setAccessibleName(chkAudio[0].caption() + " " + Label4.caption());
  hslVolume[1].setAccessibleName(chkAudio[1].caption() + " " + Label5.caption());
  for (int index = 0; index < 2; ++index) hslVolume[index].setValueText(lblVolume[index].caption());
  hslBalance.setAccessibleName(Label9.caption());
  hslBalance.setAccessibleDescription(Label10.caption());
  hslBalance.setValueText(lblBalance.caption());
}

}  // namespace ui
