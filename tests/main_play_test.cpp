// Playing a game: the in-game window, the count, and the report of a failed run.
#include <QLabel>
#include <QTimer>
#include <QWindow>

#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

class MainPlay : public support::UiTest {
 protected:
  // In the second second, so that three are all that the play takes.
  void waitForEmulator() const {
    if (clock.sleeps.size() == 2) support::WaitForChild();
  }

  support::FakeClock clock;
};

TEST_F(MainPlay, InGameWindowStaysUntilTheEndAndPausesAfterAGoodOne) {
  write("roms/a.zip", "");
  start();
  std::string how;
  clock.onSleep = [&] {
    auto& gaming = *QApplication::activeModalWidget();
    // A good end may come before the clock moves.
    const bool moves = clock.sleeps.size() > 1 && how != "good";
    EXPECT_TRUE(get<QLabel>(gaming, "lblTime").text() == "1:00:05" || !moves);
    waitForEmulator();
    const auto icon = [](const QWidget& on) {
      return get(on, "imgIcon").grab().toImage().pixelColor(12, 16);
    };
    EXPECT_EQ(icon(gaming), icon(window()));
    gaming.close();
    key(QKeySequence("Esc"));
    EXPECT_TRUE(gaming.isVisible());
  };
  clock.firstSleepTakes = std::chrono::seconds(3605);
  for (const auto* end : {"good", "nolog", "crash"}) {
    write("roms/a.zip", "seconds=0\nend=" + (how = end));
    clock.sleeps.clear();
    act("press Return");
    EXPECT_EQ(clock.sleeps.size() > 3, how == "good") << how;
    EXPECT_FALSE(QApplication::activeModalWidget() || exists("error.log")) << how;
  }
  std::filesystem::remove(path("Kestrivane.exe"));
  clock.sleeps.clear();
  act("click cmdPlay");
  EXPECT_TRUE(clock.sleeps.empty()) << "an emulator that is gone closes the window at once";
}

TEST_F(MainPlay, InputOfThePlayAndThePauseIsDropped) {
  write("roms/a.zip", "seconds=0\nend=good");
  start();
  int posted = 0, handled = 0;
  clock.onSleep = [&] {
    if (clock.sleeps.size() > 6) return;  // what is obeyed has begun another play
    auto& gaming = *QApplication::activeModalWidget();
    const auto type = posted % 2 == 0 ? QEvent::KeyPress : QEvent::KeyRelease;
    for (const auto* target : {&window(), &gaming})
      for (const auto key : {Qt::Key_Down, Qt::Key_Return})
        QApplication::postEvent(target->windowHandle(), new QKeyEvent(type, key, Qt::NoModifier));
    EXPECT_EQ(handled, posted++) << "events are handled until the next second, also in the pause";
    QTimer::singleShot(0, [&] { ++handled; });
    waitForEmulator();
  };
  act("press Return");
  clock.onSleep = nullptr;
  QTest::qWait(50);
  EXPECT_LE(clock.sleeps.size(), 6U) << "one play";
}

}  // namespace
