// Shows the report of the emulator after a failed run.
#pragma once

#include "platform/forms/form.h"
#include "platform/forms/text_view.h"

namespace ui {

class Form4 : public forms::Form {
 public:
  Form4();

 private:
  void Form_Load();

  forms::TextView tbxError{*this, "tbxError", {100, 0, 10830, 7280}};
};

}  // namespace ui
