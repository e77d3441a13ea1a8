// Shared by the sources of this folder; no other code includes it.
#pragma once

class QStyle;

namespace forms {

// The desktop's own style, but one sees the thumb of a bar and the edge of an empty check box or
// option button, and option buttons in a row keep apart. The caller owns it.
QStyle* NewReadableStyle();

}  // namespace forms
