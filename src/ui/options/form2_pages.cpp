// The audio, video and machine pages: labels and enabled states follow the controls.
#include <cstdlib>

#include "i18n/message_catalogue.h"
#include "ui/options/form2.h"

namespace ui {

using i18n::Msg;

void Form2::WirePages() {
  Label6.setWordWrap(true);
  Label7.setToolTip("Resolution of the display in pixels");
  tbxCustRes[0].setEnabled(false);
  tbxCustRes[1].setEnabled(false);
  lblCustRes.setEnabled(false);
  setTabOrder(
      {&chkAudio[0], &hslVolume[0], &chkAudio[1], &hslVolume[1], &hslBalance, &chkFlipStereo});
  for (int index = 0; index < 2; ++index)
    hslVolume[index].onChange = [this, index] { hslVolume_Change(index); };
  hslBalance.onChange = [this] { hslBalance_Change(); };
  hslPPC.onChange = [this] { hslPPC_Change(); };
  chkFullscreen.onClick = [this] { chkFullscreen_Click(); };
  chkCustRes.onClick = [this] { chkCustRes_Click(); };
}

void Form2::hslVolume_Change(int index) {
  lblVolume[index].setCaption(std::to_string(hslVolume[index].value()) + "%");
}

void Form2::hslBalance_Change() {
  const int balance = hslBalance.value();
  lblBalance.setCaption(balance == 0
                            ? Msg(12)
                            : "+" + std::to_string(std::abs(balance)) + Msg(balance < 0 ? 10 : 11));
}

void Form2::hslPPC_Change() { lblPPC.setCaption(std::to_string(hslPPC.value()) + " MHz"); }

void Form2::chkFullscreen_Click() { chkFPS.setEnabled(chkFullscreen.value() == 0); }

void Form2::chkCustRes_Click() {
  const bool custom = chkCustRes.value() != 0;
  cmbRes.setEnabled(!custom);
  tbxCustRes[0].setEnabled(custom);
  tbxCustRes[1].setEnabled(custom);
  lblCustRes.setEnabled(custom);
}

}  // namespace ui
