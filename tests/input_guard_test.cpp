// Whose input is obeyed and when: by mouse, by keys, and by assistive technology.
#include <QAbstractItemView>
#include <QComboBox>
#include <QWindow>

#include "platform/forms/form.h"
#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

class InputGuard : public support::UiTest {};

TEST_F(InputGuard, AssistiveTechnologyStartsNothingDuringAPlay) {
  support::FakeClock clock;
  write("roms/a.zip", "seconds=0\nend=good");
  start();
  clock.onSleep = [&] {
    if (clock.sleeps.size() != 1) return;
    for (const auto* name : {"cmdConfGame", "cmdPlay", "mConfig", "mExit", "lstGames:1"})
      act(QString("activate ") + name);
  };
  key(Qt::Key_Return);
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_TRUE(ends.empty());
}

TEST_F(InputGuard, AssistiveTechnologyDoesNotWaitForWhatAMenuItemOpens) {
  start();
  bool waits = true;
  const auto close = [&](QWidget& options) {
    EXPECT_FALSE(waits);
    options.close();
  };
  auto* item = window().findChild<QAction*>("mConfig");
  inModal(close, [&] {
    auto* menu = static_cast<QWidget*>(item->parent());
    told(menu)->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    waits = false;
    QApplication::processEvents();
  });
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
  modify("optOPT(2)", [&](QWidget& options) {
    const auto inAdvanced = [&](QWidget& advanced) {
      advanced.move(options.pos());
      doubleClickAt(get(advanced, "btnCancel"));
      EXPECT_FALSE(advanced.isVisible());
      EXPECT_TRUE(options.isVisible()) << "its own Exit lies there";
    };
    inModal(inAdvanced, [&] { act(options, "press Return in lblAdvOpts"); });
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
  modify("optOPT(2)", [](QWidget& options) {
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

TEST_F(InputGuard, WindowLargerThanTheScreenHasItsCornerOnIt) {
  forms::Form large("large", forms::Border::FixedSingle, 20000, 20000);
  large.centreOnScreen();
  EXPECT_EQ(large.clientArea()->window()->pos(), QPoint(0, 0));
  forms::Form larger("larger", forms::Border::FixedDialog, 30000, 30000);
  larger.centreOver(large);
  EXPECT_EQ(larger.clientArea()->window()->pos(), QPoint(0, 0));
}

// The system takes the key for held down, since no window was active when it was released.
TEST_F(InputGuard, KeyWhoseReleaseNoWindowSawDoesNotCostTheNextOne) {
  start();
  const auto press = [this](bool repeated) {
    QTest::simulateEvent(window().windowHandle(), true, Qt::Key_Escape, {}, {}, repeated);
  };
  press(false);
  press(true);
  EXPECT_EQ(ends.size(), 1U) << "held down";
  QTest::qWait(1300);
  press(true);
  EXPECT_EQ(ends.size(), 2U);
  press(true);
  EXPECT_EQ(ends.size(), 2U) << "held down";
  QTest::simulateEvent(window().windowHandle(), false, Qt::Key_Escape, {}, {}, false);
}

}  // namespace
