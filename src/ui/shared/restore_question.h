#pragma once

#include "platform/forms/form.h"

namespace ui {

// Asks the user whether to restore defaults. A Yes does not count if the asking window has closed
// meanwhile: the scope may have changed by then.
bool AskForDefaults(const forms::Form& asking);

}  // namespace ui
