// The options dialog: what it shows in either scope, what a save leaves in the file, the ways out,
// and the restoring of a game.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

#include "support/ui_test.h"

namespace {

using namespace Module1;

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
};

TEST_F(Options, ShowTheValuesInForce) {
  const struct {
    const char *what, *file, *shown;
  } cases[] = {
      {"nothing set", "",
       "Audio(0) Audio(1) Throttle Vsync Multi 496x384,,,100 %,100 %,Centered,50 MHz"},
      {"all set",
       "EmulateSound = 0|EmulateDSB = 0|FlipStereo = 1|ShowFrameRate = 1|FullScreen = 1|"
       "WideScreen = 1|Vsync = 0|MultiThreaded = 0|Throttle = 0|PowerPCFrequency = 120|"
       "SoundVolume = 75|MusicVolume = 0|Balance = -100|XResolution = 1920|YResolution = 1080|",
       "FlipStereo Fullscreen Widescreen FPS 1920x1080,,,75%,0%,+100% to Rear,120 MHz"},
      {"a size of one's own, a greyed box",
       "EmulateDSB = 0|Vsync = 0|Throttle = 0|XResolution = 641|Balance = 30|WideScreen = 2|"
       "FullScreen = 1|",
       "Audio(0) CustRes Fullscreen Widescreen? Multi 496x384,641,384,100 %,100 %,+30% to Front,"
       "50 MHz"},
      {"no number: the load ends there and shows the pair in force, as far as it fits its boxes",
       "EmulateDSB = 0|FullScreen = banana|WideScreen = 1|XResolution = 12345|YResolution = abc|",
       "Audio(0) CustRes Throttle Vsync Multi 496x384,1234,abc,100 %,100 %,Centered,50 MHz"}};
  for (const auto& row : cases) {
    startWith(row.file);
    options([&](QWidget& window) { EXPECT_EQ(shown(window), row.shown) << row.what; });
  }
  startWith(
      "Throttle = 0|EmulateSound = 0|FragmentShader = \"/s/g.fs\"|XResolution = 641|"
      "[ b ]|FlipStereo = 1|VertexShader = \"/s/b.vs\"|");
  gameOptions(1, [](QWidget& window) {
    EXPECT_EQ(shown(window),
              "Audio(1) FlipStereo CustRes Vsync Multi 496x384,641,384,100 %,100 %,Centered,50 MHz")
        << "of a game";
    page(window, 4);
    EXPECT_FALSE(get(window, "lstFolders(0)").isVisible());
    EXPECT_EQ(rows(get<QListWidget>(window, "lstFolders(3)")), "/s/g.fs*|");
    EXPECT_EQ(rows(get<QListWidget>(window, "lstFolders(4)")), "/s/b.vs*|");
  });
}

TEST_F(Options, EachControlReachesItsOptionInBothScopes) {
  const auto change = [](QWidget& window) {
    for (const auto* box : {"chkAudio(0)", "chkAudio(1)", "chkFlipStereo"}) press(window, box);
    type(window, "hslVolume(0)", Qt::Key_PageDown);
    type(window, "hslVolume(1)", Qt::Key_Left);
    type(window, "hslBalance", Qt::Key_Home);
    page(window, 1);
    for (const auto* box : {"chkFPS", "chkWidescreen", "chkThrottle", "chkVsync"})
      press(window, box);
    type(window, "cmbRes", Qt::Key_Down);
    if (OptionScope == core::kGlobalScope) {
      press(window, "chkFullscreen");
      EXPECT_FALSE(get(window, "chkFPS").isEnabled());
    }
    page(window, 3);
    press(window, "chkMulti");
    type(window, "hslPPC", Qt::Key_End);
    save(window);
  };
  const std::string audioAndMachine =
      "WideScreen = 1|SoundVolume = 90|EmulateSound = 0|MusicVolume = 99|EmulateDSB = 0|"
      "FlipStereo = 1|Balance = -100|MultiThreaded = 0|PowerPCFrequency = 1000|";
  const std::string size = "XResolution = 640|YResolution = 480|Throttle = 0|";
  startWith("");
  options(change);
  EXPECT_EQ(saved(), size + "FullScreen = 1|" + audioAndMachine + "Vsync = 0|");
  EXPECT_FALSE(OptionsSaved) << "the main window has taken it up";
  startWith("");
  gameOptions(0, change);
  EXPECT_EQ(saved(), "[ a ]|" + size + "ShowFrameRate = 1|" + audioAndMachine);
  EXPECT_TRUE(OptionsSaved);
}

TEST_F(Options, SavedWithoutAChangeLeaveTheFileByteForByte) {
  const std::string text =
      "XResolution = 641|Throttle = 0|Crosshairs = 1|[ a ]|Throttle = 1|WideScreen = 1|[ gone ]|"
      ";ROMpaths=/r/1*/r/2*/r/3|;SNAPpaths=/s|;GameTimeLog=a,1,22|;InputMethod=";
  for (const std::string system : {"7|", "1|"}) {
    startWith("FragmentShader = \"/s/a=b.fs\"|InputStart1 = \"KEY1_5,JOY2_X,A,B\"|" + text +
              system);
    options([&](QWidget& window) {
      const auto& table = get<QListWidget>(window, "lstInput(0)");
      EXPECT_EQ(table.count() == 0, system == "7|") << "an input system that nobody knows";
      save(window);
    });
    EXPECT_EQ(saved(), text + system);
    EXPECT_NE(file().find(system == "7|" ? "KEY1_5" : "KEY_5"), std::string::npos);
  }
  const auto first = file();
  start();
  options([](QWidget&) { key(Qt::Key_Return); });
  EXPECT_EQ(file(), first) << "Enter saves";
  gameOptions(0, save);
  EXPECT_EQ(file(), first);
  EXPECT_NE(settings().find("ROMS3=/r/3"), std::string::npos);
}

TEST_F(Options, OfAGameAreKeptWhereTheyDifferAndTheFileCanNameIt) {
  const std::string kept = "Throttle = 0|[ a ]|Throttle = 1|Balance = 5|ForceFeedback = 1|[ a ]|";
  addGames("a a;b");
  startWith(kept + "FullScreen = 1|Throttle = 1|");
  for (const int game : {0, 1})
    gameOptions(game, [&](QWidget& window) {
      page(window, 1);
      EXPECT_EQ(get<QCheckBox>(window, "chkThrottle").isChecked(), game == 0);
      press(window, "chkThrottle");
      save(window);
    });
  // The last row of the name takes the values; what equals the global value is dropped there.
  EXPECT_EQ(saved(), kept + "FullScreen = 1|Balance = 5|");
}

TEST_F(Options, ThatAnOldEmulatorLacksAreDisabled) {
  for (const bool able : {true, false}) {
    startWith("WideScreen = 1|MultiThreaded = 0|");
    if (!able) EmulatorVersion = "0.3";
    options([&](QWidget& window) {
      for (const auto* name : {"chkMulti", "chkWidescreen", "hslBalance", "chkVsync"})
        EXPECT_EQ(get(window, name).isEnabled(), able) << name;
      save(window);
    });
    EXPECT_EQ(saved(), able ? "WideScreen = 1|MultiThreaded = 0|" : "WideScreen = 1|");
  }
}

TEST_F(Options, ThatTheLoadingDidNotReachStayAsTheyWere) {
  const std::string global =
      "FullScreen = 1|FragmentShader = \"/s\"|SoundVolume = 150|MusicVolume = 7|Balance = 3|";
  const std::string game = "[ a ]|Throttle = 0|SoundVolume = 160|Balance = 4|";
  const std::string folders = ";ROMpaths=/r|;SNAPpaths=/s|;InputMethod=1|";
  startWith(global + game + folders);
  options(save);
  EXPECT_EQ(saved(), global + game + folders);
  gameOptions(0, [](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "   Options:   A");
    EXPECT_TRUE(get(window, "lblGameDef").isVisible());
    EXPECT_FALSE(get(window, "optOPT(2)").isVisible());
    press(window, "chkFlipStereo");
    type(window, "hslBalance", Qt::Key_End);
    save(window);
  });
  const std::string one = "[ a ]|Throttle = 0|SoundVolume = 160|FlipStereo = 1|Balance = 100|";
  EXPECT_EQ(saved(), global + one + folders);
  gameOptions(1, [](QWidget& window) {
    type(window, "hslBalance", Qt::Key_Right, 3);
    save(window);
  });
  EXPECT_EQ(saved(), global + one + "[ b ]|" + folders) << "what holds anyway is not stored";
  options([](QWidget& window) {
    page(window, 4);
    press(window, "cmdAddPath(0)");
    save(window);
  });
  EXPECT_NE(saved().find(";ROMpaths=/r*" + AppFolder), std::string::npos);
}

TEST_F(Options, OfAGameCanBeRestored) {
  const struct {
    const char *file, *saved;
    bool yes, closes;
  } rows[] = {{"[ a ]|Throttle = 0|[ b ]|Balance = 1|[ c ]|Balance = 2|",
               "[ c ]|Balance = 2|[ b ]|Balance = 1|", true, true},
              {"[ b ]|Balance = 1|", "[ b ]|Balance = 1|", true, true},
              {"", "", true, false},
              {"[ a ]|Throttle = 0|", "[ a ]|Throttle = 0|", false, false}};
  for (const auto& row : rows) {
    startWith(row.file);
    gameOptions(0, [&](QWidget& window) {
      const support::WhenModal question("", [&](QWidget& box) {
        if (row.yes) answer(box, QMessageBox::Yes);
      });
      press(window, "lblGameDef");
      EXPECT_EQ(window.isVisible(), !row.closes) << row.saved;
    });
    EXPECT_EQ(saved(), row.saved);
  }
}

TEST_F(Options, AreNotKeptOnTheOtherWaysOutNorByWhatComesTooLate) {
  startWith("");
  const auto before = file();
  for (const bool escape : {true, false}) {
    OptionsSaved = true;
    gameOptions(0, [&](QWidget& window) {
      EXPECT_FALSE(get<QCheckBox>(window, "chkFlipStereo").isChecked());
      press(window, "chkFlipStereo");
      escape ? key(Qt::Key_Escape) : press(window, "btnCancel");
      EXPECT_FALSE(window.isVisible());
      type(window, "cmdSave", Qt::Key_Space);
      save(window);
    });
    EXPECT_EQ(OptionsSaved, escape);
  }
  EXPECT_EQ(file(), before);
}

TEST_F(Options, OfTheSizeTakeFourDigitsAndDropTheRest) {
  startWith("XResolution = 641|");
  options([](QWidget& window) {
    page(window, 1);
    auto& box = get<QLineEdit>(window, "tbxCustRes(0)");
    box.setFocus();
    const struct {
      const char *text, *typed, *pasted, *left;
      int selectFrom, selected;
    } rows[] = {{"641", "a-", "px, \n", "641", 1, 2},
                {"1234", "5", "6", "1234", 2, 0},
                {"1234", "5", "", "154", 1, 2},
                {"", "", " 19,20x1080", "1920", 0, 0},
                {"12", "", "a345", "1342", 1, 0}};
    for (const auto& row : rows) {
      box.setText(row.text);
      box.setCursorPosition(row.selectFrom);
      if (row.selected > 0) box.setSelection(row.selectFrom, row.selected);
      for (const char* c = row.typed; *c; ++c) QTest::keyClick(window.windowHandle(), *c);
      QApplication::clipboard()->setText(row.pasted);
      if (*row.pasted) key(Qt::Key_V, Qt::ControlModifier);
      EXPECT_EQ(box.text().toStdString(), row.left);
      EXPECT_EQ(box.selectedText().size(), box.text() == row.text ? row.selected : 0) << row.typed;
    }
  });
}

TEST_F(Options, AreTurnedByTheWheelInFocusOnlyAndByTheEndOfADrag) {
  start();
  options([](QWidget& window) {
    const std::tuple<int, const char*, const char*> rows[] = {
        {2, "cmbInputType", "currentIndex"}, {4, "Drive1", "currentIndex"}, {3, "hslPPC", "value"}};
    for (const auto& [index, name, property] : rows) {
      page(window, index);
      auto& box = get(window, name);
      const auto turn = [&, what = property, before = box.property(property)](int by) {
        const QPointF at(5, 5);
        QWheelEvent wheel(at, box.mapToGlobal(at), {}, {0, by}, {}, {}, {}, false);
        QApplication::sendEvent(&box, &wheel);
        return box.property(what) != before;
      };
      EXPECT_FALSE(turn(120) || turn(-120) || box.hasFocus()) << name;
      box.setFocus();
      EXPECT_TRUE(turn(120) || turn(-120)) << name;
    }
    auto& bar = get<QScrollBar>(window, "hslPPC");
    bar.setValue(50);
    const QPoint thumb(bar.height() + 12, bar.height() / 2);
    QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(&bar, thumb + QPoint(150, 0));
    EXPECT_EQ(textOf(window, "lblPPC"), "50 MHz");
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(150, 0));
    EXPECT_NE(textOf(window, "lblPPC"), "50 MHz");
  });
}

TEST_F(Options, AreReachedByTheKeyboardInTheLanguageInForce) {
  startWith("Balance = 30|;KVLLanguage=1|");
  options([](QWidget& window) {
    EXPECT_EQ(textOf(window, "lblBalance"), "+30% al Frontal");
    EXPECT_EQ(get(window, "optOPT(4)").toolTip(), "Carpetas");
    EXPECT_EQ(textOf(window, "Label8(3)"), "Botón 3");
    for (int index = 1; index < 5; ++index) {
      key(Qt::Key_Right);
      EXPECT_TRUE(get(window, indexed("frmOPT", index)).isVisible());
    }
    key(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); })) << "the key of Save";
  });
  EXPECT_EQ(saved(), "Balance = 30|;KVLLanguage=1|");
}

}  // namespace
