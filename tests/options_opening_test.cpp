// How the options dialog opens: scopes, values, bad values, and how it is left.
#include "support/options_test.h"

namespace {

using namespace Module1;

class OptionsOpening : public support::OptionsTest {
 protected:
  // What the dialog shows of its options, in one line.
  static std::string shown(const QWidget& window) {
    std::string text;
    const std::pair<const char*, const char*> ticks[] = {
        {"chkAudio(0)", "sound"}, {"chkAudio(1)", "music"},  {"chkFlipStereo", "flip"},
        {"chkFPS", "fps"},        {"chkFullscreen", "full"}, {"chkWidescreen", "wide"},
        {"chkVsync", "vsync"},    {"chkMulti", "multi"},     {"chkThrottle", "throttle"},
        {"chkCustRes", "custom"}};
    for (const auto& [name, word] : ticks)
      if (const auto state = get<QCheckBox>(window, name).checkState(); state != Qt::Unchecked)
        text += std::string(word) + (state == Qt::PartiallyChecked ? "? " : " ");
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
      {"nothing set", "", "sound music vsync multi throttle 496x384,,,100 %,100 %,Centered,50 MHz"},
      {"all set",
       "EmulateSound = 0\nEmulateDSB = 0\nFlipStereo = 1\nShowFrameRate = 1\nFullScreen = 1\n"
       "WideScreen = 1\nVsync = 0\nMultiThreaded = 0\nThrottle = 0\nPowerPCFrequency = 120\n"
       "SoundVolume = 75\nMusicVolume = 0\nBalance = -100\nXResolution = 1920\nYResolution = "
       "1080\n",
       "flip fps full wide 1920x1080,,,75%,0%,+100% to Rear,120 MHz"},
      {"a size of one's own, a greyed box", "XResolution = 641\nBalance = 30\nWideScreen = 2\n",
       "sound music wide? vsync multi throttle custom 496x384,641,384,100 %,100 %,+30% to Front,50 "
       "MHz"},
      {"no number: the load ends there and shows the pair in force",
       "ShowFrameRate = 1\nFullScreen = banana\nWideScreen = 1\nXResolution = 800\nYResolution = "
       "600\n",
       "sound music fps vsync multi throttle custom 496x384,800,600,100 %,100 %,Centered,50 MHz"},
      {"a negative frequency", "PowerPCFrequency = -5\nSoundVolume = 20\n",
       "sound music vsync multi throttle custom 496x384,496,384,100 %,100 %,Centered,50 MHz"}};
  for (const auto& row : rows) {
    startWith(std::string("[ Global ]\n") + row.file);
    options([&](QWidget& window) { EXPECT_EQ(shown(window), row.shown) << row.what; });
  }
}

TEST_F(OptionsOpening, UnknownInputSystemLeavesTheTableEmptyAndIsKept) {
  startWith("[ Global ]\nInputStart1 = \"KEY_9\"\n;InputMethod=7\n");
  options([](QWidget& window) {
    EXPECT_EQ(get<QComboBox>(window, "cmbInputType").currentIndex(), -1);
    EXPECT_EQ(get<QListWidget>(window, "lstInput(0)").count(), 0);
    save(window);
  });
  EXPECT_EQ(saved(), "[ Global ]|;InputMethod=7|");
  EXPECT_TRUE(fileHas("InputStart1 = \"KEY_9\""));
}

TEST_F(OptionsOpening, GameScopeInheritsAndHidesWhatIsGlobal) {
  startWith(
      "[ Global ]\nThrottle = 0\nFragmentShader = \"/s/g.fs\"\nXResolution = 641\n"
      "[ b ]\nVsync = 0\nVertexShader = \"/s/b.vs\"\n");
  gameOptions(1, [](QWidget& window) {
    EXPECT_EQ(shown(window),
              "sound music multi custom 496x384,641,384,100 %,100 %,Centered,50 MHz");
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
  OptionsSaved = true;
  gameOptions(0, [&](QWidget& window) {
    press(window, "chkFlipStereo");
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_TRUE(OptionsSaved);
  gameOptions(0, [](QWidget& window) {
    EXPECT_FALSE(get<QCheckBox>(window, "chkFlipStereo").isChecked());
    press(window, "btnCancel");
  });
  EXPECT_FALSE(OptionsSaved);
  EXPECT_EQ(read("Config/Kestrivane.ini"), before);
}

TEST_F(OptionsOpening, VideoPageRules) {
  startWith("[ Global ]\nShowFrameRate = 1\n");
  options([](QWidget& window) {
    page(window, 1);
    press(window, "chkFullscreen");
    EXPECT_FALSE(get(window, "chkFPS").isEnabled());
    press(window, "chkCustRes");
    auto& width = get<QLineEdit>(window, "tbxCustRes(0)");
    width.clear();
    QTest::keyClicks(&width, "a0-12x345");
    EXPECT_EQ(width.text(), "0123");
    width.selectAll();
    width.insert("12 34<b>567");
    EXPECT_EQ(width.text(), "1234") << "what is pasted is filtered too";
    save(window);
  });
  EXPECT_EQ(saved(), "[ Global ]|XResolution = 1234|FullScreen = 1|");
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
  startWith("[ Global ]\nBalance = 30\n;KVLLanguage=1\n");
  options([](QWidget& window) {
    EXPECT_EQ(textOf(window, "lblBalance"), "+30% al Frontal");
    EXPECT_EQ(get(window, "optOPT(4)").toolTip(), "Carpetas");
    EXPECT_EQ(textOf(window, "Label8(3)"), "Botón 3");
    for (int index = 1; index < 5; ++index) {
      key(Qt::Key_Right);
      EXPECT_TRUE(get(window, "frmOPT(" + std::to_string(index) + ")").isVisible());
    }
    key(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }))
        << "the save button's own key";
  });
  EXPECT_EQ(saved(), "[ Global ]|Balance = 30|;KVLLanguage=1|");
}

}  // namespace
