// The input table, the binding editor, the chooser, the input systems and the advanced options.
#include <QAccessible>
#include <QScrollBar>

#include "support/ui_test.h"

namespace {

class Inputs : public support::UiTest {};

TEST_F(Inputs, OfEachGroupAndPlayerActAsOneTable) {
  start();
  modify("optOPT(2)", [this](QWidget& window) {
    const auto bar = [&](const char* name) {
      return get<QListWidget>(window, name).verticalScrollBar();
    };
    get(window, "cmbInputType").setFocus();
    use(window, "=Tab lstInput(2)=End");
    EXPECT_GT(bar("lstInput(2)")->value(), 0);
    EXPECT_EQ(bar("lstInput(2)")->value(), bar("lstInput(1)")->value());
    bar("lstInput(0)")->setValue(1);
    EXPECT_EQ(bar("lstInput(3)")->value(), 1);
    use(window, "optPlayer(1) optTypeInputs(1) optTypeInputs(2) optPlayer(0) optTypeInputs(3)");
    auto& link = get(window, "lblAdvOpts");
    const auto plain = link.grab().toImage();
    link.setFocus();
    EXPECT_NE(link.grab().toImage(), plain) << "the focus is seen";
  });
}

TEST_F(Inputs, AreEditedCellByCell) {
  start();
  modify("optOPT(2)", [this](QWidget& window) {
    // Names are not edited.
    use(window,
        "lstInput(0)@@2 "
        "lstInput(3)=F2{cmbHardN(2)=Down cmbInputs(2)=End cmdOK(2)} "
        "lstInput(1)=F2{cmbInputs(0)=End}");
    get(window, "lstInput(1)").setFocus();
    auto* cell = QAccessible::queryAccessibleInterface(&get(window, "lstInput(1)"))->child(3);
    EXPECT_EQ(cell->text(QAccessible::Name), "KEY_6");
    inModal([this](QWidget& chooser) { use(chooser, "cmbInputs(0)=End cmdOK(0)"); },
            [&] {
              cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
              QApplication::processEvents();
            });
    use(window,
        "lstInput(1)=Up lstInput(1)=Del lstInput(3)=Del optTypeInputs(2) optPlayer(1) "
        "lstInput(1)=Del lstInput(1)=F2 optTypeInputs(1) lstInput(1)@@8{Yes} "
        "lstInput(1)@@8{Cancel} lstInput(1)@@9{Yes} lstInput(1)@@8{No} lstInput(1)=Down "
        "lstInput(2)=Del lstInput(2)=F2 cmdSave");
  });
}

TEST_F(Inputs, AreRenamedByTheirSystemAndRestored) {
  startWith(
      "Crosshairs = 1|InputStart1 = \"KEY2_A,mouse2_UP,JOY_X\"|"
      "InputStart2 = \"KEY_B,MOUSE_UP\"|");
  use("mConfig{optOPT(2) cmbInputType=Down cmbInputType=Down lstInput(1)@1 "
      "lstInput(1)=F2{cmbHardN(1)=Down cmbInputs(1)=End cmdOK(1)} cmdSave} "
      "cmdConfGame{cmdSave} "
      // Enter follows the link, and saves nothing.
      "mConfig{optOPT(2) lblLoadDefaults=Return{No} lblLoadDefaults=Return{Yes} cmdSave}");
}

TEST_F(Inputs, HaveAdvancedOptionsThatWaitForTheNextSaveOfAllGames) {
  startWith(
      "DirectInputConstForceMax = 900|DirectInputFrictionMax = x|XInputVibrateMax = 20|"
      "InputKeySensitivity = -3|[ a ]|DirectInputConstForceMax = 7|InputKeySensitivity = 8|");
  // The joystick's page is out of reach.
  const QString pages = "lblAdvOpts{optADV(1) optADV(2) btnCancel} cmbInputType=Down ";
  use("mConfig{optOPT(2) " + pages + pages + pages +
      "cmbInputType=Home "
      "lblAdvOpts{chkFF(0) barraD(0)=PgDown optADV(1) barraD(10)=End =Return} btnCancel} "
      "cmdConfGame{cmdSave} mConfig{cmdSave} lstGames@1 cmdConfGame{cmdSave}");
}

}  // namespace
