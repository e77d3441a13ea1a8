// The fonts of the pages of Form2.
#pragma once

#include "platform/forms/control.h"

namespace ui {

inline constexpr forms::FontStyle kText{9.75};
inline constexpr forms::FontStyle kBold{9.75, true};
inline constexpr forms::FontStyle kSmallBold{8.25, true};
inline constexpr forms::FontStyle kLink{8.25, false, false, true};

}  // namespace ui
