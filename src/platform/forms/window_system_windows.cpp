#include "platform/forms/window_system.h"

#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QSet>
#include <QTimer>
#include <chrono>

namespace forms {
namespace {

// Virtual keys that were up before their last press, until IsNewPress takes them out.
QSet<quint32> NewlyPressed;

class KeyMessages : public QAbstractNativeEventFilter {
 public:
  bool nativeEventFilter(const QByteArray& /*type*/, void* native, qintptr* /*result*/) override {
    const auto& message = *static_cast<const MSG*>(native);
    constexpr LPARAM kWasDown = 1 << 30;
    if ((message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) &&
        !(message.lParam & kWasDown))
      NewlyPressed.insert(static_cast<quint32>(message.wParam));
    return false;
  }
};

}  // namespace

void WatchKeys(QApplication& application) {
  static KeyMessages messages;
  application.installNativeEventFilter(&messages);
}

bool IsNewPress(const QKeyEvent& press) { return NewlyPressed.remove(press.nativeVirtualKey()); }

// Under wine, the window manager moves the focus to the window below. If that window closes before
// it has the focus, no window gets it.
void AwaitFocus() {
  constexpr std::chrono::milliseconds kEnough(100);
  QEventLoop loop;
  QTimer::singleShot(kEnough, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

bool KnowsWindowPlaces() { return true; }

}  // namespace forms
