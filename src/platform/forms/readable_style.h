// Shared by the sources of this folder; no other code includes it.
#pragma once

class QStyle;

namespace forms {

// The desktop's style, changed so that the thumb of a bar and the edge of an empty check box or
// option button are visible, and option buttons in a row do not touch. The caller owns it.
QStyle* NewReadableStyle();

}  // namespace forms
