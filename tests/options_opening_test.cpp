// How the options dialog opens: scopes, values, bad values, and how it is left.
#include <QClipboard>

#include "support/options_test.h"

namespace {

using namespace Module1;

class OptionsOpening : public support::OptionsTest {
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

TEST_F(OptionsOpening, ShowsTheValuesInForce) {
  const struct {
    const char *what, *file, *shown;
  } rows[] = {
      {"nothing set", "",
       "Audio(0) Audio(1) Throttle Vsync Multi 496x384,,,100 %,100 %,Centered,50 MHz"},
      {"all set",
       "EmulateSound = 0|EmulateDSB = 0|FlipStereo = 1|ShowFrameRate = 1|FullScreen = 1|"
       "WideScreen = 1|Vsync = 0|MultiThreaded = 0|Throttle = 0|PowerPCFrequency = 120|"
       "SoundVolume = 75|MusicVolume = 0|Balance = -100|XResolution = 1920|YResolution = 1080|",
       "FlipStereo Fullscreen Widescreen FPS 1920x1080,,,75%,0%,+100% to Rear,120 MHz"},
      {"a size of one's own, a greyed box",
       "EmulateDSB = 0|Vsync = 0|Throttle = 0|XResolution = 641|Balance = 30|WideScreen = 2|",
       "Audio(0) CustRes Widescreen? Multi 496x384,641,384,100 %,100 %,+30% to Front,50 MHz"},
      {"no number: the load ends there and shows the pair in force",
       "EmulateDSB = 0|FullScreen = banana|WideScreen = 1|XResolution = 800|YResolution = 600|",
       "Audio(0) CustRes Throttle Vsync Multi 496x384,800,600,100 %,100 %,Centered,50 MHz"},
      {"sizes too long for their boxes", "XResolution = 12345|YResolution = abcdef|",
       "Audio(0) Audio(1) CustRes Throttle Vsync Multi 496x384,1234,abcd,100 %,100 %,Centered,50 "
       "MHz"},
      {"a negative frequency", "PowerPCFrequency = -5|SoundVolume = 20|EmulateDSB = 0|",
       "Audio(0) CustRes Throttle Vsync Multi 496x384,496,384,100 %,100 %,Centered,50 MHz"}};
  for (const auto& row : rows) {
    startWith(row.file);
    options([&](QWidget& window) { EXPECT_EQ(shown(window), row.shown) << row.what; });
  }
}

TEST_F(OptionsOpening, UnknownInputSystemLeavesTheTableEmptyAndIsKept) {
  startWith("InputStart1 = \"KEY_9\"|;InputMethod=7|");
  options([](QWidget& window) {
    EXPECT_EQ(get<QComboBox>(window, "cmbInputType").currentIndex(), -1);
    EXPECT_EQ(get<QListWidget>(window, "lstInput(0)").count(), 0);
    save(window);
  });
  EXPECT_EQ(saved(), ";InputMethod=7|");
  EXPECT_TRUE(fileHas("InputStart1 = \"KEY_9\""));
}

TEST_F(OptionsOpening, GameScopeInheritsAndHidesWhatIsGlobal) {
  startWith(
      "Throttle = 0|EmulateDSB = 0|FragmentShader = \"/s/g.fs\"|XResolution = 641|"
      "[ b ]|Vsync = 0|VertexShader = \"/s/b.vs\"|");
  gameOptions(1, [](QWidget& window) {
    EXPECT_EQ(shown(window), "Audio(0) CustRes Multi 496x384,641,384,100 %,100 %,Centered,50 MHz");
    EXPECT_FALSE(get(window, "optOPT(2)").isVisible());
    page(window, 4);
    EXPECT_FALSE(get(window, "lstFolders(0)").isVisible());
    EXPECT_EQ(get<QListWidget>(window, "lstFolders(3)").item(0)->text(), "/s/g.fs");
    EXPECT_EQ(get<QListWidget>(window, "lstFolders(4)").item(0)->text(), "/s/b.vs");
  });
}

TEST_F(OptionsOpening, WaysOutThatKeepNothing) {
  startWith("");
  const auto before = read("Config/Kestrivane.ini");
  for (const bool escape : {true, false}) {
    OptionsSaved = true;
    gameOptions(0, [&](QWidget& window) {
      EXPECT_FALSE(get<QCheckBox>(window, "chkFlipStereo").isChecked());
      press(window, "chkFlipStereo");
      escape ? key(Qt::Key_Escape) : press(window, "btnCancel");
      EXPECT_FALSE(window.isVisible());
      // What was typed and clicked too late.
      type(window, "cmdSave", Qt::Key_Space);
      save(window);
    });
    EXPECT_EQ(OptionsSaved, escape);
  }
  EXPECT_EQ(read("Config/Kestrivane.ini"), before);
}

TEST_F(OptionsOpening, VideoPageRules) {
  startWith("ShowFrameRate = 1|");
  options([](QWidget& window) {
    page(window, 1);
    press(window, "chkFullscreen");
    EXPECT_FALSE(get(window, "chkFPS").isEnabled());
    press(window, "chkCustRes");
    EXPECT_TRUE(get(window, "tbxCustRes(0)").isEnabled());
    save(window);
  });
  EXPECT_EQ(saved(), "FullScreen = 1|");
}

TEST_F(OptionsOpening, SizeBoxesTakeFourDigitsAndDropTheRest) {
  startWith("XResolution = 641|");
  options([](QWidget& window) {
    page(window, 1);
    auto& box = get<QLineEdit>(window, "tbxCustRes(0)");
    box.setFocus();
    const struct {
      const char *text, *typed, *pasted, *left;
      int selectFrom, selected;
    } rows[] = {{"641", "a-", "", "641", 0, 3},        {"641", "", "px, \n", "641", 1, 1},
                {"1234", "5", "6", "1234", 2, 0},      {"1234", "5", "", "154", 1, 2},
                {"", "", " 19,20x1080", "1920", 0, 0}, {"12", "", "a345", "1342", 1, 0},
                {"1234", "x\b", "", "124", 3, 0}};
    for (const auto& row : rows) {
      box.setText(row.text);
      box.setCursorPosition(row.selectFrom);
      if (row.selected > 0) box.setSelection(row.selectFrom, row.selected);
      for (const char* c = row.typed; *c; ++c)
        *c == '\b' ? key(Qt::Key_Backspace) : QTest::keyClick(window.windowHandle(), *c);
      QApplication::clipboard()->setText(row.pasted);
      if (*row.pasted) key(Qt::Key_V, Qt::ControlModifier);
      EXPECT_EQ(box.text().toStdString(), row.left);
      EXPECT_EQ(box.selectedText().size(), box.text() == row.text ? row.selected : 0) << row.typed;
    }
  });
}

TEST_F(OptionsOpening, WheelTurnsNothingThatIsNotInFocus) {
  startWith(";InputMethod=2|InputStart1 = \"KEY2_A\"|");
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
  });
}

TEST_F(OptionsOpening, DragTellsItsEndOnly) {
  startWith("");
  options([](QWidget& window) {
    page(window, 3);
    auto& bar = get<QScrollBar>(window, "hslPPC");
    const QPoint thumb(bar.height() + 12, bar.height() / 2);
    QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
    QTest::mouseMove(&bar, thumb + QPoint(150, 0));
    EXPECT_EQ(textOf(window, "lblPPC"), "50 MHz");
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(150, 0));
    EXPECT_NE(textOf(window, "lblPPC"), "50 MHz");
  });
}

TEST_F(OptionsOpening, KeyboardReachesEveryPageInTheLanguageInForce) {
  startWith("Balance = 30|;KVLLanguage=1|");
  options([](QWidget& window) {
    EXPECT_EQ(textOf(window, "lblBalance"), "+30% al Frontal");
    EXPECT_EQ(get(window, "optOPT(4)").toolTip(), "Carpetas");
    EXPECT_EQ(textOf(window, "Label8(3)"), "Botón 3");
    for (int index = 1; index < 5; ++index) {
      key(Qt::Key_Right);
      EXPECT_TRUE(get(window, "frmOPT(" + std::to_string(index) + ")").isVisible());
    }
    key(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); })) << "the key of Save";
  });
  EXPECT_EQ(saved(), "Balance = 30|;KVLLanguage=1|");
}

}  // namespace
