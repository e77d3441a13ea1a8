#include "platform/forms/application.h"

#include <QApplication>
#include <cstdlib>

#include "platform/forms/control_accessible.h"
#include "platform/forms/list_accessible.h"

// Pulls the pictures out of the library; has to stand outside any namespace.
static void LoadAssets() { Q_INIT_RESOURCE(assets); }

namespace forms {

struct Application::Native {
  // The toolkit wants a command line for as long as it lives; the program has none.
  int count = 1;
  char name[13] = "KestrivaneUI";
  char* words[2] = {name, nullptr};
  QApplication application{count, words};
};

Application::Application() : native_(std::make_unique<Native>()) {
  LoadAssets();
  MakeControlsAccessible();
  MakeListsAccessible();
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationDisplayName({});
  QGuiApplication::setDesktopFileName(QStringLiteral("kestrivane-ui"));
}

Application::~Application() = default;

void Application::run() { QApplication::exec(); }

void LeaveEventLoop() { QApplication::quit(); }

void DoEvents() { QApplication::processEvents(); }

std::function<void(int status)>& EndProgram() {
  static std::function<void(int)> end = [](int status) { std::_Exit(status); };
  return end;
}

}  // namespace forms
