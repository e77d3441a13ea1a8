// What is told or drawn of a control for those who see little or nothing, beside its name and role.
#include <QAccessible>
#include <algorithm>
#include <cmath>

#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

class Told : public support::UiTest {
 protected:
  static QAccessibleInterface& in(const QWidget& window, const char* name) {
    return *QAccessible::queryAccessibleInterface(&get(window, name));
  }
  QListWidget& list() const { return get<QListWidget>(window(), "lstGames"); }
  // How far the text of a row stands out.
  double contrastOf(int row, QPalette::ColorRole background) const {
    const auto place = list().visualItemRect(list().item(row)).adjusted(3, 2, -3, -2);
    const auto image = list().viewport()->grab(place).toImage();
    const auto behind = Luminance(list().palette().color(background));
    double most = 1;
    for (int x = 0; x < image.width(); ++x)
      for (int y = 0; y < image.height(); ++y) {
        const auto [dark, light] = std::minmax({Luminance(image.pixelColor(x, y)), behind});
        most = std::max(most, (light + 0.05) / (dark + 0.05));
      }
    return most;
  }
};

TEST_F(Told, GamesThatAreNotAvailableAreQuieterAndCanBeRead) {
  write("roms/a.zip", "");
  start();
  key(QKeySequence("Tab"));  // away, since the ring of the focus stands out as well
  for (const auto& desktop : {QPalette(QColor(240, 240, 240)), QPalette(QColor(45, 45, 45))}) {
    list().setPalette(desktop);
    list().setCurrentRow(0);
    EXPECT_GE(contrastOf(1, QPalette::Base), 4.5);
    list().setCurrentRow(1);
    EXPECT_GE(contrastOf(1, QPalette::Highlight), 4.5);
    const auto available = contrastOf(0, QPalette::Base);
    list().setCurrentRow(0);
    EXPECT_LT(contrastOf(1, QPalette::Base), available - 3);
  }
}

TEST_F(Told, RowsAreSelectedByTheOneActionAndPlayedByTheOther) {
  support::FakeClock clock;
  write("roms/b.zip", "seconds=0\n");
  start();
  auto& row = *in(window(), "lstGames").child(1)->actionInterface();
  row.doAction(QAccessibleActionInterface::toggleAction());
  QTest::qWait(0);
  EXPECT_EQ(list().currentRow(), 1);
  EXPECT_EQ(Module1::LaunchRequest.RomName, "");
  row.doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([] { return Module1::LaunchRequest.RomName == "b"; }));
}

TEST_F(Told, PagesTellWhatBelongsToThem) {
  start();
  modify("optOPT(0)", [this](QWidget& options) {
    act(options, "click optOPT(4)");
    act(options, "press Down in Dir1");
    auto& tree = in(options, "Dir1");
    auto* folder = tree.focusChild();
    ASSERT_TRUE(folder);
    EXPECT_TRUE(folder->state().focused && !folder->state().invisible);
    const auto chosen = folder->text(QAccessible::Name);
    act(options, "click optOPT(2)");
    for (int cell = 0; cell < tree.childCount(); ++cell) {
      const auto state = tree.child(cell)->state();
      EXPECT_TRUE(!state.focused && state.invisible) << "it is on a hidden page";
    }
    act(options, "click optOPT(4)");
    act(options, "focus Dir1");
    EXPECT_EQ(tree.focusChild()->text(QAccessible::Name), chosen);
    act(options, "focus Drive1");
    for (int cell = 0; cell < tree.childCount(); ++cell)
      EXPECT_FALSE(tree.child(cell)->state().focused) << "the drives have the focus";
  });
}

}  // namespace
