// The input table, the binding editor, the chooser, the input systems and the advanced options.
#include <QAccessible>
#include <QApplication>
#include <QScrollBar>

#include "support/ui_test.h"

namespace {

using namespace Module1;
using support::WhenModal;

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
  static void show(const QWidget& window, int group, int player) {
    page(window, 2);
    press(window, indexed("optTypeInputs", group));
    press(window, indexed("optPlayer", player));
  }
  // Picks in the chooser as a person does by keys.
  static std::function<void(QWidget&)> choose(int device, int number, const char* name) {
    return [=](QWidget& chooser) {
      auto& names = get<QComboBox>(chooser, indexed("cmbInputs", device));
      EXPECT_FALSE(get(chooser, indexed("cmdOK", device)).isEnabled());
      if (number > 0)
        get<QComboBox>(chooser, indexed("cmbHardN", device)).setCurrentIndex(number - 1);
      names.setCurrentIndex(names.findText(name));
      press(chooser, indexed("cmdOK", device));
    };
  }
  static void advanced(const QWidget& options, std::function<void(QWidget&)> step) {
    page(options, 2);
    const WhenModal dialog("frmFF", std::move(step));
    press(options, "lblAdvOpts");
  }
  static void expectPage(const QWidget& advanced, int shown) {
    for (int index = 0; index < 4; ++index)
      EXPECT_EQ(get(advanced, indexed("frame", index)).isVisible(), index == shown);
  }
};

TEST_F(Inputs, OfEachGroupAndPlayerActAsOneTable) {
  const std::tuple<int, int, const char*, const char*> groups[] = {
      {0, 1, "Start2|KEY_2|JOY2_BUTTON9|", "Shoot2|JOY2_BUTTON3||"},
      {2, 0, "Steering|JOY1_XAXIS||", "HandBrake|KEY_S|JOY1_BUTTON2|"},
      {3, 0, "TwinJoyCrouch|KEY_R|JOY1_BUTTON2|",
       "AnalogJoyEvent|KEY_S|JOY_BUTTON2|MOUSE_RIGHT_BUTTON"},
      {1, 1, "GunDown2|||", "Show Crosshairs|0||"}};
  start();
  options([&](QWidget& window) {
    page(window, 2);
    clickRow(column(window, 2), 3);
    type(window, "lstInput(2)", Qt::Key_Down, 14);
    const int top = column(window, 2).verticalScrollBar()->value();
    EXPECT_GT(top, 0);
    for (int cell = 0; cell < 4; ++cell) {
      EXPECT_TRUE(column(window, cell).item(17)->isSelected());
      EXPECT_EQ(column(window, cell).verticalScrollBar()->value(), top);
    }
    column(window, 0).verticalScrollBar()->setValue(1);
    EXPECT_EQ(column(window, 3).verticalScrollBar()->value(), 1);
    for (const auto& [group, player, first, last] : groups) {
      show(window, group, player);
      EXPECT_EQ(row(window, 0), first);
      EXPECT_EQ(row(window, column(window, 0).count() - 1), last);
    }
    get(window, "cmbInputType").setFocus();
    key(Qt::Key_Tab);
    for (int cell = 0; cell < 4; ++cell) {
      EXPECT_TRUE(column(window, cell).item(0)->isSelected()) << "the row that has the focus";
      column(window, cell).clearSelection();
    }
    column(window, 3).setFocus();
    key(Qt::Key_Down);
    EXPECT_TRUE(column(window, 0).item(0)->isSelected()) << "no row has the focus before";
  });
}

TEST_F(Inputs, AreEditedCellByCell) {
  start();
  options([](QWidget& window) {
    page(window, 2);
    clickRow(column(window, 0), 0, true);
    ASSERT_EQ(QApplication::activeModalWidget(), &window) << "names are not edited";
    WhenModal("frmInput2", choose(2, 2, "JOY_BUTTON32")).during([&] {
      clickRow(column(window, 3), 2, true);
    });
    EXPECT_EQ(row(window, 2), "ServiceA|KEY_5||JOY2_BUTTON32");
    const auto pickAndLeave = [](QWidget& dialog) {
      get<QComboBox>(dialog, "cmbInputs(0)").setCurrentIndex(3);
      key(Qt::Key_Escape);
    };
    WhenModal("frmInput2", pickAndLeave).during([&] { type(window, "lstInput(1)", Qt::Key_F2); });
    EXPECT_EQ(EffectiveValues[34], "\"KEY_5,JOY2_BUTTON32\"");
    auto* cell = QAccessible::queryAccessibleInterface(&column(window, 1))->child(3);
    EXPECT_EQ(cell->text(QAccessible::Name), "KEY_6");
    WhenModal("frmInput2", choose(0, 0, "KEY_F1")).during([&] {
      cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      QApplication::processEvents();
    });
    EXPECT_EQ(row(window, 3), "TestA|KEY_F1||") << "pressed by assistive technology";
    clickRow(column(window, 1), 2);
    type(window, "lstInput(1)", Qt::Key_Delete);
    EXPECT_EQ(EffectiveValues[34], "\"JOY2_BUTTON32\"");
    type(window, "lstInput(3)", Qt::Key_Delete);
    EXPECT_EQ(EffectiveValues[34], "\"NONE\"");
    show(window, 2, 1);
    EXPECT_EQ(column(window, 1).count(), 0);
    for (const auto key : {Qt::Key_Delete, Qt::Key_F2}) type(window, "lstInput(1)", key);
    show(window, 1, 1);
    const auto asked = [&](QMessageBox::StandardButton button, int index) {
      const WhenModal question("", [=](QWidget& box) { answer(box, button); });
      clickRow(column(window, 1), index, true);
    };
    asked(QMessageBox::Yes, 8);
    asked(QMessageBox::Cancel, 8);
    EXPECT_EQ(EffectiveValues[127], "1");
    asked(QMessageBox::Yes, 9);
    type(window, "lstInput(2)", Qt::Key_Delete);
    EXPECT_EQ(row(window, 9), "Show Crosshairs|1||");
    clickRow(column(window, 1), 8);
    type(window, "lstInput(1)", Qt::Key_Delete);
    EXPECT_EQ(EffectiveValues[127], "0");
    EXPECT_EQ(Profiles[1].Slots[34].Value, "\"KEY_5\"") << "nothing was saved yet";
    save(window);
  });
  EXPECT_EQ(saved(), "Crosshairs = 1|");
}

TEST_F(Inputs, AreRenamedByTheirSystemAndRestored) {
  startWith(
      "Crosshairs = 1|InputStart1 = \"KEY2_A,mouse2_UP,JOY_X\"|InputStart2 = \"KEY_B,MOUSE_UP\"|");
  options([](QWidget& window) {
    page(window, 2);
    EXPECT_EQ(row(window, 0), "Start1|KEY_A|MOUSE_UP|JOY_X");
    type(window, "cmbInputType", Qt::Key_Down, 2);
    EXPECT_EQ(row(window, 0), "Start1|KEY1_A|MOUSE1_UP|JOY_X");
    EXPECT_EQ(EffectiveValues[31], "\"KEY1_B,MOUSE2_UP\"");
    const WhenModal chooser("frmInput2", choose(1, 2, "MOUSE_LEFT_BUTTON"));
    clickRow(column(window, 1), 1, true);
    save(window);
  });
  EXPECT_EQ(saved(), "Crosshairs = 1|;InputMethod=2|");
  const auto numbered = file();
  EXPECT_NE(numbered.find("InputCoin1 = \"MOUSE2_LEFT_BUTTON\"\r\n"), std::string::npos);
  gameOptions(0, save);
  EXPECT_EQ(file().substr(0, file().find("[ a ]")), numbered.substr(0, file().find("[ a ]")))
      << "a game leaves the bindings alone";
  options([](QWidget& window) {
    page(window, 2);
    const std::pair<QMessageBox::StandardButton, const char*> answers[] = {
        {QMessageBox::No, "KEY1_A|MOUSE1_UP|JOY_X"}, {QMessageBox::Yes, "KEY1_1|JOY1_BUTTON9|"}};
    for (const auto& [button, bindings] : answers) {
      const WhenModal question("", [button = button](QWidget& box) { answer(box, button); });
      get(window, "lblLoadDefaults").setFocus();
      key(Qt::Key_Return);
      EXPECT_TRUE(window.isVisible()) << "Enter follows the link, and saves nothing";
      EXPECT_EQ(row(window, 0), std::string("Start1|") + bindings);
    }
    EXPECT_EQ(Profiles[1].Slots[30].Value, "\"KEY_1,JOY1_BUTTON9\"") << "at once";
    save(window);
  });
  EXPECT_EQ(saved(), "Crosshairs = 1|[ a ]|;InputMethod=2|");
  EXPECT_NE(file().find("InputTrigger = \"KEY1_A,JOY1_BUTTON1,MOUSE1_LEFT_BUTTON\"\r\n"),
            std::string::npos);
}

TEST_F(Inputs, HaveAdvancedOptionsThatWaitForTheNextSaveOfAllGames) {
  const std::string game = "[ a ]|DirectInputConstForceMax = 7|InputKeySensitivity = 8|";
  const std::string kept = "DirectInputFrictionMax = x|XInputVibrateMax = 20|";
  startWith("DirectInputConstForceMax = 900|" + kept + "InputKeySensitivity = -3|" + game);
  options([](QWidget& window) {
    for (const int shown : {0, 1, 2}) {
      advanced(window, [&](QWidget& dialog) {
        expectPage(dialog, shown);
        for (const auto* tab : {"optADV(1)", "optADV(2)"}) {
          press(dialog, tab);
          expectPage(dialog, 2);  // that of the joystick is out of reach
        }
        press(dialog, "btnCancel");
      });
      type(window, "cmbInputType", Qt::Key_Down);
    }
    EXPECT_EQ(StagedOptions[17], "");
    type(window, "cmbInputType", Qt::Key_Up, 2);
    advanced(window, [](QWidget& dialog) {
      EXPECT_EQ(textOf(dialog, "lblValue(0)") + textOf(dialog, "lblValue(2)") +
                    textOf(dialog, "lblValue(10)"),
                "200 %0 %1")
          << "the nearest end, or where the bar was";
      press(dialog, "chkFF(0)");
      type(dialog, "barraD(0)", Qt::Key_PageDown, 3);
      press(dialog, "optADV(1)");
      type(dialog, "barraD(10)", Qt::Key_End);
      key(Qt::Key_Return);
      EXPECT_FALSE(dialog.isVisible()) << "OK is the default button";
    });
    press(window, "btnCancel");
  });
  EXPECT_EQ(StagedOptions[22], "") << "the other system's options are left alone";
  gameOptions(0, save);
  EXPECT_EQ(saved(), "DirectInputConstForceMax = 900|" + kept + "InputKeySensitivity = -3|" + game);
  options(save);
  const std::string all =
      "ForceFeedback = 1|DirectInputConstForceMax = 170|XInputVibrateMax = 20|"
      "InputKeySensitivity = 100|";
  EXPECT_EQ(saved(), all + game);
  EXPECT_EQ(StagedOptions[17], "") << "stored once";
  gameOptions(1, save);
  EXPECT_EQ(saved(), all + game + "[ b ]|");
}

}  // namespace
