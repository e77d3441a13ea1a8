// Random use of the whole program for SOAK_SECONDS (30): keys, clicks, wheel, menus, dialogs,
// plays. After each save, the file must match the program's state. SOAK_SEED repeats a run.
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <iostream>
#include <random>

#include "config/config_writer.h"
#include "platform/code_page.h"
#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

class Soak : public support::UiTest {
 protected:
  Soak() {
    std::cout << "SOAK_SEED=" << seed_ << std::endl;
    addEmulator();
    write("roms/7undertow.zip", "seconds=0\nend=good");
    write("roms/abalonec.zip", "seconds=0\nend=error");
    write("roms/nimblewk.zip", "seconds=0\nend=crash");
    write("roms/shader.fs", "");
    clock_.onSleep = [this] { clock_.now += std::chrono::seconds(pick(15)); };
  }

  int pick(int below) { return std::uniform_int_distribution<>(0, below - 1)(random_); }

  void run() {
    const QDeadlineTimer end(qEnvironmentVariable("SOAK_SECONDS", "30").toLongLong() * 1000);
    QEventLoop loop;
    std::function<void()> next = [&] {
      // Scheduled before the action, which may open a window and return only when that closes.
      QTimer::singleShot(0, &loop, next);
      auto* modal = QApplication::activeModalWidget();
      if (!end.hasExpired() && !HasFailure()) return act();
      if (modal) modal->close();
      if (!modal) loop.quit();
    };
    next();
    loop.exec();
    std::cout << actions_ << " actions, " << saves_ << " saves\n";
  }

  void act() {
    ++actions_;
    compareFile();
    auto* popup = QApplication::activePopupWidget();
    auto* modal = QApplication::activeModalWidget();
    auto& on = popup ? *popup : modal ? *modal : window();
    QList<QWidget*> controls = {&on};
    for (auto* control : on.findChildren<QWidget*>())
      if (control->isVisible() && control->isEnabled() && control->window() == &on)
        controls.append(control);
    auto& control = *controls[pick(static_cast<int>(controls.size()))];
    const QPoint at(pick(control.width() + 1), pick(control.height() + 1));
    const int kind = pick(20);
    if (kind < 3) {
      QWheelEvent turn(at, control.mapToGlobal(at), {}, {0, pick(2) ? 120 : -120}, {}, {}, {},
                       false);
      QApplication::sendEvent(&control, &turn);
    } else if (kind < 5) {
      QTest::mouseDClick(&control, Qt::LeftButton, {}, at);
    } else if (kind < 12) {
      QTest::mouseClick(&control, kind == 5 ? Qt::RightButton : Qt::LeftButton, {}, at);
    } else if (on.windowHandle()) {
      QTest::keyClick(on.windowHandle(), key(), pick(8) ? Qt::NoModifier : Qt::AltModifier);
    }
    compareFile();
  }
  Qt::Key key() {
    static const auto keys = QKeySequence::listFromString(
        "Up; Down; Left; Right; Home; End; PgUp; PgDown; Tab; Backtab; Space; Return; Enter; Esc; "
        "Del; Backspace; F2; F4; F10; *; 0; 1; 9; A; E; G; O; S; V; Y");
    return keys[pick(static_cast<int>(keys.size()))][0].key();
  }

  // If the file has changed, it must be the text of the program's state.
  void compareFile() {
    auto file = read("Config/Kestrivane.ini");
    if (file == file_) return;
    file_ = std::move(file);
    ++saves_;
    EXPECT_EQ(file_, platform::EncodeCodePage(config::ConfigText()));
  }

  unsigned seed_ =
      qEnvironmentVariable("SOAK_SEED", QString::number(std::random_device()())).toUInt();
  std::mt19937 random_{seed_};
  support::FakeClock clock_;
  std::string file_;
  int actions_ = 0, saves_ = 0;
};

TEST_F(Soak, NothingThatAUserDoesBreaksTheProgramOrItsFile) {
  start();
  run();
  EXPECT_GT(actions_, 100);
}

}  // namespace
