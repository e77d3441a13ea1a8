// The input table, the binding editor, the chooser, the input systems and the advanced options.
#include <QAccessible>
#include <QScrollBar>

#include "support/ui_test.h"

namespace {

using namespace Module1;

class Inputs : public support::UiTest {
 protected:
  static QListWidget& column(const QWidget& window, int index) {
    return get<QListWidget>(window, indexed("lstInput", index));
  }
  static std::string row(const QWidget& window, int index) {
    std::string text;
    for (int cell = 0; cell < 4; ++cell)
      text += (cell ? "|" : "") + column(window, cell).item(index)->text().toStdString();
    return text;
  }
  // What these controls open is a chooser, used so.
  static void choose(const QWidget& window, const char* opening, const char* picking) {
    const auto pick = [=](QWidget& chooser) {
      EXPECT_FALSE(get(chooser, "cmdOK(0)").isEnabled() || get(chooser, "cmdOK(2)").isEnabled());
      use(chooser, picking);
    };
    inModal("frmInput2", pick, [&] { use(window, opening); });
  }
  static void advanced(const QWidget& options, const std::function<void(QWidget&)>& step) {
    inModal("frmFF", step, [&] { use(options, "optOPT(2) lblAdvOpts"); });
  }
  static void expectPage(const QWidget& advanced, int shown) {
    for (int index = 0; index < 4; ++index)
      EXPECT_EQ(get(advanced, indexed("frame", index)).isVisible(), index == shown);
  }
};

TEST_F(Inputs, OfEachGroupAndPlayerActAsOneTable) {
  const std::tuple<const char*, const char*, const char*> groups[] = {
      {"optPlayer(1)", "Start2|KEY_2|JOY2_BUTTON9|", "Shoot2|JOY2_BUTTON3||"},
      {"optTypeInputs(1)", "GunDown2|||", "Show Crosshairs|0||"},
      {"optTypeInputs(2) optPlayer(0)", "Steering|JOY1_XAXIS||", "HandBrake|KEY_S|JOY1_BUTTON2|"},
      {"optTypeInputs(3)", "TwinJoyCrouch|KEY_R|JOY1_BUTTON2|",
       "AnalogJoyEvent|KEY_S|JOY_BUTTON2|MOUSE_RIGHT_BUTTON"}};
  start();
  options([&](QWidget& window) {
    use(window, "optOPT(2)");
    get(window, "cmbInputType").setFocus();
    key(Qt::Key_Tab);
    for (int cell = 0; cell < 4; ++cell)
      EXPECT_TRUE(column(window, cell).item(0)->isSelected()) << "the row that has the focus";
    use(window, "lstInput(2)=End");
    const int top = column(window, 2).verticalScrollBar()->value();
    EXPECT_GT(top, 0);
    for (int cell = 0; cell < 4; ++cell) {
      EXPECT_TRUE(column(window, cell).item(18)->isSelected());
      EXPECT_EQ(column(window, cell).verticalScrollBar()->value(), top);
    }
    column(window, 0).verticalScrollBar()->setValue(1);
    EXPECT_EQ(column(window, 3).verticalScrollBar()->value(), 1);
    for (const auto& [choice, first, last] : groups) {
      use(window, choice);
      EXPECT_EQ(row(window, 0), first);
      EXPECT_EQ(row(window, column(window, 0).count() - 1), last);
    }
  });
}

TEST_F(Inputs, AreEditedCellByCell) {
  start();
  options([](QWidget& window) {
    use(window, "optOPT(2)");
    clickRow(column(window, 0), 2, true);
    ASSERT_EQ(QApplication::activeModalWidget(), &window) << "names are not edited";
    choose(window, "lstInput(3)=F2", "cmbHardN(2)=Down cmbInputs(2)=End cmdOK(2)");
    EXPECT_EQ(row(window, 2), "ServiceA|KEY_5||JOY2_POV4_RIGHT");
    choose(window, "lstInput(1)=F2", "cmbInputs(0)=End");
    EXPECT_EQ(EffectiveValues[34], "\"KEY_5,JOY2_POV4_RIGHT\"");
    auto* cell = QAccessible::queryAccessibleInterface(&column(window, 1))->child(3);
    EXPECT_EQ(cell->text(QAccessible::Name), "KEY_6");
    const auto pick = [](QWidget& chooser) { use(chooser, "cmbInputs(0)=End cmdOK(0)"); };
    inModal("frmInput2", pick, [&] {
      cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      QApplication::processEvents();
    });
    EXPECT_EQ(row(window, 3), "TestA|KEY_F15||") << "pressed by assistive technology";
    use(window, "lstInput(1)=Up lstInput(1)=Del");
    EXPECT_EQ(EffectiveValues[34], "\"JOY2_POV4_RIGHT\"");
    use(window, "lstInput(3)=Del");
    EXPECT_EQ(EffectiveValues[34], "\"NONE\"");
    use(window, "optTypeInputs(2) optPlayer(1) lstInput(1)=Del lstInput(1)=F2");
    EXPECT_EQ(column(window, 1).count(), 0);
    use(window, "optTypeInputs(1)");
    const std::tuple<QMessageBox::StandardButton, int, const char*> answers[] = {
        {QMessageBox::Yes, 8, "AutoTrigger2|1||"},
        {QMessageBox::Cancel, 8, "AutoTrigger2|1||"},
        {QMessageBox::Yes, 9, "Show Crosshairs|1||"},
        {QMessageBox::No, 8, "AutoTrigger2|0||"}};
    for (const auto& [button, index, after] : answers) {
      answer(button, [&, at = index] { clickRow(column(window, 1), at, true); });
      EXPECT_EQ(row(window, index), after);
    }
    use(window, "lstInput(1)=Down lstInput(2)=Del lstInput(2)=F2");
    EXPECT_EQ(row(window, 9), "Show Crosshairs|1||");
    use(window, "cmdSave");
  });
  EXPECT_EQ(saved(), "Crosshairs = 1|");
  EXPECT_NE(file().find("InputTestA = \"KEY_F15\"\r\n"), std::string::npos);
}

TEST_F(Inputs, AreRenamedByTheirSystemAndRestored) {
  startWith(
      "Crosshairs = 1|InputStart1 = \"KEY2_A,mouse2_UP,JOY_X\"|InputStart2 = \"KEY_B,MOUSE_UP\"|");
  options([](QWidget& window) {
    EXPECT_EQ(row(window, 0), "Start1|KEY_A|MOUSE_UP|JOY_X");
    use(window, "optOPT(2) cmbInputType=Down cmbInputType=Down");
    EXPECT_EQ(row(window, 0), "Start1|KEY1_A|MOUSE1_UP|JOY_X");
    EXPECT_EQ(EffectiveValues[31], "\"KEY1_B,MOUSE2_UP\"");
    clickRow(column(window, 1), 1);
    choose(window, "lstInput(1)=F2", "cmbHardN(1)=Down cmbInputs(1)=End cmdOK(1)");
    use(window, "cmdSave");
  });
  const auto bindings = [] { return file().substr(0, file().find("[ a ]")); };
  EXPECT_EQ(saved(), "Crosshairs = 1|;InputMethod=2|");
  EXPECT_NE(bindings().find("InputCoin1 = \"MOUSE2_BUTTON5\"\r\n"), std::string::npos);
  const auto before = bindings();
  gameOptions(0, save);
  EXPECT_TRUE(before.starts_with(bindings())) << "a game leaves them alone";
  options([](QWidget& window) {
    use(window, "optOPT(2)");
    const std::pair<QMessageBox::StandardButton, const char*> answers[] = {
        {QMessageBox::No, "Start1|KEY1_A|MOUSE1_UP|JOY_X"},
        {QMessageBox::Yes, "Start1|KEY1_1|JOY1_BUTTON9|"}};
    for (const auto& [button, first] : answers) {
      get(window, "lblLoadDefaults").setFocus();
      answer(button, [] { key(Qt::Key_Return); });
      EXPECT_TRUE(window.isVisible()) << "Enter follows the link, and saves nothing";
      EXPECT_EQ(row(window, 0), first);
    }
    EXPECT_EQ(Profiles[1].Slots[30].Value, "\"KEY_1,JOY1_BUTTON9\"") << "at once";
    use(window, "cmdSave");
  });
  EXPECT_EQ(saved(), "Crosshairs = 1|[ a ]|;InputMethod=2|");
  EXPECT_NE(bindings().find("\"KEY1_A,JOY1_BUTTON1,MOUSE1_LEFT_BUTTON\""), std::string::npos);
}

TEST_F(Inputs, HaveAdvancedOptionsThatWaitForTheNextSaveOfAllGames) {
  const std::string game = "[ a ]|DirectInputConstForceMax = 7|InputKeySensitivity = 8|";
  const std::string kept = "DirectInputFrictionMax = x|XInputVibrateMax = 20|";
  startWith("DirectInputConstForceMax = 900|" + kept + "InputKeySensitivity = -3|" + game);
  options([](QWidget& window) {
    for (const int shown : {0, 1, 2}) {
      advanced(window, [&](QWidget& dialog) {
        expectPage(dialog, shown);
        use(dialog, "optADV(1) optADV(2)");
        expectPage(dialog, 2);  // that of the joystick is out of reach
        use(dialog, "btnCancel");
      });
      use(window, "cmbInputType=Down");
    }
    EXPECT_EQ(StagedOptions[17], "");
    use(window, "cmbInputType=Home");
    advanced(window, [](QWidget& dialog) {
      EXPECT_EQ(textOf(dialog, "lblValue(0)") + textOf(dialog, "lblValue(2)") +
                    textOf(dialog, "lblValue(10)"),
                "200 %0 %1")
          << "the nearest end, or where the bar was";
      use(dialog, "chkFF(0) barraD(0)=PgDown optADV(1) barraD(10)=End");
      key(Qt::Key_Return);
      EXPECT_FALSE(dialog.isVisible()) << "OK is the default button";
    });
    use(window, "btnCancel");
  });
  EXPECT_EQ(StagedOptions[22], "") << "the other system's options are left alone";
  gameOptions(0, save);
  EXPECT_EQ(saved(), "DirectInputConstForceMax = 900|" + kept + "InputKeySensitivity = -3|" + game);
  options(save);
  const std::string all =
      "ForceFeedback = 1|DirectInputConstForceMax = 190|XInputVibrateMax = 20|"
      "InputKeySensitivity = 100|";
  EXPECT_EQ(saved(), all + game);
  EXPECT_EQ(StagedOptions[17], "") << "stored once";
  gameOptions(1, save);
  EXPECT_EQ(saved(), all + game + "[ b ]|");
}

}  // namespace
