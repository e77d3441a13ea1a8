// How the options dialog opens: scopes, values, versions, bad values, and how it is left.
#include "support/options_test.h"

namespace {

using namespace Module1;
using support::TextOf;

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
      text += "," + TextOf(window, name);
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
      {"a bar outside its range", "SoundVolume = 900\nMusicVolume = 5\n",
       "sound music vsync multi throttle custom 496x384,496,384,100 %,100 %,Centered,50 MHz"},
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
  EXPECT_NE(saved().find(";InputMethod=7"), std::string::npos);
  EXPECT_NE(read("Config/Kestrivane.ini").find("InputStart1 = \"KEY_9\"\r\n"), std::string::npos);
}

TEST_F(OptionsOpening, VersionDecidesWhatCanBeChanged) {
  const std::pair<const char*, bool> rows[] = {{"0.3a", true}, {"1.0", true},   {"0.3b", true},
                                               {"0.3", false}, {"0.10", false}, {"", false}};
  startWith("");
  for (const auto& [version, able] : rows) {
    EmulatorVersion = version;
    options([&, able = able](QWidget& window) {
      for (const auto* name : {"chkMulti", "Label6", "chkWidescreen", "hslBalance", "Label9",
                               "Label10", "lblBalance", "chkVsync"})
        EXPECT_EQ(get(window, name).isEnabled(), able) << EmulatorVersion << name;
      EXPECT_TRUE(get(window, "chkFullscreen").isEnabled());
    });
  }
}

TEST_F(OptionsOpening, GameScopeInheritsAndHidesWhatIsGlobal) {
  startWith(
      "[ Global ]\nThrottle = 0\nFragmentShader = \"/s/g.fs\"\nXResolution = 641\n"
      "[ b ]\nVsync = 0\nVertexShader = \"/s/b.vs\"\n");
  GameCatalog[1].Title = "<b>B & C</b>";
  gameOptions(1, [](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "   Options:   <b>B & C</b>");
    EXPECT_EQ(shown(window),
              "sound music multi custom 496x384,641,384,100 %,100 %,Centered,50 MHz");
    EXPECT_FALSE(get(window, "optOPT(2)").isVisible());
    EXPECT_EQ(get(window, "optOPT(3)").x(), 1358 / 15 + 1);
    EXPECT_EQ(get(window, "optOPT(4)").x(), 1973 / 15 + 1);
    EXPECT_TRUE(get(window, "lblGameDef").isVisible());
    page(window, 4);
    EXPECT_FALSE(get(window, "lstFolders(0)").isVisible());
    EXPECT_EQ(get<QListWidget>(window, "lstFolders(3)").item(0)->text(), "/s/g.fs");
    EXPECT_EQ(get<QListWidget>(window, "lstFolders(4)").item(0)->text(), "/s/b.vs");
  });
  gameOptions(0, [](QWidget& window) {
    EXPECT_TRUE(get<QCheckBox>(window, "chkVsync").isChecked());
    EXPECT_EQ(get<QListWidget>(window, "lstFolders(4)").count(), 0);
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
  EXPECT_EQ(settings(), "");
}

TEST_F(OptionsOpening, LabelsAndBoxesFollowTheControls) {
  startWith("");
  options([](QWidget& window) {
    type(window, "hslVolume(0)", Qt::Key_Left);
    EXPECT_EQ(TextOf(window, "lblVolume(0)"), "99%");
    type(window, "hslVolume(1)", Qt::Key_PageDown);
    EXPECT_EQ(TextOf(window, "lblVolume(1)"), "90%");
    type(window, "hslBalance", Qt::Key_PageDown);
    EXPECT_EQ(TextOf(window, "lblBalance"), "+25% to Rear");
    type(window, "hslBalance", Qt::Key_PageUp, 9);
    EXPECT_EQ(TextOf(window, "lblBalance"), "+100% to Front");
  });
}

TEST_F(OptionsOpening, VideoPageRules) {
  startWith("[ Global ]\nShowFrameRate = 1\n");
  options([](QWidget& window) {
    page(window, 1);
    EXPECT_TRUE(get(window, "frmOPT(1)").isVisible());
    EXPECT_FALSE(get(window, "frmOPT(0)").isVisible());
    press(window, "chkFullscreen");
    EXPECT_FALSE(get(window, "chkFPS").isEnabled());
    EXPECT_TRUE(get<QCheckBox>(window, "chkFPS").isChecked());
    press(window, "chkFullscreen");
    EXPECT_TRUE(get(window, "chkFPS").isEnabled());
    EXPECT_FALSE(get(window, "tbxCustRes(0)").isEnabled());
    press(window, "chkCustRes");
    EXPECT_FALSE(get(window, "cmbRes").isEnabled());
    auto& width = get<QLineEdit>(window, "tbxCustRes(0)");
    width.clear();
    QTest::keyClicks(&width, "a0-12x345");
    EXPECT_EQ(width.text(), "0123");
    width.selectAll();
    width.insert("12 34<b>567");
    EXPECT_EQ(width.text(), "1234") << "what is pasted is filtered too";
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
    EXPECT_EQ(TextOf(window, "lblPPC"), "50 MHz");
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(150, 0));
    EXPECT_NE(TextOf(window, "lblPPC"), "50 MHz");
  });
}

TEST_F(OptionsOpening, KeyboardReachesEveryPageInTheLanguageInForce) {
  startWith("[ Global ]\nBalance = 30\n;KVLLanguage=1\n");
  options([](QWidget& window) {
    EXPECT_EQ(TextOf(window, "lblBalance"), "+30% al Frontal");
    EXPECT_EQ(get(window, "optOPT(4)").toolTip(), "Carpetas");
    EXPECT_EQ(TextOf(window, "Label8(3)"), "Botón 3");
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
