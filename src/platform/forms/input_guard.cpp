#include "platform/forms/input_guard.h"

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <QWidget>
#include <utility>

#include "platform/forms/window_system.h"

namespace forms {
namespace {

bool Paused = false;

// Whether the event is user input, or made by the toolkit from user input.
bool IsInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
      return true;
    default:
      return false;
  }
}

bool IsOfMouse(const QEvent& event) {
  return event.type() >= QEvent::MouseButtonPress && event.type() <= QEvent::MouseMove;
}

// Whether `other` is the window itself or was opened from it, as popups are.
bool IsPartOf(const QWidget& window, const QWidget& other) {
  return &window == &other || window.isAncestorOf(&other) ||
         (other.parentWidget() && IsPartOf(window, *other.parentWidget()->window()));
}

// Recognises repetitions of a key that is held down. They must not press a button or close a window
// that the first press has brought up.
class HeldKeys {
 public:
  // Must be called for each key event in order. A window gets each event first, its controls get
  // the same event again.
  bool repeats(const QKeyEvent& event, bool ofWindow) {
    const bool press = event.type() == QEvent::KeyPress;
    if (ofWindow && event.spontaneous()) judge(event, press);
    if (!press || isNewPress_) return false;
    return event.isAutoRepeat() || (ofWindow && event.spontaneous() && isMissed_);
  }

 private:
  void judge(const QKeyEvent& event, bool press) {
    isNewPress_ = press && IsNewPress(event);
    // The window system reports a repetition as a release and a press with the same time. If the
    // two arrive separately, the toolkit does not mark the press as a repetition. Copies from
    // assistive technology have neither scan code nor time and are left out.
    isMissed_ = press && event.nativeScanCode() != 0 && event.key() == released_.key &&
                event.timestamp() == released_.time;
    if (!press && !event.isAutoRepeat()) released_ = {event.key(), event.timestamp()};
  }

  struct {
    int key = 0;
    quint64 time = 0;
  } released_;
  bool isNewPress_ = false;  // the last press is new, even if it is marked as a repetition
  bool isMissed_ = false;    // the last press is a repetition that is not marked as one
};

// Drops a key press that was meant for a drop-down list. The list closes already at the
// ShortcutOverride event before the key press. On window systems where popups do not grab the
// keyboard, the key press then reaches the window below.
class PopupKeys {
 public:
  // Must be called for each ShortcutOverride event. A control's parents get the same event again.
  void shortcutOverride(const QKeyEvent& event) {
    if (QApplication::activePopupWidget())
      taken_ = {event.key(), event.timestamp()};
    else if (event.timestamp() != taken_.time)
      taken_ = {};
  }
  bool drops(const QKeyEvent& key) {
    if (key.type() == QEvent::KeyRelease) taken_ = {};
    return key.key() == taken_.key && !QApplication::activePopupWidget();
  }

 private:
  struct {
    int key = 0;
    quint64 time = 0;
  } taken_;
};

// Drops the second click of a double click, and those after it, if a window has opened or closed
// since the first one. The user did not mean the window that is there now.
class SecondClicks {
 public:
  void windowOpenedOrClosed() { windowsChanged_ = true; }
  // The window system asks a window to close, perhaps because its frame was clicked. The program
  // does not get such a click.
  void frameClosed() {
    sinceFrame_.start();
    frameClick_ = QCursor::pos();
  }

  bool drops(const QMouseEvent& event) {
    // A press that a control ignores comes again for its parents.
    const bool isNew = event.timestamp() != time_;
    if ((event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick) &&
        isNew)
      dropping_ = hitsOtherWindow(event);
    return event.type() == QEvent::MouseButtonRelease ? std::exchange(dropping_, false) : dropping_;
  }

 private:
  bool hitsOtherWindow(const QMouseEvent& press) {
    const auto interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    const auto place = press.globalPosition().toPoint();
    const bool follows =
        press.timestamp() - time_ < static_cast<quint64>(interval) && isNear(place, place_);
    const bool followsFrame =
        sinceFrame_.isValid() && !sinceFrame_.hasExpired(interval) && isNear(place, frameClick_);
    if (!follows && !followsFrame) windowsChanged_ = false;
    time_ = press.timestamp();
    place_ = place;
    return windowsChanged_;
  }
  static bool isNear(QPoint one, QPoint other) {
    return !KnowsWindowPlaces() ||
           (one - other).manhattanLength() <= QGuiApplication::styleHints()->startDragDistance();
  }

  quint64 time_ = 0;  // of the last press, in milliseconds
  QPoint place_;
  QElapsedTimer sinceFrame_;  // since a window was closed by its frame
  QPoint frameClick_;
  bool windowsChanged_ = false;  // since the last press that was not a second click
  bool dropping_ = false;        // all events of a press up to its release
};

// Assistive technology can move the focus in a window that a modal window blocks. When the window
// is no longer blocked, its focus returns to where the user left it.
class BlockedFocus {
 public:
  void windowBlocked(const QWidget& window) { left_[&window] = window.focusWidget(); }
  void windowUnblocked(const QWidget& window) {
    const auto left = left_.take(&window);
    if (left && left != window.focusWidget()) left->setFocus(Qt::OtherFocusReason);
  }

 private:
  QHash<const QWidget*, QPointer<QWidget>> left_;
};

class Guard : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    const bool key = type == QEvent::KeyPress || type == QEvent::KeyRelease;
    // The three members below must see every key and click, also those dropped for other reasons.
    if (key) {
      const auto& pressed = *static_cast<QKeyEvent*>(event);
      const bool repeated = repeats(pressed, watched->isWindowType());
      if (popupKeys_.drops(pressed) || repeated) return true;
    }
    if (type == QEvent::ShortcutOverride)
      popupKeys_.shortcutOverride(*static_cast<QKeyEvent*>(event));
    const bool ofWidget = watched->isWidgetType();
    if (IsOfMouse(*event) && (ofWidget || Paused) &&
        clicks_.drops(*static_cast<QMouseEvent*>(event)))
      return true;
    if (!ofWidget) return Paused && IsInput(*event);
    const auto& widget = *static_cast<QWidget*>(watched);
    if ((type == QEvent::Show || type == QEvent::Hide) && opensAndCloses(widget))
      clicks_.windowOpenedOrClosed();
    if (type == QEvent::Close && event->spontaneous()) clicks_.frameClosed();
    if (type == QEvent::WindowBlocked) blocked_.windowBlocked(widget);
    if (type == QEvent::WindowUnblocked) blocked_.windowUnblocked(widget);
    return IsInput(*event) && !TakesInput(widget);
  }

 private:
  bool repeats(const QKeyEvent& event, bool ofWindow) {
    // The bridge to assistive technology takes each key event and sends a copy later. Installing
    // this filter again puts it in front of the bridge's filter, so that a key pressed during a
    // pause is dropped here and does not come back after it.
    if (ofWindow && !event.spontaneous())
      QMetaObject::invokeMethod(
          this, [this] { qApp->installEventFilter(this); }, Qt::QueuedConnection);
    const bool held = keys_.repeats(event, ofWindow);
    return held && (event.key() == Qt::Key_Escape || event.key() == Qt::Key_Return ||
                    event.key() == Qt::Key_Enter);
  }
  // Menus and drop-down lists do not count: they rightly open at one click and close at the next.
  static bool opensAndCloses(const QWidget& widget) {
    const auto type = widget.windowType();
    return widget.isWindow() && type != Qt::Popup && type != Qt::ToolTip;
  }

  HeldKeys keys_;
  PopupKeys popupKeys_;
  SecondClicks clicks_;
  BlockedFocus blocked_;
};

}  // namespace

void GuardInput(QApplication& application) {
  WatchKeys(application);
  application.installEventFilter(new Guard(&application));
}

bool TakesInput(const QWidget& widget) {
  const auto& window = *widget.window();
  const auto* modal = QApplication::activeModalWidget();
  return !Paused && window.isVisible() && (!modal || IsPartOf(*modal, window));
}

InputPause::InputPause() : before_(std::exchange(Paused, true)) {}

InputPause::~InputPause() { Paused = before_; }

void PressLater(QWidget& widget, std::function<void()> press) {
  if (!TakesInput(widget)) return;
  const auto pressIfTaken = [&widget, press = std::move(press)] {
    if (TakesInput(widget)) press();
  };
  QMetaObject::invokeMethod(&widget, pressIfTaken, Qt::QueuedConnection);
}

}  // namespace forms
