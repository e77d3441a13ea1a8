#include "platform/forms/application.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QHelpEvent>
#include <QPalette>
#include <QTimer>
#include <chrono>
#include <cstdlib>

#include "platform/app_folder.h"
#include "platform/clock.h"
#include "platform/forms/control_accessible.h"
#include "platform/forms/list_accessible.h"
#include "platform/forms/native.h"

// Pulls the pictures out of the library; has to stand outside any namespace.
static void LoadAssets() { Q_INIT_RESOURCE(assets); }

namespace forms {

namespace {

// The loader takes the toolkit from this folder of ours where there is one of the version that the
// program was built with; its plugins must come from there too, and only from there.
void UseBundledPlugins() {
  const QDir plugins(QString::fromStdString(platform::ProgramFolder()) +
                     QStringLiteral("/KestrivaneUI-Qt-" QT_VERSION_STR "/plugins"));
  if (plugins.exists()) QCoreApplication::setLibraryPaths({plugins.path()});
}

// A wait during which assistive technology is answered, but nothing that a person does is obeyed.
void SleepAnswering(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

bool dropsInput = false;

// What holds for every window.
class Rules : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
        // Told of every key, also of one that is dropped.
        return closesAgain(*static_cast<QKeyEvent*>(event), watched->isWindowType()) || dropsInput;
      case QEvent::ToolTip:
        return watched->isWidgetType() && showToolTip(*static_cast<QWidget*>(watched), *event);
      default:
        return dropsInput && IsInput(*event);
    }
  }

 private:
  // A key that is held down would go on to answer, close and press what comes next.
  bool closesAgain(const QKeyEvent& event, bool first) {
    const bool press = event.type() == QEvent::KeyPress;
    const bool held = press && (event.isAutoRepeat() || (first && repeatsUntold(event)));
    if (first && !press) released_ = {event.key(), event.timestamp()};
    const auto key = event.key();
    return held && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter);
  }
  // The toolkit misses a repetition where the window system's pair of release and press, which has
  // one time, comes in two pieces.
  bool repeatsUntold(const QKeyEvent& press) const {
    return press.nativeScanCode() != 0 && press.key() == released_.key &&
           press.timestamp() == released_.time;
  }
  // Assistive technology gets the tool tip as it is set; only what is drawn could be taken for
  // markup.
  static bool showToolTip(QWidget& widget, const QEvent& event) {
    if (widget.toolTip().isEmpty()) return false;
    ShowPlainToolTip(static_cast<const QHelpEvent&>(event), widget.toolTip(), widget);
    return true;
  }

  struct {
    int key = 0;
    quint64 time = 0;
  } released_;
};

}  // namespace

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

struct Application::Native {
  // The toolkit wants a command line for as long as it lives; the program has none.
  int count = 1;
  char name[13] = "KestrivaneUI";
  char* words[2] = {name, nullptr};
  QApplication application{count, words};
  Rules rules;
};

Application::Application() {
  LoadAssets();
  UseBundledPlugins();
  native_ = std::make_unique<Native>();
  QApplication::instance()->installEventFilter(&native_->rules);
  QApplication::setPalette(WithReadableSelection(QApplication::palette()));
  MakeControlsAccessible();
  MakeListsAccessible();
  platform::TheClock().sleep = [sleep = platform::TheClock().sleep](auto time) {
    QAccessible::isActive() ? SleepAnswering(time) : sleep(time);
  };
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationDisplayName({});
  QGuiApplication::setDesktopFileName(QStringLiteral("kestrivane-ui"));
}

Application::~Application() = default;

void Application::run() { QApplication::exec(); }

void LeaveEventLoop() { QApplication::quit(); }

void DoEvents() {
  dropsInput = true;
  QGuiApplication::sync();  // the window system may still hold some
  QApplication::processEvents();
  dropsInput = false;
}

std::function<void(int status)>& EndProgram() {
  static std::function<void(int)> end = [](int status) { std::_Exit(status); };
  return end;
}

}  // namespace forms
