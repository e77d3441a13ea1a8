#include "support/ui_test.h"

#include <QHelpEvent>
#include <QRegularExpression>
#include <QTimer>
#include <QToolTip>
#include <cstdio>
#include <cstdlib>

#include "base/text.h"
#include "platform/code_page.h"
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

std::string UiTest::textOf(const QWidget& window, const std::string& name) {
  const auto& child = get(window, name);
  const auto text = child.property("text");
  return (text.isValid() ? text : child.property("plainText")).toString().toStdString();
}

std::string UiTest::indexed(const char* name, int index) {
  return name + ("(" + std::to_string(index) + ")");
}

std::string UiTest::rows(const QListWidget& list) {
  std::string text;
  for (int row = 0; row < list.count(); ++row)
    text += list.item(row)->text().toStdString() + (list.item(row)->isSelected() ? "*|" : "|");
  return text;
}

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

void UiTest::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const auto* popup = QApplication::activePopupWidget();
  const auto* target = popup ? popup : QApplication::activeWindow();
  ASSERT_TRUE(target) << "no window takes keys";
  QTest::keyClick(target->windowHandle(), key, modifiers);
}

void UiTest::clickRow(const QListWidget& list, int row, bool twice) {
  const auto at = list.visualItemRect(list.item(row)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}

void UiTest::use(const QWidget& window, const QString& controls) {
  for (const auto& part : controls.split(' ', Qt::SkipEmptyParts)) {
    auto& control = get(window, part.section('=', 0, 0).toStdString());
    const QKeySequence keys(part.section('=', 1));
    if (keys.isEmpty())
      QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(9, control.height() / 2));
    else
      QTest::keyClick(&control, keys[0].key());
  }
}

void UiTest::inModal(const char* name, const std::function<void(QWidget&)>& step,
                     const std::function<void()>& action) {
  bool done = false;
  int patience = 2000;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* modal = QApplication::activeModalWidget();
    const bool wanted = modal && modal->isActiveWindow() && modal->objectName() == name;
    if (!wanted && --patience > 0) return;
    timer.stop();
    done = wanted;
    if (wanted) step(*modal);
    if (modal) modal->close();
  });
  timer.start(5);
  action();
  EXPECT_TRUE(done) << "no window " << name;
}

void UiTest::answer(QMessageBox::StandardButton button, const std::function<void()>& action) {
  const auto press = [&](QWidget& box) { dynamic_cast<QMessageBox&>(box).button(button)->click(); };
  inModal("", press, action);
}

void UiTest::options(const std::function<void(QWidget&)>& step) {
  inModal("Form2", step, [this] { item("mConfig").trigger(); });
}

void UiTest::gameOptions(int row, const std::function<void(QWidget&)>& step) {
  clickRow(row);
  inModal("Form2", step, [this] { click("cmdConfGame"); });
}

std::string UiTest::saved() {
  std::string text;
  const auto decoded = platform::DecodeCodePage(file());
  for (const auto line : base::Split(decoded, base::kLineEnd))
    if (!line.empty() && !line.starts_with(";*") && line != "[ Global ]" &&
        (!line.starts_with("Input") || line.starts_with("InputKey") ||
         line.starts_with("InputMouse")))
      text += std::string(line) + "|";
  return text;
}

}  // namespace support
