// The options dialog: what it shows in either scope, what a save leaves in the file, the ways out,
// and the restoring of a game.
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

#include "support/ui_test.h"

namespace {

using namespace Module1;

constexpr int kAllGames = -1;

class Options : public support::UiTest {
 protected:
  // What the dialog shows of its options, in one line.
  static std::string shown(const QWidget& window) {
    std::string text;
    for (const auto* box : window.findChildren<QCheckBox*>())
      if (box->checkState() != Qt::Unchecked)
        text += box->objectName().toStdString().substr(3) + (box->isTristate() ? "? " : " ");
    text += get<QComboBox>(window, "cmbRes").currentText().toStdString();
    for (const auto* name :
         {"tbxCustRes(0)", "tbxCustRes(1)", "lblVolume(0)", "lblVolume(1)", "lblBalance", "lblPPC"})
      text += "," + textOf(window, name);
    return text;
  }
  // The file after a use of the dialog that closes it.
  std::string fileAfter(int game, const QString& controls) {
    const auto step = [&](QWidget& window) {
      use(window, controls);
      EXPECT_FALSE(window.isVisible());
    };
    game == kAllGames ? options(step) : gameOptions(game, step);
    return saved();
  }
};

TEST_F(Options, ShowTheValuesInForce) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "Audio(0) Audio(1) Throttle Vsync Multi 496x384,,,100 %,100 %,Centered,50 MHz"},
      {"EmulateSound = 0|EmulateDSB = 0|FlipStereo = 1|ShowFrameRate = 1|FullScreen = 1|"
       "WideScreen = 1|Vsync = 0|MultiThreaded = 0|Throttle = 0|PowerPCFrequency = 120|"
       "SoundVolume = 75|MusicVolume = 0|Balance = -100|XResolution = 1920|YResolution = 1080|",
       "FlipStereo Fullscreen Widescreen FPS 1920x1080,,,75%,0%,+100% to Rear,120 MHz"},
      // A size of one's own, and a greyed box.
      {"EmulateDSB = 0|Vsync = 0|Throttle = 0|XResolution = 641|Balance = 30|WideScreen = 2|"
       "FullScreen = 1|",
       "Audio(0) CustRes Fullscreen Widescreen? Multi 496x384,641,384,100 %,100 %,+30% to Front,"
       "50 MHz"},
      // The load ends where a number is none, and shows of the size what fits its boxes.
      {"EmulateDSB = 0|FullScreen = banana|WideScreen = 1|XResolution = 12345|YResolution = abc|",
       "Audio(0) CustRes Throttle Vsync Multi 496x384,1234,abc,100 %,100 %,Centered,50 MHz"}};
  for (const auto& [text, values] : cases) {
    startWith(text);
    options([&, values = values](QWidget& window) { EXPECT_EQ(shown(window), values); });
  }
  startWith(
      "Throttle = 0|EmulateSound = 0|FragmentShader = \"/s/g.fs\"|XResolution = 641|"
      "[ b ]|FlipStereo = 1|VertexShader = \"/s/b.vs\"|");
  gameOptions(1, [](QWidget& window) {
    EXPECT_EQ(
        shown(window),
        "Audio(1) FlipStereo CustRes Vsync Multi 496x384,641,384,100 %,100 %,Centered,50 MHz");
    use(window, "optOPT(4)");
    EXPECT_FALSE(get(window, "lstFolders(0)").isVisible());
    EXPECT_EQ(rows(get<QListWidget>(window, "lstFolders(3)")), "/s/g.fs*|");
    EXPECT_EQ(rows(get<QListWidget>(window, "lstFolders(4)")), "/s/b.vs*|");
  });
}

TEST_F(Options, ReachTheFileInBothScopes) {
  const QString touches =
      "chkAudio(0) chkAudio(1) chkFlipStereo hslVolume(0)=PgDown hslVolume(1)=Left hslBalance=Home "
      "optOPT(1) chkFPS chkWidescreen chkThrottle chkVsync cmbRes=Down optOPT(3) chkMulti "
      "hslPPC=End ";
  const std::string size = "XResolution = 640|YResolution = 480|Throttle = 0|";
  const std::string rest =
      "WideScreen = 1|SoundVolume = 90|EmulateSound = 0|MusicVolume = 99|EmulateDSB = 0|"
      "FlipStereo = 1|Balance = -100|MultiThreaded = 0|PowerPCFrequency = 1000|";
  startWith("");
  EXPECT_EQ(fileAfter(0, touches + "cmdSave"), "[ a ]|" + size + "ShowFrameRate = 1|" + rest);
  EXPECT_TRUE(OptionsSaved);
  startWith("");
  EXPECT_EQ(fileAfter(kAllGames, touches + "optOPT(1) chkFullscreen cmdSave"),
            size + "FullScreen = 1|" + rest + "Vsync = 0|");
  EXPECT_FALSE(OptionsSaved) << "the main window has taken it up";
}

TEST_F(Options, SavedWithoutAChangeLeaveTheFileByteForByte) {
  const std::string text =
      "XResolution = 641|Throttle = 0|Crosshairs = 1|[ a ]|Throttle = 1|WideScreen = 1|[ gone ]|"
      ";ROMpaths=/r/1*/r/2*/r/3|;SNAPpaths=/s|;GameTimeLog=a,1,22|;InputMethod=";
  const auto withSystem = [&](const char* system) {
    startWith("FragmentShader = \"/s/a=b.fs\"|InputStart1 = \"KEY1_5,JOY2_X,A,B\"|" + text +
              system);
    EXPECT_EQ(fileAfter(kAllGames, "cmdSave"), text + system);
    return file();
  };
  EXPECT_NE(withSystem("7|").find("\"KEY1_5,JOY2_X,A,B\""), std::string::npos) << "unknown";
  const auto first = withSystem("1|");
  EXPECT_NE(first.find("\"KEY_5,JOY2_X,A,B\""), std::string::npos);
  start();
  options([](QWidget&) { key(Qt::Key_Return); });
  EXPECT_EQ(file(), first) << "Enter saves";
  fileAfter(0, "cmdSave");
  EXPECT_EQ(file(), first);
  EXPECT_NE(settings().find("ROMS3=/r/3"), std::string::npos);
}

TEST_F(Options, OfAGameAreKeptWhereTheyDifferAndTheFileCanNameIt) {
  const std::string kept = "Throttle = 0|[ a ]|Throttle = 1|Balance = 5|ForceFeedback = 1|[ a ]|";
  addGames("a a;b");
  startWith(kept + "FullScreen = 1|Throttle = 1|");
  // The last row of the name takes the values; what equals the global value is dropped there.
  for (const int game : {0, 1})
    EXPECT_EQ(fileAfter(game, "optOPT(1) chkThrottle cmdSave"),
              kept + "FullScreen = 1|Balance = 5|");
}

TEST_F(Options, ThatAnOldEmulatorLacksAreDisabledAndNotSaved) {
  startWith("WideScreen = 1|MultiThreaded = 0|");
  EmulatorVersion = "0.3";
  options([&](QWidget& window) {
    for (const auto* name : {"chkMulti", "chkWidescreen", "hslBalance", "chkVsync"})
      EXPECT_FALSE(get(window, name).isEnabled()) << name;
    save(window);
  });
  EXPECT_EQ(saved(), "WideScreen = 1|");
}

TEST_F(Options, ThatTheLoadingDidNotReachStayAsTheyWere) {
  const std::string global =
      "FullScreen = 1|FragmentShader = \"/s\"|SoundVolume = 150|MusicVolume = 7|Balance = 3|";
  const std::string game = "[ a ]|Throttle = 0|SoundVolume = 160|";
  const std::string folders = ";ROMpaths=/r|;SNAPpaths=/s|;InputMethod=1|";
  startWith(global + game + "Balance = 4|" + folders);
  EXPECT_EQ(fileAfter(kAllGames, "cmdSave"), global + game + "Balance = 4|" + folders);
  EXPECT_EQ(fileAfter(0, "chkFlipStereo hslBalance=End cmdSave"),
            global + game + "FlipStereo = 1|Balance = 100|" + folders);
  EXPECT_EQ(fileAfter(1, "hslBalance=Right hslBalance=Right hslBalance=Right cmdSave"),
            global + game + "FlipStereo = 1|Balance = 100|[ b ]|" + folders)
      << "what holds anyway is not stored";
  gameOptions(0, [](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "   Options:   A");
    EXPECT_FALSE(get(window, "optOPT(2)").isVisible());
  });
  const auto text = fileAfter(kAllGames, "optOPT(4) cmdAddPath(0) cmdSave");
  EXPECT_NE(text.find(";ROMpaths=/r*" + AppFolder), std::string::npos);
}

TEST_F(Options, OfAGameCanBeRestored) {
  const std::tuple<QMessageBox::StandardButton, const char*, const char*, bool> rows[] = {
      {QMessageBox::Yes, "[ a ]|Throttle = 0|[ b ]|Balance = 1|[ c ]|Balance = 2|",
       "[ c ]|Balance = 2|[ b ]|Balance = 1|", false},
      {QMessageBox::Yes, "[ b ]|Balance = 1|", "[ b ]|Balance = 1|", false},
      {QMessageBox::No, "[ a ]|Throttle = 0|", "[ a ]|Throttle = 0|", true}};
  for (const auto& [button, text, after, stays] : rows) {
    startWith(text);
    gameOptions(0, [&, button = button, stays = stays](QWidget& window) {
      answer(button, [&] { use(window, "lblGameDef"); });
      EXPECT_EQ(window.isVisible(), stays);
    });
    EXPECT_EQ(saved(), after);
  }
}

TEST_F(Options, AreNotKeptOnTheOtherWaysOutNorByWhatComesTooLate) {
  startWith("");
  const auto before = file();
  for (const bool escape : {true, false}) {
    OptionsSaved = true;
    gameOptions(0, [&](QWidget& window) {
      use(window, "chkFlipStereo");
      escape ? key(Qt::Key_Escape) : use(window, "btnCancel");
      EXPECT_FALSE(window.isVisible());
      use(window, "cmdSave=Space cmdSave");
    });
    EXPECT_EQ(OptionsSaved, escape);
    EXPECT_EQ(file(), before);
  }
}

TEST_F(Options, OfTheSizeTakeFourDigitsAndDropTheRest) {
  startWith("XResolution = 641|");
  options([](QWidget& window) {
    use(window, "optOPT(1)");
    auto& box = get<QLineEdit>(window, "tbxCustRes(0)");
    box.setFocus();
    QTest::keyClicks(&box, "a2-34");
    EXPECT_EQ(box.text(), "6412");
    box.setSelection(1, 2);
    const auto paste = [&](const char* text) {
      QApplication::clipboard()->setText(text);
      key(Qt::Key_V, Qt::ControlModifier);
      return box.text().toStdString();
    };
    EXPECT_EQ(paste("px, \n"), "6412");
    EXPECT_EQ(paste(" 7,890x1080"), "6782") << "in place of the selection";
  });
}

TEST_F(Options, AreTurnedByTheWheelInFocusOnlyAndByTheEndOfADrag) {
  start();
  options([](QWidget& window) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"optOPT(2)", "cmbInputType", "currentIndex"},
        {"optOPT(4)", "Drive1", "currentIndex"},
        {"optOPT(3)", "hslPPC", "value"}};
    for (const auto& [page, name, property] : rows) {
      use(window, page);
      auto& box = get(window, name);
      const auto turn = [&, what = property, before = box.property(property)](int by) {
        QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, by}, {}, {}, {}, false);
        QApplication::sendEvent(&box, &wheel);
        return box.property(what) != before;
      };
      EXPECT_FALSE(turn(120) || turn(-120) || box.hasFocus()) << name;
      box.setFocus();
      EXPECT_TRUE(turn(120) || turn(-120)) << name;
    }
    auto& bar = get<QScrollBar>(window, "hslPPC");
    const auto before = textOf(window, "lblPPC");
    const QPoint thumb(bar.height() + 12, bar.height() / 2);
    QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(&bar, thumb + QPoint(150, 0));
    EXPECT_EQ(textOf(window, "lblPPC"), before);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(150, 0));
    EXPECT_NE(textOf(window, "lblPPC"), before);
  });
}

}  // namespace
