// Whose input is obeyed and when: by mouse, by keys, and by assistive technology.
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>

#include "core/module1.h"
#include "core/profiles.h"
#include "platform/forms/form.h"
#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

class InputGuard : public support::UiTest {
 protected:
  static QAccessibleInterface* told(QObject* object) {
    return QAccessible::queryAccessibleInterface(object);
  }
  static QAccessibleInterface* told(const QWidget& window, const char* name) {
    return told(&get(window, name));
  }
  // Every press, at once and later, that the interface offers.
  static void press(QAccessibleInterface* interface) {
    const auto closeWhatOpens = [before = QApplication::activeModalWidget()] {
      auto* modal = QApplication::activeModalWidget();
      if (modal == before) return;
      ADD_FAILURE() << modal->objectName().toStdString() << " opened";
      modal->close();
    };
    QTimer::singleShot(100, closeWhatOpens);
    for (const auto& action : interface->actionInterface()->actionNames())
      if (action != QAccessibleActionInterface::setFocusAction())
        interface->actionInterface()->doAction(action);
    QTest::qWait(150);  // the toolkit's own buttons take 100 ms
  }
  QAccessibleInterface* toldItem(const char* name) const {
    auto& item = get<QAction>(window(), name);
    auto* menu = static_cast<QWidget*>(item.parent());
    return told(menu)->child(static_cast<int>(menu->actions().indexOf(&item)));
  }
  void pressAllOfMainWindow() {
    for (const auto* name : {"cmdConfGame", "cmdPlay", "optGames(1)"}) press(told(window(), name));
    for (const auto* name : {"mConfig", "mLang(0)", "mExit"}) press(toldItem(name));
    press(told(window(), "lstGames")->child(1));
  }
  // Runs the step in the page of the options of all games that holds the inputs.
  void inOptions(const std::function<void(QWidget& options)>& step) {
    const auto inPage = [&](QWidget& options) {
      get<QAbstractButton>(options, "optOPT(2)").click();
      step(options);
    };
    inModal(inPage, [this] { get<QAction>(window(), "mConfig").trigger(); });
  }
  void inWindowOf(const QWidget& options, const char* control, Qt::Key key,
                  const std::function<void(QWidget& opened)>& step) {
    get(options, control).setFocus();
    inModal(step, [&] { UiTest::key(key); });
  }
};

TEST_F(InputGuard, AssistiveTechnologyChangesNothingBehindAModalWindow) {
  for (const auto* archive : {"roms/a.zip", "roms/b.zip"}) write(archive, "");
  start();
  inOptions([&](QWidget& options) {
    pressAllOfMainWindow();
    EXPECT_EQ(QApplication::activeModalWidget(), &options);
    EXPECT_EQ(Module1::OptionScope, core::kGlobalScope);
    EXPECT_EQ(list().currentRow(), 0);
    EXPECT_TRUE(ends.empty() && get<QAction>(window(), "mLang(0)").isChecked());
    EXPECT_TRUE(get<QRadioButton>(window(), "optGames(0)").isChecked());
    auto& box = get<QCheckBox>(options, "chkFPS");
    auto& size = get<QLineEdit>(options, "tbxCustRes(0)");
    auto& bar = get<QScrollBar>(options, "hslBalance");
    const auto before = std::tuple(box.isChecked(), size.text(), bar.value());
    const auto inChooser = [&](QWidget& chooser) {
      for (const auto* name : {"chkFPS", "cmdSave", "lblAdvOpts", "optOPT(1)"})
        press(told(options, name));
      told(&bar)->valueInterface()->setCurrentValue(7);
      told(&size)->editableTextInterface()->replaceText(0, 9, "77");
      press(told(options, "lstInput(1)")->child(2));
      EXPECT_EQ(before, std::tuple(box.isChecked(), size.text(), bar.value()));
      EXPECT_EQ(QApplication::activeModalWidget(), &chooser);
      EXPECT_TRUE(options.isVisible());
      EXPECT_TRUE(get<QAbstractButton>(options, "optOPT(2)").isChecked());
    };
    get<QListWidget>(options, "lstInput(1)").setCurrentRow(3);
    inWindowOf(options, "lstInput(1)", Qt::Key_F2, inChooser);
    press(told(options, "chkFPS"));
    told(&bar)->valueInterface()->setCurrentValue(7);
    EXPECT_NE(box.isChecked(), std::get<0>(before)) << "what is in front can be pressed";
    EXPECT_EQ(bar.value(), 7);
  });
}

TEST_F(InputGuard, AssistiveTechnologyStartsNothingDuringAPlay) {
  support::FakeClock clock;
  write("roms/a.zip", "seconds=0\nend=good");
  start();
  clock.onSleep = [&] {
    if (clock.sleeps.size() == 1) pressAllOfMainWindow();
  };
  key(Qt::Key_Return);
  QTest::qWait(150);
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_TRUE(ends.empty());
}

TEST_F(InputGuard, SecondClickOfADoubleClickDoesNotReachTheWindowBelow) {
  start();
  const auto doubleClickAt = [](QWidget& control) {
    const auto place = control.mapToGlobal(control.rect().center());
    for (int click = 0; click < 2; ++click) {
      auto* under = QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                      : QApplication::activeWindow();
      auto* target = under->childAt(under->mapFromGlobal(place));
      const QPointF at = (target ? target : under)->mapFromGlobal(place);
      for (const auto type : {click == 0 ? QEvent::MouseButtonPress : QEvent::MouseButtonDblClick,
                              QEvent::MouseButtonRelease}) {
        const bool down = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, place, Qt::LeftButton, down ? Qt::LeftButton : Qt::NoButton,
                          {});
        event.setTimestamp(static_cast<quint64>(QTest::lastMouseTimestamp += 80));
        QApplication::sendEvent(target ? target : under, &event);
      }
    }
  };
  inOptions([&](QWidget& options) {
    inWindowOf(options, "lblAdvOpts", Qt::Key_Return, [&](QWidget& advanced) {
      advanced.move(options.pos());
      doubleClickAt(get(advanced, "btnCancel"));
      EXPECT_FALSE(advanced.isVisible());
      EXPECT_TRUE(options.isVisible()) << "its own Exit lies there";
    });
    QTest::lastMouseTimestamp += 500;
    QTest::mouseClick(&get(options, "btnCancel"), Qt::LeftButton);
    EXPECT_FALSE(options.isVisible()) << "a click of its own does press it";
  });
}

// The bridge to assistive technology takes the keys and sends copies, which carry no time.
TEST_F(InputGuard, SameKeyTwiceIsObeyedTwiceBesideAListener) {
  start();
  const auto copy = [this](QEvent::Type type, int key, bool repeated) {
    QKeyEvent event(type, key, Qt::NoModifier, 9, 9, 0, {}, repeated);
    QApplication::sendEvent(window().windowHandle(), &event);
  };
  for (int time = 0; time < 2; ++time) {
    copy(QEvent::KeyPress, Qt::Key_Escape, false);
    copy(QEvent::KeyRelease, Qt::Key_Escape, false);
  }
  EXPECT_EQ(ends.size(), 2U);
  copy(QEvent::KeyPress, Qt::Key_Escape, true);
  EXPECT_EQ(ends.size(), 2U) << "held down";
}

// Without a grab by popups the keys come to the window below.
TEST_F(InputGuard, KeyThatClosesADropDownListDoesNothingElse) {
  start();
  inOptions([&](QWidget& options) {
    auto& box = get<QComboBox>(options, "cmbInputType");
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
      box.setFocus();
      box.showPopup();
      QTest::keyClick(options.windowHandle(), key);
      EXPECT_FALSE(box.view()->isVisible());
      EXPECT_TRUE(options.isVisible()) << key;
    }
    QTest::keyClick(options.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(options.isVisible());
  });
}

TEST_F(InputGuard, EnterPressesTheFirstButtonOfAQuestion) {
  start();
  inOptions([this](QWidget& options) {
    inWindowOf(options, "lblLoadDefaults", Qt::Key_Return, [](QWidget& window) {
      auto& box = dynamic_cast<QMessageBox&>(window);
      const QAbstractButton* pressed = box.defaultButton();
      EXPECT_EQ(pressed, box.button(QMessageBox::Yes));
      EXPECT_TRUE(pressed->hasFocus());
      EXPECT_EQ(box.escapeButton(), box.button(QMessageBox::No));
    });
  });
}

TEST_F(InputGuard, WindowLargerThanTheScreenHasItsCornerOnIt) {
  forms::Form large("large", forms::Border::FixedSingle, 20000, 20000);
  large.centreOnScreen();
  EXPECT_EQ(large.clientArea()->window()->pos(), QPoint(0, 0));
  forms::Form larger("larger", forms::Border::FixedDialog, 30000, 30000);
  larger.centreOver(large);
  EXPECT_EQ(larger.clientArea()->window()->pos(), QPoint(0, 0));
}

}  // namespace
