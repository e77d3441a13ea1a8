#include "support/ui_test.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

#include "base/text.h"
#include "platform/forms/application.h"

namespace support {
namespace {

struct Toolkit : testing::Environment {
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the platform without a screen can't do would drown what a test says.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
      if (!text.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    application = std::make_unique<forms::Application>();
  }
  void TearDown() override { application.reset(); }
  std::unique_ptr<forms::Application> application;
};

const auto* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

}  // namespace

std::string UiTest::tipAt(QWidget& widget, QPoint at) {
  QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
  QApplication::sendEvent(&widget, &help);
  return QToolTip::text().remove(QRegularExpression("</?span[^>]*>")).toStdString();
}

UiTest::UiTest() {
  addGames("a b");
  forms::EndProgram() = [this](int status) { ends.push_back(status); };
}

UiTest::~UiTest() {
  forms::EndProgram() = [](int status) { std::_Exit(status); };
}

void UiTest::start() {
  form = std::make_unique<ui::Form1>();
  form->Form_Load(startup::BeginLoading(Module1::AppFolder));
  ASSERT_EQ(QTest::qWaitForWindowActive(&window(), form->visible() ? 5000 : 0), form->visible());
}

void UiTest::startWith(const std::string& lines) {
  write("Config/Kestrivane.ini",
        base::ReplaceIgnoringCase(";*** Kestrivane UI\xae|[ Global ]|" + lines, "|", "\r\n"));
  start();
}

void UiTest::key(const QKeySequence& key) {
  const auto* popup = QApplication::activePopupWidget();
  const auto* target = popup ? popup : QApplication::activeWindow();
  ASSERT_TRUE(target) << "no window takes keys";
  QTest::keyClick(target->windowHandle(), key[0].key(), key[0].keyboardModifiers());
}

void UiTest::use(QWidget& window, const QString& steps) {
  static const QRegularExpression form("([^ {]+)(\\{([^{}]|(?2))*\\})?");
  for (auto found = form.globalMatch(steps); found.hasNext();) {
    const auto match = found.next();
    const auto step = match.captured(1), inside = match.captured(2);
    note("> " + step.toStdString());
    EXPECT_TRUE(!window.isVisible() || QTest::qWaitForWindowActive(&window));
    const auto useOpened = [&](QWidget& opened) {
      see(opened);
      use(opened, inside.mid(1, inside.size() - 2));
      const auto isClosed = [&] { return !opened.isVisible(); };
      // The button of an access key is seen to go down first.
      const int patience = inside.contains("=Alt+") ? 5000 : 0;  // milliseconds
      note(QTest::qWaitFor(isClosed, patience) ? "<" : "< left");
    };
    if (inside.isEmpty())
      act(window, step);
    else
      inModal(useOpened, [&] { act(window, step); });
    if (window.isVisible()) see(window);
    seeState();
  }
}

void UiTest::act(QWidget& window, const QString& step) {
  static const QRegularExpression form("^([^=~@]*)(=|~|@*)(.*)$");
  const auto parts = form.match(step);
  const auto name = parts.captured(1), kind = parts.captured(2), what = parts.captured(3);
  static const QMap<QString, QMessageBox::StandardButton> buttons = {
      {"Yes", QMessageBox::Yes},
      {"No", QMessageBox::No},
      {"Cancel", QMessageBox::Cancel},
      {"Ok", QMessageBox::Ok}};
  if (auto* box = qobject_cast<QMessageBox*>(&window))
    return box->button(buttons.value(name))->click();
  if (name.isEmpty()) return key(QKeySequence(what));
  if (auto* menu = window.findChild<QAction*>(name)) return menu->trigger();
  auto& control = get(window, name);
  if (kind == "=") {
    if (!window.isVisible()) return QTest::keyClick(&control, QKeySequence(what)[0].key());
    control.setFocus();
    return key(QKeySequence(what));
  }
  if (kind == "~") {
    const QPointF at(5, 5);
    QWheelEvent wheel(at, control.mapToGlobal(at), {}, {0, what.toInt()}, {}, {}, {}, false);
    QApplication::sendEvent(&control, &wheel);
    return;
  }
  auto* target = &control;
  QPoint place(9, control.height() / 2);
  if (const auto* list = qobject_cast<const QListWidget*>(&control); list && !kind.isEmpty()) {
    target = list->viewport();
    place = list->visualItemRect(list->item(what.toInt())).center();
  }
  QTest::mouseClick(target, Qt::LeftButton, {}, place);
  if (kind == "@@") QTest::mouseDClick(target, Qt::LeftButton, {}, place);
}

void UiTest::modify(const char* page, const std::function<void(QWidget&)>& step) {
  const auto inPage = [&](QWidget& options) {
    use(options, page);
    step(options);
  };
  inModal(inPage, [this] { use("mConfig"); });
}

void UiTest::inModal(const std::function<void(QWidget&)>& step,
                     const std::function<void()>& action) {
  const auto* before = QApplication::activeModalWidget();
  bool done = false;
  int patience = 2000;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* modal = QApplication::activeModalWidget();
    const bool opened = modal && modal != before && modal->isActiveWindow() &&
                        modal->objectName() != "frmGaming";  // that goes by itself
    if (!opened && --patience > 0) return;
    timer.stop();
    done = opened;
    if (opened) step(*modal);
    if (modal != before) modal->close();
  });
  timer.start(5);
  action();
  EXPECT_TRUE(done) << "no window opened";
}

}  // namespace support
