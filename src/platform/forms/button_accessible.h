// Shared by the sources of this folder; no other code includes it.
#pragma once

namespace forms {

// From then on assistive technology presses buttons, check boxes and option buttons as a person
// does: not in a window that takes no input, and not while the caller waits.
void MakeButtonsAccessible();

}  // namespace forms
