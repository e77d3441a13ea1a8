// The options dialog: what it shows in either scope, what a save leaves in the file, the ways out,
// and the restoring of a game.
#include <QClipboard>
#include <QLineEdit>

#include "support/ui_test.h"

namespace {

using namespace Module1;

class Options : public support::UiTest {};

constexpr const char* kPages = "mConfig{=Right =Right =Right =Right}";

TEST_F(Options, ShowTheValuesInForce) {
  for (const auto* text :
       {"",
        "EmulateSound = 0|EmulateDSB = 0|FlipStereo = 1|ShowFrameRate = 1|FullScreen = 1|"
        "WideScreen = 1|Vsync = 0|MultiThreaded = 0|Throttle = 0|PowerPCFrequency = 120|"
        "SoundVolume = 75|MusicVolume = 0|Balance = -100|XResolution = 1920|YResolution = 1080|",
        // A size of one's own, and a greyed box.
        "EmulateDSB = 0|Vsync = 0|Throttle = 0|XResolution = 641|Balance = 30|WideScreen = 2|"
        "FullScreen = 1|",
        // The load ends where a number is none, and shows of the size what fits its boxes.
        "EmulateDSB = 0|FullScreen = banana|WideScreen = 1|XResolution = 12345|YResolution = abc|",
        "Throttle = 0|EmulateSound = 0|FragmentShader = \"/s/g.fs\"|XResolution = 641|"
        "[ b ]|FlipStereo = 1|VertexShader = \"/s/b.vs\"|"}) {
    startWith(text);
    use(kPages);
  }
  use("lstGames@1 cmdConfGame{=Right =Right =Right}");
}

TEST_F(Options, ReachTheFileInBothScopes) {
  for (const auto* opening : {"cmdConfGame", "mConfig"}) {
    startWith("");
    use(QString(opening) +
        "{chkAudio(0) chkAudio(1) chkFlipStereo hslVolume(0)=PgDown hslVolume(1)=Left "
        "hslBalance=Home optOPT(1) chkFPS chkWidescreen chkThrottle chkVsync cmbRes=Down "
        "chkCustRes optOPT(3) chkMulti hslPPC=End cmdSave}");
  }
}

TEST_F(Options, SavedWithoutAChangeLeaveTheFileByteForByte) {
  const std::string text =
      "FragmentShader = \"/s/a=b.fs\"|InputStart1 = \"KEY1_5,JOY2_X,A,B\"|XResolution = 641|"
      "Throttle = 0|Crosshairs = 1|[ a ]|Throttle = 1|WideScreen = 1|[ gone ]|"
      ";ROMpaths=/r/1*/r/2*/r/3|;SNAPpaths=/s|;GameTimeLog=a,1,22|;InputMethod=";
  startWith(text + "7|");
  use("mConfig{cmdSave}");
  startWith(text + "1|");
  use("mConfig{cmdSave}");
  const auto first = file();
  start();
  use("mConfig{=Return}");
  EXPECT_EQ(file(), first);
  use("cmdConfGame{cmdSave}");
  EXPECT_EQ(file(), first);
  EXPECT_NE(settings().find("ROMS3=/r/3"), std::string::npos);
}

TEST_F(Options, OfAGameAreKeptWhereTheyDifferAndTheFileCanNameIt) {
  addGames("a a;b");
  startWith(
      "Throttle = 0|[ a ]|Throttle = 1|Balance = 5|ForceFeedback = 1|[ a ]|FullScreen = 1|"
      "Throttle = 1|");
  // The last row of the name takes the values; what equals the global value is dropped there.
  use("cmdConfGame{optOPT(1) chkThrottle cmdSave} "
      "lstGames@1 cmdConfGame{optOPT(1) chkThrottle cmdSave}");
}

TEST_F(Options, ThatAnOldEmulatorLacksAreDisabledAndNotSaved) {
  startWith("WideScreen = 1|MultiThreaded = 0|");
  EmulatorVersion = "0.3";
  use(kPages);
  use("mConfig{cmdSave}");
}

TEST_F(Options, ThatTheLoadingDidNotReachStayAsTheyWere) {
  startWith(
      "FullScreen = 1|FragmentShader = \"/s\"|SoundVolume = 150|MusicVolume = 7|Balance = 3|"
      "[ a ]|Throttle = 0|SoundVolume = 160|Balance = 4|"
      ";ROMpaths=/r|;SNAPpaths=/s|;InputMethod=1|");
  use("mConfig{cmdSave} cmdConfGame{chkFlipStereo hslBalance=End cmdSave} lstGames@1 "
      "cmdConfGame{hslBalance=Right hslBalance=Right hslBalance=Right cmdSave} "
      "mConfig{optOPT(4) cmdAddPath(0) cmdSave}");
}

TEST_F(Options, OfAGameCanBeRestored) {
  startWith("[ a ]|Throttle = 0|[ b ]|Balance = 1|[ c ]|Balance = 2|");
  use("cmdConfGame{lblGameDef{No} lblGameDef{Yes}} cmdConfGame{lblGameDef{Yes}}");
}

TEST_F(Options, AreNotKeptOnTheOtherWaysOutNorByWhatComesTooLate) {
  startWith("");
  use("cmdConfGame{chkFlipStereo =Esc cmdSave=Space cmdSave} "
      "cmdConfGame{chkFlipStereo btnCancel cmdSave=Space cmdSave}");
}

TEST_F(Options, OfTheSizeTakeFourDigitsAndDropTheRest) {
  startWith("XResolution = 641|");
  modify("optOPT(1)", [this](QWidget& window) {
    auto& box = get<QLineEdit>(window, "tbxCustRes(0)");
    box.setFocus();
    QTest::keyClicks(&box, "a2-34");
    EXPECT_EQ(box.text(), "6412");
    box.setSelection(1, 2);  // what is pasted takes its place
    for (const auto* text : {"px, \n", " 7,890x1080"}) {
      QApplication::clipboard()->setText(text);
      use(window, "=Ctrl+V");
    }
  });
}

TEST_F(Options, AreTurnedByTheWheelInFocusOnlyAndByTheEndOfADrag) {
  start();
  modify("optOPT(3)", [this](QWidget& window) {
    for (const auto& [page, name] :
         {std::pair("optOPT(2)", "cmbInputType"), {"optOPT(3)", "hslPPC"}}) {
      const auto turn = QString("%1~-120 ").arg(name);
      use(window, page);
      use(window, turn);
      get(window, name).setFocus();
      use(window, turn);
    }
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
