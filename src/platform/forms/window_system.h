// Differences between window systems that the toolkit does not hide. Shared by the sources of this
// folder; no other code includes it.
#pragma once

class QApplication;
class QKeyEvent;

namespace forms {

// Must be called once, before the first key event: IsNewPress relies on it.
void WatchKeys(QApplication& application);

// Whether the window system reports the press as a new one. The toolkit marks a press as a
// repetition if no window was active when the key was released. Must be called exactly once for
// each press. Always false on systems where the toolkit's mark is right.
bool IsNewPress(const QKeyEvent& press);

// Waits until the window system has moved the focus from a closed window to the next one, on
// systems where that takes time. Input that arrives meanwhile is handled afterwards.
void AwaitFocus();

// Whether the toolkit knows where windows are on the screen. If it does not, the places of two
// clicks in different windows can't be compared.
bool KnowsWindowPlaces();

}  // namespace forms
