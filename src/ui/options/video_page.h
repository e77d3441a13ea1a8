// The page of Form2 with resolution and display.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/text_box.h"
#include "ui/options/option_control.h"
#include "ui/shared/page_fonts.h"

namespace ui {

class VideoPage {
 public:
  explicit VideoPage(forms::Frame& frame);

  void FillResolutions();
  // Selects the effective resolution in the list. Returns false if the list does not have it.
  bool SelectResolution();
  // Shows the effective resolution in the custom boxes.
  void FillCustomResolution();
  // The width and height that a save would store.
  std::pair<std::string, std::string> StagedResolution() const;

  std::vector<OptionControl> options();
  void DisableWhatOldEmulatorsLack();
  void ApplyLanguage();

 private:
  void chkFullscreen_Click();
  void chkCustRes_Click();

  forms::Frame& frame_;
  std::pair<std::string, std::string> shown_;  // contents of the boxes when the dialog opened

  forms::Label Label7{frame_, "Label7", {240, 420, 1215, 375}, "Resolution:", kText};
  forms::ComboBox cmbRes{frame_, "cmbRes", {1560, 360, 1575, 360}, kText};
  forms::CheckBox chkCustRes{frame_, "chkCustRes", {3720, 360, 1815, 375}, "Custom:", kText, 0};
  forms::TextBox tbxCustRes[2] = {
      {frame_, "tbxCustRes(0)", {5520, 360, 855, 375}, forms::TextBox::Accept::Digits, 4, kText},
      {frame_, "tbxCustRes(1)", {6600, 360, 855, 375}, forms::TextBox::Accept::Digits, 4, kText}};
  forms::Label lblCustRes{frame_, "lblCustRes", {6360, 405, 255, 255},
                          "x",    kText,        forms::Align::Centre};
  forms::CheckBox chkFullscreen{frame_, "chkFullscreen", {240, 960, 7215, 255}, {}, kText, 0};
  forms::CheckBox chkWidescreen{frame_, "chkWidescreen", {240, 1560, 7215, 255}, {}, kText, 0};
  forms::CheckBox chkThrottle{frame_, "chkThrottle", {240, 2160, 7215, 255}, {}, kText, 1};
  forms::CheckBox chkFPS{frame_, "chkFPS", {240, 2760, 7335, 255}, {}, kText, 0};
  forms::CheckBox chkVsync{frame_, "chkVsync", {240, 3360, 7335, 255}, {}, kText, 1};
};

}  // namespace ui
