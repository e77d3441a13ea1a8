// Playing a game: the in-game window, the count, and the report of a failed run.
#include <QTimer>
#include <QWindow>

#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

using namespace Module1;

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
  item("mLang(2)").trigger();
  std::string end;
  clock.onSleep = [&] {
    auto& gaming = *QApplication::activeModalWidget();
    ASSERT_EQ(gaming.objectName(), "frmGaming");
    // A good end may come before the clock moves.
    const bool moves = clock.sleeps.size() > 1 && end != "good";
    EXPECT_TRUE(textOf(gaming, "lblTime") == "1:00:05" || !moves);
    EXPECT_TRUE(textOf(gaming, "lblTime") == "0:00:00" || clock.sleeps.size() > 1);
    waitForEmulator();
    EXPECT_TRUE(textOf(gaming, "lblInfo").starts_with("Reset:  ALT + R \r\nPausa:  ALT + P \r\n"));
    const auto icon = [](const QWidget& on) {
      return get(on, "imgIcon").grab().toImage().pixelColor(12, 16);
    };
    EXPECT_EQ(icon(gaming), icon(window()));
    gaming.close();
    key(Qt::Key_Escape);
    EXPECT_TRUE(gaming.isVisible());
  };
  clock.firstSleepTakes = std::chrono::seconds(3605);
  for (const auto* how : {"good", "nolog", "crash"}) {
    end = how;
    write("roms/a.zip", "seconds=0\nend=" + end);
    clock.sleeps.clear();
    key(Qt::Key_Return);
    EXPECT_EQ(clock.sleeps.size() > 3, end == "good") << end;
    EXPECT_FALSE(QApplication::activeModalWidget() || exists("error.log")) << end;
  }
  EXPECT_EQ(caption("lblTP"), "Partidas jugadas: 3\r\nTiempo jugado: 3:00:15");
  std::filesystem::remove(path("Kestrivane.exe"));
  clock.sleeps.clear();
  click("cmdPlay");
  EXPECT_TRUE(clock.sleeps.empty()) << "an emulator that is gone closes the window at once";
}

TEST_F(MainPlay, InputOfThePlayAndThePauseIsDropped) {
  write("roms/a.zip", "seconds=0\nend=good");
  start();
  const auto post = [](const QWidget& target, QEvent* event) {
    QApplication::postEvent(target.windowHandle(), event);
  };
  int posted = 0, handled = 0;
  clock.onSleep = [&] {
    if (clock.sleeps.size() > 6) return;  // what is obeyed has begun another play
    auto& gaming = *QApplication::activeModalWidget();
    const QPointF place = widget("cmdPlay").mapTo(&window(), QPoint(9, 9));
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      post(window(), new QMouseEvent(type, place, window().mapToGlobal(place), Qt::LeftButton,
                                     Qt::LeftButton, Qt::NoModifier));
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
      for (const auto* target : {&window(), &gaming})
        post(*target, new QKeyEvent(type, Qt::Key_Down, Qt::NoModifier));
    EXPECT_EQ(handled, posted++) << "events are handled until the next second, also in the pause";
    QTimer::singleShot(0, [&] { ++handled; });
    waitForEmulator();
  };
  key(Qt::Key_Return);
  clock.onSleep = nullptr;
  QTest::qWait(50);
  EXPECT_LE(clock.sleeps.size(), 6U) << "one play";
  EXPECT_EQ(rows(list()), "A*|B|");
}

TEST_F(MainPlay, DoubleClickPlaysAlsoWhatIsNotThereAndTextFromOutsideIsShownAsItIs) {
  addGames("<b>&amp;%1[*] zz");
  start();
  clock.onSleep = [&] {
    const auto& gaming = *QApplication::activeModalWidget();
    EXPECT_EQ(gaming.windowHandle()->title().toStdString(), caption("lblGameTitle"));
    EXPECT_EQ(textOf(gaming, "lblGameTitle"), caption("lblGameTitle"));
  };
  clock.firstSleepTakes = std::chrono::seconds(21);
  const auto leave = [&](QWidget& report) {
    const auto text = textOf(report, "tbxError");
    EXPECT_TRUE(text.starts_with("Error: there is no archive ")) << text;
    EXPECT_TRUE(text.ends_with(LaunchRequest.RomName + ".zip\n")) << text;
    EXPECT_FALSE(exists("error.log"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(report.isVisible());
  };
  for (const int row : {0, 1}) {
    clock.sleeps.clear();
    inModal("Form4", leave, [&] { clickRow(row, true); });
  }
  EXPECT_EQ(caption("lblTP"), "Play Count: 1\r\nPlay Time: 0:00:21");
}

}  // namespace
