// The about box.
#pragma once

#include "platform/forms/form.h"
#include "platform/forms/image.h"
#include "platform/forms/label.h"
#include "platform/forms/shape.h"

namespace ui {

class Form3 : public forms::Form {
 public:
  Form3();

 private:
  void Form_Load();

  static constexpr forms::FontStyle kTitle{24, true};
  static constexpr forms::FontStyle kMark{14.25, true};

  forms::Shape Shape1{*this, "Shape1", {0, 0, 4680, 3090}};
  forms::Label Label1{*this, "Label1", {180, 360, 4095, 615}, "Kestrivane UI", kTitle};
  forms::Label Label2{*this, "Label2", {170, 390, 4095, 615}, "Kestrivane UI", kTitle};
  forms::Label Label6{*this, "Label6", {4240, 360, 255, 375}, "®", kMark};
  forms::Label Label5{*this, "Label5", {4225, 380, 255, 375}, "®", kMark};
  forms::Label Label4{*this, "Label4",     {1725, 900, 2775, 255},
                      {},    {8.25, true}, forms::Align::Right};
  forms::Image Image1{*this, "Image1", {1973, 1320, 735, 735}, forms::Stretch::Yes};
  forms::Label lblCredits{*this, "lblCredits",        {240, 2280, 4215, 255},
                          {},    {8.25, false, true}, forms::Align::Centre};
  forms::Label Label3{*this,
                      "Label3",
                      {120, 2640, 4455, 255},
                      "A front-end for the Kestrivane emulator",
                      {},
                      forms::Align::Centre};
};

}  // namespace ui
