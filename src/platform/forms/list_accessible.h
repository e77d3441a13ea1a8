// Shared by the sources of this folder; no other code includes it.
#pragma once

namespace forms {

// Registers the interfaces of lists and drop-downs. For assistive technology, a list then has rows
// that can be pressed, which does what a double click does, and a drop-down has a name, a value and
// rows.
void MakeListsAccessible();

}  // namespace forms
