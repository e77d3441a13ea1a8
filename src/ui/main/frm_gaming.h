// The small window that stands over the main window while a game runs.
#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/forms/form.h"
#include "platform/forms/image.h"
#include "platform/forms/label.h"
#include "platform/forms/shape.h"

namespace ui {

class frmGaming : public forms::Form {
 public:
  // Shows the title and icon of a game. `main` is repainted after a report has covered it.
  frmGaming(forms::Form& main, const std::string& title, const forms::Picture& icon);

 private:
  // Runs the whole play: starts the emulator, waits, counts the play, shows a report, closes the
  // window.
  void Form_Activate();
  std::string KeysText() const;
  void PauseAfterGoodEnd();
  void AnnounceTime();
  void ShowReport();

  forms::Form& main_;
  platform::Moment StartTime;
  long long announcedMinute_ = -1;

  forms::Shape Shape1{*this, "Shape1", {0, 0, 5955, 4290}};
  forms::Image imgIcon{*this, "imgIcon", {2730, 240, 480, 480}, forms::Stretch::No};
  forms::Label lblGameTitle{*this, "lblGameTitle", {90, 720, 5775, 855},
                            {},    {14.25, true},  forms::Align::Centre};
  forms::Label Label1{*this,          "Label1",   {30, 1560, 5895, 375},
                      "Gaming time:", {12, true}, forms::Align::Centre};
  forms::Label lblTime{*this,     "lblTime", {30, 1920, 5895, 255},
                       "0:00:00", {12},      forms::Align::Centre};
  forms::Label lblInfo{*this, "lblInfo", {150, 2640, 5655, 1455}, {}, {}, forms::Align::Right};
  forms::Label Label2{*this,           "Label2",      {240, 2760, 1485, 1215},
                      " IN GAME KEYS", {14.25, true}, forms::Align::Centre};
};

}  // namespace ui
