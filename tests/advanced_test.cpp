// The advanced options: pages by input system, bars, and the values that wait for the next save.
#include "support/options_test.h"

namespace {

using namespace Module1;
using support::WhenModal;

class Advanced : public support::OptionsTest {
 protected:
  static void advanced(const QWidget& options, std::function<void(QWidget&)> step) {
    page(options, 2);
    const WhenModal dialog("frmFF", std::move(step));
    press(options, "lblAdvOpts");
  }
  static std::string pages(const QWidget& window) {
    std::string text;
    for (int index = 0; index < 4; ++index)
      text += get(window, "frame(" + std::to_string(index) + ")").isVisible() ? '1' : '0';
    return text;
  }
};

TEST_F(Advanced, PagesFollowTheInputSystem) {
  start();
  options([](QWidget& window) {
    for (const auto* shown : {"1000", "0100", "0010"}) {
      advanced(window, [&](QWidget& dialog) {
        EXPECT_EQ(pages(dialog), shown);
        press(dialog, "optADV(1)");
        EXPECT_EQ(pages(dialog), "0010");
        press(dialog, "optADV(2)");
        EXPECT_EQ(pages(dialog), "0010") << "the joystick page is out of reach";
      });
      type(window, "cmbInputType", Qt::Key_Down);
    }
  });
}

TEST_F(Advanced, OddValuesGoToTheNearestEndOrLeaveTheBar) {
  startWith(
      "ForceFeedback = 1|DirectInputConstForceMax = 900|DirectInputFrictionMax = x|"
      "DirectInputVibrateMax = 7|DirectInputSelfCenterMax = 99999999999|InputKeySensitivity = "
      "-3|InputMouseXDeadZone = 99|");
  options([](QWidget& window) {
    advanced(window, [](QWidget& dialog) {
      EXPECT_TRUE(get<QCheckBox>(dialog, "chkFF(0)").isChecked());
      const std::pair<int, const char*> values[] = {{0, "200 %"}, {1, "200 %"}, {2, "0 %"},
                                                    {3, "7 %"},   {10, "1"},    {9, "50"},
                                                    {8, "99 %"},  {4, "0 %"}};
      for (const auto& [bar, text] : values)
        EXPECT_EQ(textOf(dialog, ("lblValue(" + std::to_string(bar) + ")").c_str()), text);
      press(dialog, "btnCancel");
    });
  });
  EXPECT_EQ(StagedOptions[17], "");
}

TEST_F(Advanced, OkWaitsForTheNextSaveOfAllGames) {
  const std::string game = "[ a ]|DirectInputConstForceMax = 7|InputKeySensitivity = 8|";
  startWith("DirectInputConstForceMax = 150|XInputVibrateMax = 20|" + game);
  options([](QWidget& window) {
    advanced(window, [](QWidget& dialog) { press(dialog, "btnCancel"); });
    save(window);
  });
  EXPECT_EQ(saved(), "DirectInputConstForceMax = 150|XInputVibrateMax = 20|" + game);
  options([](QWidget& window) {
    advanced(window, [](QWidget& dialog) {
      press(dialog, "chkFF(0)");
      type(dialog, "barraD(0)", Qt::Key_PageDown, 3);
      press(dialog, "optADV(1)");
      type(dialog, "barraD(10)", Qt::Key_End);
      EXPECT_EQ(textOf(dialog, "lblValue(10)"), "100");
      key(Qt::Key_Return);
      EXPECT_FALSE(dialog.isVisible()) << "OK is the default button";
    });
    advanced(window, [](QWidget& dialog) { EXPECT_EQ(textOf(dialog, "lblValue(0)"), "150 %"); });
    press(window, "btnCancel");
  });
  EXPECT_EQ(StagedOptions[22], "") << "the other system's options are left alone";
  gameOptions(0, save);
  EXPECT_EQ(saved(), "DirectInputConstForceMax = 150|XInputVibrateMax = 20|" + game);
  options(save);
  const std::string all =
      "ForceFeedback = 1|DirectInputConstForceMax = 120|XInputVibrateMax = 20|"
      "InputKeySensitivity = 100|";
  EXPECT_EQ(saved(), all + game);
  EXPECT_EQ(StagedOptions[17], "") << "stored once";
  gameOptions(1, save);
  EXPECT_EQ(saved(), all + game + "[ b ]|");
}

}  // namespace
