#include "support/ui_test.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QClipboard>
#include <QDesktopServices>
#include <QHelpEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>
#include <QWheelEvent>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

#include "base/text.h"
#include "platform/code_page.h"
#include "platform/forms/application.h"
#include "support/snapshot.h"

namespace support {
namespace {

struct Toolkit : testing::Environment {
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // Drops the many messages about what the platform without a screen can't do.
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

QAccessibleInterface* Accessible(QObject* object) {
  return QAccessible::queryAccessibleInterface(object);
}

// The text of the tool tip at this place, with its markup except <span>.
QString TipAt(QWidget& widget, QPoint at) {
  QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
  QApplication::sendEvent(&widget, &help);
  return QToolTip::text().remove(QRegularExpression("</?span[^>]*>"));
}

}  // namespace

UiTest::UiTest() {
  addGames("a b");
  forms::EndProgram() = [this](int status) {
    happened << "the program ends with " + QString::number(status);
  };
  QObject::connect(&browser_, &QTextBrowser::anchorClicked, [this](const QUrl& address) {
    happened << "the browser opens " + address.toString();
  });
  QDesktopServices::setUrlHandler("https", &browser_, "anchorClicked");
}

UiTest::~UiTest() {
  form.reset();
  for (const auto row : std::exchange(announcedRows, {}))
    EXPECT_FALSE(QAccessible::accessibleInterface(row)) << "a row is left of a list that is gone";
  QDesktopServices::unsetUrlHandler("https");
  forms::EndProgram() = [](int status) { std::_Exit(status); };
}

void UiTest::start() {
  form = std::make_unique<ui::Form1>();
  form->Form_Load(startup::BeginLoading(Module1::AppFolder));
  ASSERT_EQ(QTest::qWaitForWindowActive(&window(), form->visible() ? 5000 : 0), form->visible());
}

void UiTest::writeConfig(std::string lines) {
  if (lines.find("InputStart") == std::string::npos) {
    std::string bindings;
    for (const auto& slot : Module1::Profiles[0].Slots)
      if (slot.Value.starts_with('"')) bindings += slot.Name + " = " + slot.Value + "\n";
    lines.insert(0, bindings);
  }
  lines = ";*** Kestrivane UI\xae\n[ Global ]\n" + platform::EncodeCodePage(lines) +
          "\n;*** KVL configuration\n";
  write("Config/Kestrivane.ini", base::ReplaceIgnoringCase(lines, "\n", "\r\n"));
}

void UiTest::writePicture(const std::string& name, const QColor& colour, QSize size) {
  write(name, "");
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  ASSERT_TRUE(image.save(QString::fromStdString(ToText(path(name)))));
}

// "down" does not release the key, and "hold" is a repetition. "copy" imitates the bridge to
// assistive technology, which takes keys and sends copies without a time. "post" only queues
// events.
void UiTest::pressKey(const QString& how, const QKeySequence& keys) {
  ASSERT_TRUE(QApplication::activeWindow()) << "no window takes keys";
  auto* target = QApplication::activeWindow()->windowHandle();
  const auto key = keys[0].key();
  if (how == "press") return QTest::keyClick(target, key, keys[0].keyboardModifiers());
  if (how == "down" || how == "hold")
    return QTest::simulateEvent(target, true, key, Qt::NoModifier, {}, how == "hold");
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    for (auto* below : {target, window().windowHandle()})
      if (how == "post") QApplication::postEvent(below, new QKeyEvent(type, key, Qt::NoModifier));
    QKeyEvent event(type, key, Qt::NoModifier, 9, 9, 0);
    if (how == "copy") QApplication::sendEvent(target, &event);
  }
}

// Each click goes to the widget that is at the place after the one before. A window that closes at
// a press does not get the release.
void UiTest::clickFast(QPoint place, int clicks) {
  for (int click = 0; click < clicks; ++click) {
    auto* modal = QApplication::activeModalWidget();
    auto* under = modal ? modal : &window();
    auto* child = under->childAt(under->mapFromGlobal(place));
    auto* target = child ? child : under;
    const auto at = target->mapFromGlobal(place);
    const auto time = QTest::lastMouseTimestamp;
    if (click == 1)
      QTest::mouseDClick(target, Qt::LeftButton, {}, at);
    else
      QTest::mousePress(target, Qt::LeftButton, {}, at);
    if (under->isVisible()) QTest::mouseRelease(target, Qt::LeftButton, {}, at);
    QTest::lastMouseTimestamp = time + 80;
  }
  QTest::lastMouseTimestamp += 500;
}

void UiTest::waitUntilActive(QWidget& window) {
  EXPECT_TRUE(!window.isVisible() || QApplication::activeWindow() == &window ||
              QTest::qWaitForWindowActive(&window));
}

QString UiTest::act(QWidget& window, const QString& step) {
  waitUntilActive(window);
  const auto verb = step.section(' ', 0, 0), rest = step.section(' ', 1);
  const auto words = rest.split(" in ");
  const auto& what = words[0];
  const auto name = words.last().section(':', 0, 0);
  if (verb == "answer") {
    for (auto* button : window.findChildren<QPushButton*>())
      if (button->text().remove('&') == what) return button->click(), QString();
    throw std::runtime_error("no button says " + rest.toStdString());
  }
  if (verb == "close" && !window.isModal()) {
    QTimer patience;
    QObject::connect(&patience, &QTimer::timeout, [] { QApplication::exit(1); });
    patience.start(2000);
    QTimer::singleShot(0, &window, &QWidget::close);
    happened << (QApplication::exec() == 0 ? "the event loop ends" : "the event loop goes on");
  } else if (verb == "close") {
    QCloseEvent byFrame;
    QApplication::sendEvent(window.windowHandle(), &byFrame);
  } else if (QStringList{"press", "down", "hold", "copy", "post"}.contains(verb)) {
    if (words.size() > 1) get(window, name).setFocus();
    pressKey(verb, QKeySequence(what));
    if (verb == "post") return {};
  } else if (auto* item = this->window().findChild<QAction*>(name)) {
    if (verb == "choose") item->trigger();
    auto* menu = qobject_cast<QWidget*>(item->parent());
    const auto place = menu->actions().indexOf(item);
    if (verb == "activate") activate(Accessible(menu)->child(static_cast<int>(place)));
  } else {
    // Assistive technology also reaches windows behind this one.
    auto* control = window.findChild<QWidget*>(name);
    return actOn(control ? *control : get(this->window(), name), verb, words);
  }
  QApplication::processEvents();
  return {};
}

QString UiTest::actOn(QWidget& control, const QString& verb, const QStringList& words) {
  const auto& what = words[0];
  auto* list = qobject_cast<QListWidget*>(&control);
  const int row = words.last().section(':', 1).toInt();
  const bool isRow = words.last().contains(':');
  auto* tree = qobject_cast<QTreeWidget*>(&control);
  auto& target = isRow && list ? *list->viewport() : tree ? *tree->viewport() : control;
  // Near the left end, where a check box has its box; in a tree the current row.
  const auto place = isRow && list ? list->visualItemRect(list->item(row)).center()
                     : tree        ? tree->visualItemRect(tree->currentItem()).center()
                                   : QPoint(9, control.height() / 2);
  const QPoint thumb(control.height() + 14, control.height() / 2), moved(150, 0);  // of a bar
  if (verb == "hover") {
    QCursor::setPos(target.mapToGlobal(place));
    return "tip " + TipAt(target, place);
  }
  if (verb == "focus" || verb == "type" || verb == "paste") control.setFocus();
  if (verb == "click") {
    QTest::mouseClick(&target, Qt::LeftButton, {}, place);
  } else if (verb == "double-click" || verb == "triple-click") {
    clickFast(target.mapToGlobal(place), verb == "double-click" ? 2 : 3);
  } else if (verb == "wheel") {
    QWheelEvent wheel(place, control.mapToGlobal(place), {}, {0, what.toInt()}, {}, {}, {}, false);
    QApplication::sendEvent(&control, &wheel);
  } else if (verb == "drag") {
    QTest::mousePress(&control, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(&control, thumb + moved);
  } else if (verb == "drop") {
    QTest::mouseRelease(&control, Qt::LeftButton, {}, thumb + moved);
  } else if (verb == "type") {
    QTest::keyClicks(&control, what);
  } else if (verb == "paste") {
    QApplication::clipboard()->setText(what);
    pressKey("press", QKeySequence::Paste);
  } else if (verb == "open") {
    // Opens its parents too, as a user would.
    tree->setCurrentItem(tree->findItems(what, Qt::MatchExactly | Qt::MatchRecursive).value(0));
  } else if (verb == "activate") {
    activate(isRow ? Accessible(&control)->child(row) : Accessible(&control));
  } else if (verb == "select") {
    // Does what the toolkit does for this request on Windows: the row is toggled, and then each
    // other that is still selected.
    auto* rows = Accessible(&control);
    for (int i = 0; i < rows->childCount(); ++i) {
      auto* child = rows->child((row + i) % rows->childCount());
      if (child->state().selected != (i == 0))
        child->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    }
  } else if (verb == "set") {
    if (auto* text = Accessible(&control)->editableTextInterface())
      return text->replaceText(0, 9, what), QString();
    Accessible(&control)->valueInterface()->setCurrentValue(what.toInt());
  } else if (verb != "focus") {
    throw std::runtime_error("nobody can " + verb.toStdString());
  }
  QApplication::processEvents();
  return {};
}

void UiTest::activate(QAccessibleInterface* interface) {
  assists_ = true;
  for (const auto& action : interface->actionInterface()->actionNames())
    interface->actionInterface()->doAction(action);
  assists_ = false;
  QTest::qWait(150);  // the toolkit's own buttons take 100 ms
}

void UiTest::modify(const char* page, const std::function<void(QWidget&)>& step) {
  const auto inPage = [&](QWidget& options) {
    act(options, QString("click ") + page);
    step(options);
  };
  EXPECT_TRUE(whenModal(inPage, [this] { act("choose mConfig"); })) << "no window opened";
}

bool UiTest::whenModal(const std::function<void(QWidget&)>& step,
                       const std::function<void()>& action) {
  const auto* before = QApplication::activeModalWidget();
  bool done = false;
  int patience = 2000;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* modal = QApplication::activeModalWidget();
    const bool opened = modal && modal != before && modal->isActiveWindow() &&
                        modal->objectName() != "frmGaming";  // closes by itself
    if (!opened && --patience > 0) return;
    timer.stop();
    done = opened;
    EXPECT_FALSE(assists_) << "assistive technology does not wait for what it opens";
    if (opened) step(*modal);
    if (modal != before) modal->close();
    // The step has handled events. On Windows, that makes an event loop which it ended wait on.
    QAbstractEventDispatcher::instance()->interrupt();
  });
  timer.start(5);
  action();
  return done;
}

}  // namespace support
