#include "platform/forms/input_guard.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>
#include <utility>

namespace forms {
namespace {

bool Paused = false;

// What a person does, and what the toolkit makes of it.
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

// A popup belongs to the window that it was opened from.
bool IsPartOf(const QWidget& window, const QWidget& other) {
  return &window == &other || window.isAncestorOf(&other) ||
         (other.parentWidget() && IsPartOf(window, *other.parentWidget()->window()));
}

// A key that is held down would go on to answer, close and press what comes next.
class HeldKeys {
 public:
  // Told of each key event of a window, in their order. Those of its controls are the same once
  // more.
  bool repeats(const QKeyEvent& event, bool ofWindow) {
    const bool press = event.type() == QEvent::KeyPress;
    if (ofWindow && event.spontaneous()) judge(event, press);
    return press && (event.isAutoRepeat() ? !fresh_ : ofWindow && event.spontaneous() && untold_);
  }

 private:
  void judge(const QKeyEvent& event, bool press) {
    const auto key = event.key();
    const auto time = event.timestamp();
    // No system waits longer before it repeats a key. One that takes a key for held down all the
    // same did not see its release, since no window was active then.
    constexpr quint64 kLongestWait = 1200;  // milliseconds
    const auto down = down_.find(key);
    fresh_ = press && down != down_.end() && time - *down > kLongestWait;
    // The toolkit misses a repetition where the window system's pair of release and press, which
    // has one time, comes in two pieces. The copies that come back from assistive technology have
    // lost their time, and are not judged.
    untold_ =
        press && event.nativeScanCode() != 0 && key == released_.key && time == released_.time;
    if (press && (!event.isAutoRepeat() || down != down_.end())) down_.insert(key, time);
    if (press || event.isAutoRepeat()) return;
    released_ = {key, time};
    down_.remove(key);
  }

  QHash<int, quint64> down_;  // keys whose release is to come, with the time of their last press
  struct {
    int key = 0;
    quint64 time = 0;
  } released_;
  bool fresh_ = false;
  bool untold_ = false;
};

// A drop-down list closes at the question whether a key is a shortcut. The key press behind it is
// meant for the list too, but where the window system has no grab by popups it comes to the window
// below.
class PopupKeys {
 public:
  // Told of each question, which climbs from a control to its parents.
  void asked(const QKeyEvent& question) {
    if (QApplication::activePopupWidget())
      taken_ = {question.key(), question.timestamp()};
    else if (question.timestamp() != taken_.time)
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

// The second click of a double click is meant for what stood there at the first one, not for what
// came up since because a window opened or closed.
class SecondClicks {
 public:
  void windowOpenedOrClosed() { windowsChanged_ = true; }

  bool drops(const QMouseEvent& event) {
    if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick)
      dropping_ = goesThrough(event);
    if (event.type() != QEvent::MouseButtonRelease) return dropping_;
    released_ = true;
    return std::exchange(dropping_, false);
  }

 private:
  bool goesThrough(const QMouseEvent& press) {
    const auto& hints = *QGuiApplication::styleHints();
    const auto place = press.globalPosition().toPoint();
    const bool follows =
        std::exchange(released_, false) &&
        press.timestamp() - time_ < static_cast<quint64>(hints.mouseDoubleClickInterval()) &&
        (place - place_).manhattanLength() <= hints.startDragDistance();
    if (!follows) windowsChanged_ = false;
    time_ = press.timestamp();
    place_ = place;
    return follows && windowsChanged_;
  }

  quint64 time_ = 0;  // of the last press, in milliseconds
  QPoint place_;
  bool windowsChanged_ = false;  // since the last press that no other one led up to
  bool released_ = false;
  bool dropping_ = false;  // what belongs to a press, up to its release
};

class Guard : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    const bool key = type == QEvent::KeyPress || type == QEvent::KeyRelease;
    // Told of every key and click, also of those that are dropped for another reason.
    if (key) {
      const auto& pressed = *static_cast<QKeyEvent*>(event);
      const bool repeated = repeats(pressed, watched->isWindowType());
      if (popupKeys_.drops(pressed) || repeated) return true;
    }
    if (type == QEvent::ShortcutOverride) popupKeys_.asked(*static_cast<QKeyEvent*>(event));
    const bool ofWidget = watched->isWidgetType();
    if (IsOfMouse(*event) && (ofWidget || Paused) &&
        clicks_.drops(*static_cast<QMouseEvent*>(event)))
      return true;
    if (!ofWidget) return Paused && IsInput(*event);
    const auto& widget = *static_cast<QWidget*>(watched);
    if ((type == QEvent::Show || type == QEvent::Hide) && opensAndCloses(widget))
      clicks_.windowOpenedOrClosed();
    return IsInput(*event) && !TakesInput(widget);
  }

 private:
  bool repeats(const QKeyEvent& event, bool ofWindow) {
    // The bridge to assistive technology takes each key and gives a copy back later. This guard has
    // to stand before it: a key of a pause must not come back behind it.
    if (ofWindow && !event.spontaneous())
      QMetaObject::invokeMethod(
          this, [this] { qApp->installEventFilter(this); }, Qt::QueuedConnection);
    const bool held = keys_.repeats(event, ofWindow);
    return held && (event.key() == Qt::Key_Escape || event.key() == Qt::Key_Return ||
                    event.key() == Qt::Key_Enter);
  }
  // Menus and the lists of drop-downs open under a click and close at the next one as they should.
  static bool opensAndCloses(const QWidget& widget) {
    const auto type = widget.windowType();
    return widget.isWindow() && type != Qt::Popup && type != Qt::ToolTip;
  }

  HeldKeys keys_;
  PopupKeys popupKeys_;
  SecondClicks clicks_;
};

}  // namespace

void GuardInput(QApplication& application) {
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
