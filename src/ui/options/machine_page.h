// The page of Form2 with the options of the emulated machine.
#pragma once

#include <vector>

#include "platform/forms/check_box.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/scroll_bar.h"
#include "ui/options/option_control.h"
#include "ui/shared/page_fonts.h"

namespace ui {

class MachinePage {
 public:
  explicit MachinePage(forms::Frame& frame);

  std::vector<OptionControl> options();
  void DisableWhatOldEmulatorsLack();
  void ApplyLanguage();

 private:
  void hslPPC_Change();

  forms::Frame& frame_;

  forms::Label Label2{frame_, "Label2", {240, 360, 3135, 255}, "PowerPC's frequency:", kText};
  forms::Label lblPPC{frame_,   "lblPPC", {3360, 360, 975, 255},
                      "50 MHz", kBold,    forms::Align::Centre};
  forms::ScrollBar hslPPC{frame_, "hslPPC", {240, 720, 7215, 375}, 1, 1000, 10, 50};
  forms::Label Label3[2] = {
      {frame_, "Label3(0)", {240, 1080, 255, 255}, "1", kText},
      {frame_, "Label3(1)", {6840, 1080, 615, 255}, "1000", kText, forms::Align::Right}};
  forms::CheckBox chkMulti{frame_, "chkMulti", {240, 1800, 7215, 255}, {}, kText, 1};
  forms::Label Label6{frame_, "Label6", {240, 2160, 7215, 1815}, {}, kText};
};

}  // namespace ui
