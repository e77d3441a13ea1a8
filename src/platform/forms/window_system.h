// What differs between window systems and the toolkit does not level out. Used only by the sources
// of this folder.
#pragma once

class QApplication;
class QKeyEvent;

namespace forms {

// Must be called once, before the first key event: IsNewPress relies on it.
void WatchKeys(QApplication& application);

// Whether the window system reports the press as a new one. The toolkit takes a press for a
// repetition if it has not seen the key's release, which no window gets while none is active. Must
// be called exactly once for each press. Always false where the toolkit's own mark is exact.
bool IsNewPress(const QKeyEvent& press);

// Waits until the window system has given the focus of a closed window to the next one, where that
// takes time. Input that arrives meanwhile is handled afterwards.
void AwaitFocus();

}  // namespace forms
