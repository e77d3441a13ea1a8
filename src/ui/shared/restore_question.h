#pragma once

#include "platform/forms/form.h"

namespace ui {

// Asks whether defaults are really wanted. They are not where the window that asks has closed while
// its question went: what it showed may be another's by then.
bool AskForDefaults(const forms::Form& asking);

}  // namespace ui
