// Shared by the sources of this folder; no other code includes it.
#pragma once

namespace forms {

// From then on assistive technology sees each list as a list of rows that can be pressed, which
// does what a double click does, and each drop-down as a control with a name, a value and rows.
void MakeListsAccessible();

}  // namespace forms
