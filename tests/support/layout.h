#pragma once

class QWidget;

namespace support {

// Of what a window shows, nothing lies on something else unless it is meant to, all is inside its
// parent, and no text is cut off.
void ExpectLaidOut(const QWidget& window);

}  // namespace support
