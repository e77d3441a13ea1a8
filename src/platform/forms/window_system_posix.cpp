#include "platform/forms/window_system.h"

#include <QGuiApplication>

namespace forms {

void WatchKeys(QApplication& /*application*/) {}

bool IsNewPress(const QKeyEvent& /*press*/) { return false; }

void AwaitFocus() {}

bool KnowsWindowPlaces() {
  static const bool known = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
  return known;
}

}  // namespace forms
