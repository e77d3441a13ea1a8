#include "platform/forms/application.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QHelpEvent>
#include <QPalette>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdlib>

#include "platform/app_folder.h"
#include "platform/clock.h"
#include "platform/forms/button_accessible.h"
#include "platform/forms/control_accessible.h"
#include "platform/forms/input_guard.h"
#include "platform/forms/native.h"
#include "platform/forms/readable_style.h"
#include "platform/forms/rows_accessible.h"

// Registers the pictures that are linked into the program. The macro must be used outside any
// namespace.
static void LoadAssets() { Q_INIT_RESOURCE(assets); }

namespace forms {

namespace {

// If this folder exists, the loader took the toolkit from it. Then the plugins must come from there
// too, and from nowhere else.
void UseBundledPlugins() {
  const QDir plugins(QString::fromStdString(platform::ProgramFolder()) +
                     QStringLiteral("/KestrivaneUI-Qt-" QT_VERSION_STR "/plugins"));
  if (plugins.exists()) QCoreApplication::setLibraryPaths({plugins.path()});
}

// Waits. Meanwhile questions of assistive technology are answered, but input is dropped.
void SleepAnswering(std::chrono::milliseconds time) {
  const InputPause pause;
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

// Shows all tool tips as plain text. The toolkit would take some for markup when it draws them.
class ToolTips : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::ToolTip && watched->isWidgetType() &&
           show(*static_cast<QWidget*>(watched), *event);
  }

 private:
  static bool show(QWidget& widget, const QEvent& event) {
    if (widget.toolTip().isEmpty()) return false;
    ShowPlainToolTip(static_cast<const QHelpEvent&>(event), widget.toolTip(), widget);
    return true;
  }
};

}  // namespace

struct Application::Native {
  // The toolkit needs a command line that lives as long as it does.
  int argc = 1;
  char name[13] = "KestrivaneUI";
  char* argv[2] = {name, nullptr};
  QApplication application{argc, argv};
  ToolTips toolTips;
};

Application::Application() {
  LoadAssets();
  UseBundledPlugins();
  native_ = std::make_unique<Native>();
  GuardInput(native_->application);
  native_->application.installEventFilter(&native_->toolTips);
  QApplication::setStyle(NewReadableStyle());
  QApplication::setPalette(WithReadableSelection(QApplication::palette()));
  MakeButtonsAccessible();
  MakeControlsAccessible();
  MakeListsAccessible();
  MakeDropDownsAccessible();
  MakeTreesAccessible();
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
  const InputPause pause;
  QGuiApplication::sync();  // fetches events that are still at the window system
  QApplication::processEvents();
}

std::function<void(int status)>& EndProgram() {
  static std::function<void(int)> end = [](int status) { std::_Exit(status); };
  return end;
}

}  // namespace forms
