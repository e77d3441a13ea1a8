// Shared by the sources of this folder; no other code includes it.
#pragma once

namespace forms {

// Makes a press by assistive technology on a button, check box or option button follow the rules
// for all input: it has no effect in a window that takes none, and it acts after the caller has got
// its answer.
void MakeButtonsAccessible();

}  // namespace forms
