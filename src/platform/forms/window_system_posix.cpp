#include "platform/forms/window_system.h"

namespace forms {

void WatchKeys(QApplication& /*application*/) {}

bool IsNewPress(const QKeyEvent& /*press*/) { return false; }

void AwaitFocus() {}

}  // namespace forms
