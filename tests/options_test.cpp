// What a save of the options leaves in the file byte for byte, and input that a transcript can't
// spell.
#include <QClipboard>
#include <QLineEdit>

#include "support/ui_test.h"

namespace {

class Options : public support::UiTest {};

TEST_F(Options, SavedWithoutAChangeLeaveTheFileByteForByte) {
  startWith(
      "FragmentShader = \"/s/a=b.fs\"|InputStart1 = \"KEY1_5,JOY2_X,A,B\"|XResolution = 641|"
      "Throttle = 0|Crosshairs = 1|[ a ]|Throttle = 1|WideScreen = 1|[ gone ]|"
      ";ROMpaths=/r/1*/r/2*/r/3|;SNAPpaths=/s|;GameTimeLog=a,1,22|;InputMethod=1|");
  inModal([this](QWidget& options) { act(options, "click cmdSave"); },
          [this] { act("choose mConfig"); });
  const auto first = file();
  start();
  inModal([this](QWidget& options) { act(options, "press Return"); },
          [this] { act("choose mConfig"); });
  EXPECT_EQ(file(), first);
  inModal([this](QWidget& options) { act(options, "click cmdSave"); },
          [this] { act("click cmdConfGame"); });
  EXPECT_EQ(file(), first);
  EXPECT_NE(settings().find("ROMS3=/r/3"), std::string::npos);
}

TEST_F(Options, AreNotKeptByWhatComesAfterTheClose) {
  startWith("");
  for (const auto* leave : {"press Esc", "click btnCancel"}) {
    const auto before = file();
    const auto step = [&](QWidget& options) {
      act(options, "click chkFlipStereo");
      act(options, leave);
      EXPECT_FALSE(options.isVisible());
      QTest::keyClick(&get(options, "cmdSave"), Qt::Key_Space);
      act(options, "click cmdSave");
    };
    inModal(step, [this] { act("click cmdConfGame"); });
    EXPECT_EQ(file(), before);
  }
}

TEST_F(Options, OfTheSizeTakeFourDigitsAndDropTheRest) {
  startWith("XResolution = 641|");
  modify("optOPT(1)", [this](QWidget& window) {
    auto& box = get<QLineEdit>(window, "tbxCustRes(0)");
    act(window, "type a2-34 in tbxCustRes(0)");
    EXPECT_EQ(box.text().toStdString(), "6412");
    box.setSelection(1, 2);  // what is pasted takes its place
    for (const auto& [pasted, result] : {std::pair("px, \n", "6412"), {" 7,890x1080", "6782"}}) {
      QApplication::clipboard()->setText(pasted);
      act(window, "press Ctrl+V");
      EXPECT_EQ(box.text().toStdString(), result);
    }
  });
}

TEST_F(Options, AreTurnedByTheEndOfADrag) {
  start();
  modify("optOPT(3)", [this](QWidget& window) {
    auto& bar = get(window, "hslPPC");
    const auto before = textOf(window, "lblPPC");
    const QPoint thumb(bar.height() + 14, bar.height() / 2);
    QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(&bar, thumb + QPoint(150, 0));
    EXPECT_EQ(textOf(window, "lblPPC"), before);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(150, 0));
    EXPECT_NE(textOf(window, "lblPPC"), before);
  });
}

}  // namespace
