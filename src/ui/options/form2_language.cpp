#include "i18n/message_catalogue.h"
#include "ui/options/form2.h"

namespace ui {

using i18n::Msg;

void Form2::ApplyOptionsLanguage() {
  const auto set = [](auto& control, unsigned char number) { control.setCaption(Msg(number)); };
  if (hslBalance.value() == 0) set(lblBalance, 12);
  for (unsigned char page = 0; page < 5; ++page) {
    optOPT[page].setToolTip(Msg(static_cast<unsigned char>(119 + page)));
  }
  set(cmdSave, 124);
  set(btnCancel, 108);
  set(chkAudio[0], 126);
  set(Label4, 127);
  set(Label5, 127);
  set(chkAudio[1], 128);
  set(Label9, 129);
  set(Label10, 130);
  set(chkFlipStereo, 131);
  set(Label7, 132);
  set(chkCustRes, 133);
  set(chkFullscreen, 134);
  set(chkWidescreen, 135);
  set(chkThrottle, 136);
  set(chkFPS, 137);
  for (unsigned char group = 0; group < kGroups; ++group)
    set(optTypeInputs[group], static_cast<unsigned char>(138 + group));
  set(Label11, 142);
  set(Label8[0], 143);
  for (int column = 1; column < kColumns; ++column)
    Label8[column].setCaption(Msg(144) + std::to_string(column));
  set(lblLoadDefaults, 146);
  set(Label2, 147);
  set(chkMulti, 148);
  set(Label6, 149);
  set(Label1[1], 162);
  set(Label1[2], 163);
  set(lblGameDef, 171);
  set(lblAdvOpts, 172);
  set(chkVsync, 173);
  NameControls();
}

// For assistive technology, from the captions round a control.
void Form2::NameControls() {
  for (int page = 0; page < 5; ++page) {
    optOPT[page].setAccessibleName(optOPT[page].toolTip());
    frmOPT[page].setAccessibleName(optOPT[page].toolTip());
  }
  hslVolume[0].setAccessibleName(chkAudio[0].caption() + " " + Label4.caption());
  hslVolume[1].setAccessibleName(chkAudio[1].caption() + " " + Label5.caption());
  hslBalance.setAccessibleName(Label9.caption());
  cmbRes.setAccessibleName(Label7.caption());
  tbxCustRes[0].setAccessibleName(chkCustRes.caption() + " X");
  tbxCustRes[1].setAccessibleName(chkCustRes.caption() + " Y");
  for (auto& player : optPlayer)
    player.setAccessibleName(Label11.caption() + " " + player.caption());
  cmbInputType.setAccessibleName(optOPT[2].toolTip());
  for (int column = 0; column < kColumns; ++column)
    lstInput[column].setAccessibleName(Label8[column].caption());
  hslPPC.setAccessibleName(Label2.caption());
  Drive1.setAccessibleName(optOPT[4].toolTip());
  Dir1.setAccessibleName(optOPT[4].toolTip());
  for (int index = 0; index < kLists; ++index) {
    const auto caption = Label1[index].caption();
    lstFolders[index].setAccessibleName(caption);
    cmdAddPath[index].setAccessibleName(caption + " +");
    cmdRemovePath[index].setAccessibleName(caption + " -");
  }
}

}  // namespace ui
