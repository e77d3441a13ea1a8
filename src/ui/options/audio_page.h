// The page of Form2 with sound, music and balance.
#pragma once

#include <vector>

#include "platform/forms/check_box.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/scroll_bar.h"
#include "ui/options/option_control.h"
#include "ui/shared/page_fonts.h"

namespace ui {

class AudioPage {
 public:
  explicit AudioPage(forms::Frame& frame);

  std::vector<OptionControl> options();
  void DisableWhatOldEmulatorsLack();
  void ApplyLanguage();

 private:
  void hslVolume_Change(int index);
  void hslBalance_Change();

  forms::Frame& frame_;

  forms::CheckBox chkAudio[2] = {
      {frame_, "chkAudio(0)", {240, 360, 1455, 255}, "Sound", kText, 1},
      {frame_, "chkAudio(1)", {240, 1320, 1455, 255}, "Music", kText, 1}};
  forms::Label Label4{frame_,    "Label4", {2280, 390, 1575, 255},
                      "Volume:", kText,    forms::Align::Right};
  forms::Label Label5{frame_,    "Label5", {2295, 1350, 1575, 255},
                      "Volume:", kText,    forms::Align::Right};
  forms::Label lblVolume[2] = {
      {frame_, "lblVolume(0)", {3975, 390, 735, 255}, "100 %", kBold, forms::Align::Centre},
      {frame_, "lblVolume(1)", {3975, 1350, 735, 255}, "100 %", kBold, forms::Align::Centre}};
  forms::ScrollBar hslVolume[2] = {
      {frame_, "hslVolume(0)", {240, 720, 7200, 375}, 0, 100, 10, 100},
      {frame_, "hslVolume(1)", {240, 1680, 7200, 375}, 0, 100, 10, 100}};
  forms::Label Label9{frame_, "Label9", {240, 2400, 3135, 255}, "Rear/Front Balance", kText};
  forms::Label lblBalance{frame_,     "lblBalance", {1755, 2400, 4215, 255},
                          "Centered", kBold,        forms::Align::Centre};
  forms::ScrollBar hslBalance{frame_, "hslBalance", {240, 2760, 7200, 375}, -100, 100, 25, 0};
  forms::Label Label10{frame_, "Label10", {240, 3120, 7335, 255}, {}, kText, forms::Align::Spread};
  forms::CheckBox chkFlipStereo{frame_, "chkFlipStereo", {240, 3720, 7215, 255}, {}, kText, 0};
};

}  // namespace ui
