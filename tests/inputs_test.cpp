// The input table, the binding editor, the chooser and the input systems.
#include <QAccessible>

#include "core/option_catalogue.h"
#include "support/options_test.h"

namespace {

using namespace Module1;
using support::WhenModal;

class Inputs : public support::OptionsTest {
 protected:
  static QListWidget& column(const QWidget& window, int index) {
    return get<QListWidget>(window, "lstInput(" + std::to_string(index) + ")");
  }
  static std::string row(const QWidget& window, int index) {
    std::string text;
    for (int cell = 0; cell < 4; ++cell)
      text += (cell ? "|" : "") + column(window, cell).item(index)->text().toStdString();
    return text;
  }
  static void at(const QWidget& window, int cell, int index, bool twice = true) {
    clickRow(column(window, cell), index, twice);
  }
  static void show(const QWidget& window, int group, int player) {
    page(window, 2);
    press(window, "optTypeInputs(" + std::to_string(group) + ")");
    press(window, "optPlayer(" + std::to_string(player) + ")");
  }
  // Picks in the chooser as a person does by keys.
  static std::function<void(QWidget&)> choose(int device, int number, const char* name) {
    return [=](QWidget& chooser) {
      const auto index = "(" + std::to_string(device) + ")";
      auto& names = get<QComboBox>(chooser, "cmbInputs" + index);
      EXPECT_FALSE(get(chooser, "cmdOK" + index).isEnabled());
      if (number > 0) get<QComboBox>(chooser, "cmbHardN" + index).setCurrentIndex(number - 1);
      names.setCurrentIndex(names.findText(name));
      press(chooser, "cmdOK" + index);
    };
  }
  static const std::string& value(const char* option) {
    return EffectiveValues[core::OptionIndex(option)];
  }
};

TEST_F(Inputs, GroupsAndPlayers) {
  const struct {
    int group, player, count;
    const char *first, *last;
  } rows[] = {{0, 1, 15, "Start2|KEY_2|JOY2_BUTTON9|", "Shoot2|JOY2_BUTTON3||"},
              {2, 0, 18, "Steering|JOY1_XAXIS||", "HandBrake|KEY_S|JOY1_BUTTON2|"},
              {2, 1, 0, "", ""},
              {3, 0, 22, "TwinJoyCrouch|KEY_R|JOY1_BUTTON2|",
               "AnalogJoyEvent|KEY_S|JOY_BUTTON2|MOUSE_RIGHT_BUTTON"},
              {1, 1, 10, "GunDown2|||", "Show Crosshairs|0||"}};
  start();
  options([&](QWidget& window) {
    for (const auto& expected : rows) {
      show(window, expected.group, expected.player);
      for (int cell = 0; cell < 4; ++cell) ASSERT_EQ(column(window, cell).count(), expected.count);
      if (expected.count == 0) continue;
      EXPECT_EQ(row(window, 0), expected.first);
      EXPECT_EQ(row(window, expected.count - 1), expected.last);
    }
  });
}

TEST_F(Inputs, FourListsActAsOneTable) {
  start();
  options([](QWidget& window) {
    page(window, 2);
    at(window, 2, 3, false);
    type(window, "lstInput(2)", Qt::Key_Down, 14);
    for (int cell = 0; cell < 4; ++cell) {
      EXPECT_TRUE(column(window, cell).item(17)->isSelected());
      EXPECT_GT(column(window, cell).verticalScrollBar()->value(), 0);
      EXPECT_EQ(column(window, cell).verticalScrollBar()->value(),
                column(window, 2).verticalScrollBar()->value());
    }
    column(window, 0).verticalScrollBar()->setValue(1);
    EXPECT_EQ(column(window, 3).verticalScrollBar()->value(), 1);
    show(window, 1, 0);
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

TEST_F(Inputs, EditingCells) {
  start();
  options([](QWidget& window) {
    page(window, 2);
    at(window, 0, 0);
    ASSERT_EQ(QApplication::activeModalWidget(), &window) << "names are not edited";
    WhenModal("frmInput2", choose(2, 2, "JOY_BUTTON32")).during([&] { at(window, 3, 2); });
    EXPECT_EQ(row(window, 2), "ServiceA|KEY_5||JOY2_BUTTON32");
    const auto pickAndLeave = [](QWidget& dialog) {
      get<QComboBox>(dialog, "cmbInputs(0)").setCurrentIndex(3);
      key(Qt::Key_Escape);
    };
    WhenModal("frmInput2", pickAndLeave).during([&] { type(window, "lstInput(1)", Qt::Key_F2); });
    EXPECT_EQ(value("InputServiceA"), "\"KEY_5,JOY2_BUTTON32\"");
    auto* cell = QAccessible::queryAccessibleInterface(&column(window, 1))->child(3);
    EXPECT_EQ(cell->text(QAccessible::Name), "KEY_6");
    WhenModal("frmInput2", choose(0, 0, "KEY_F1")).during([&] {
      cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      QApplication::processEvents();
    });
    EXPECT_EQ(row(window, 3), "TestA|KEY_F1||") << "pressed by assistive technology";
    at(window, 1, 2, false);
    type(window, "lstInput(1)", Qt::Key_Delete);
    EXPECT_EQ(value("InputServiceA"), "\"JOY2_BUTTON32\"");
    type(window, "lstInput(3)", Qt::Key_Delete);
    EXPECT_EQ(value("InputServiceA"), "\"NONE\"");
    show(window, 2, 1);
    for (const auto key : {Qt::Key_Delete, Qt::Key_F2}) type(window, "lstInput(1)", key);
  });
  EXPECT_EQ(Profiles[1].Slots[34].Value, "\"KEY_5\"") << "nothing was saved";
}

TEST_F(Inputs, NumericRowsTakeOneAndZero) {
  start();
  options([](QWidget& window) {
    show(window, 1, 1);
    const auto asked = [&](QMessageBox::StandardButton button, int index) {
      const WhenModal question("", [=](QWidget& box) { answer(box, button); });
      at(window, 1, index);
    };
    asked(QMessageBox::Yes, 8);
    asked(QMessageBox::Cancel, 8);
    EXPECT_EQ(value("InputAutoTrigger2"), "1");
    asked(QMessageBox::Yes, 9);
    type(window, "lstInput(2)", Qt::Key_Delete);
    EXPECT_EQ(row(window, 9), "Show Crosshairs|1||");
    at(window, 1, 8, false);
    type(window, "lstInput(1)", Qt::Key_Delete);
    EXPECT_EQ(value("InputAutoTrigger2"), "0");
    save(window);
  });
  EXPECT_EQ(saved(), "Crosshairs = 1|");
}

TEST_F(Inputs, InputSystemsRenameTheDevices) {
  startWith("InputStart1 = \"KEY2_A,mouse2_UP,JOY_X\"|InputStart2 = \"KEY_B,MOUSE_UP\"|[ a ]|");
  options([](QWidget& window) {
    page(window, 2);
    EXPECT_EQ(row(window, 0), "Start1|KEY_A|MOUSE_UP|JOY_X");
    type(window, "cmbInputType", Qt::Key_Down, 2);
    EXPECT_EQ(row(window, 0), "Start1|KEY1_A|MOUSE1_UP|JOY_X");
    EXPECT_EQ(value("InputStart2"), "\"KEY1_B,MOUSE2_UP\"");
    const WhenModal chooser("frmInput2", choose(1, 2, "MOUSE_LEFT_BUTTON"));
    at(window, 1, 1);
    save(window);
  });
  EXPECT_EQ(saved(), "[ a ]|;InputMethod=2|");
  const auto file = read("Config/Kestrivane.ini");
  EXPECT_TRUE(fileHas("InputCoin1 = \"MOUSE2_LEFT_BUTTON\""));
  gameOptions(0, save);
  EXPECT_EQ(read("Config/Kestrivane.ini"), file) << "a game leaves the bindings alone";
}

TEST_F(Inputs, RestoringAllInputs) {
  startWith("Crosshairs = 1|Throttle = 0|InputStart1 = \"KEY1_9\"|;InputMethod=2|");
  options([](QWidget& window) {
    page(window, 2);
    const std::pair<QMessageBox::StandardButton, const char*> answers[] = {
        {QMessageBox::No, "KEY1_9||"}, {QMessageBox::Yes, "KEY1_1|JOY1_BUTTON9|"}};
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
  EXPECT_EQ(saved(), "Throttle = 0|Crosshairs = 1|;InputMethod=2|");
  EXPECT_TRUE(fileHas("InputTrigger = \"KEY1_A,JOY1_BUTTON1,MOUSE1_LEFT_BUTTON\""));
}

}  // namespace
