#include "support/ui_test.h"

#include <QApplication>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QTest>
#include <QToolTip>
#include <cstdlib>

#include "platform/forms/application.h"
#include "startup/startup.h"

namespace support {
namespace {

struct Toolkit : testing::Environment {
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
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

void UiTest::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const auto* popup = QApplication::activePopupWidget();
  const auto* target = popup ? popup : QApplication::activeWindow();
  ASSERT_TRUE(target) << "no window takes keys";
  QTest::keyClick(target->windowHandle(), key, modifiers);
}

void UiTest::click(const char* name) const { QTest::mouseClick(&widget(name), Qt::LeftButton); }

void UiTest::clickRow(const QListWidget& list, int row, bool twice) {
  const auto at = list.visualItemRect(list.item(row)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
}

WhenModal::WhenModal(const char* name, std::function<void(QWidget&)> step)
    : name_(name), step_(std::move(step)) {
  startTimer(5);
}

WhenModal::~WhenModal() { EXPECT_TRUE(done_) << "no window " << name_.toStdString(); }

void WhenModal::timerEvent(QTimerEvent* event) {
  auto* modal = QApplication::activeModalWidget();
  const bool wanted = modal && modal->isActiveWindow() && modal->objectName() == name_;
  if (!wanted && --patience_ > 0) return;
  killTimer(event->timerId());
  done_ = wanted;
  if (wanted) step_(*modal);
  if (modal) modal->close();
}

}  // namespace support
