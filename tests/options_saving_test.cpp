// What a save leaves in the file, in either scope, and the restoring of a game.
#include "config/config_writer.h"
#include "support/options_test.h"

namespace {

using namespace Module1;

class OptionsSaving : public support::OptionsTest {};

TEST_F(OptionsSaving, WithoutAChangeTheFileStaysByteForByte) {
  startWith(
      "[ Global ]\nXResolution = 641\nThrottle = 0\nFragmentShader = \"/s/a=b.fs\"\nCrosshairs = "
      "1\n"
      "InputStart1 = \"KEY1_5,JOY2_X,A,B\"\n[ a ]\nThrottle = 1\nWideScreen = 1\n[ gone ]\nVsync = "
      "0\n"
      ";ROMpaths=/r/1*/r/2*/r/3\n;SNAPpaths=/s\n;GameTimeLog=a,1,22\n;InputMethod=1\n");
  options(save);
  const auto first = read("Config/Kestrivane.ini");
  EXPECT_EQ(
      saved(),
      "[ Global ]|XResolution = 641|Throttle = 0|Crosshairs = 1|[ a ]|Throttle = 1|WideScreen = "
      "1|[ gone ]|;ROMpaths=/r/1*/r/2*/r/3|;SNAPpaths=/s|;GameTimeLog=a,1,22|;InputMethod=1|");
  EXPECT_NE(first.find("InputStart1 = \"KEY_5,JOY2_X,A,B\"\r\n"), std::string::npos);
  start();
  EmulatorVersion = "0.3a";
  options([](QWidget&) { key(Qt::Key_Return); });
  EXPECT_EQ(read("Config/Kestrivane.ini"), first) << "Enter saves";
  gameOptions(0, save);
  EXPECT_EQ(read("Config/Kestrivane.ini"), first);
  EXPECT_NE(settings().find("ROMS3=/r/3"), std::string::npos);
}

TEST_F(OptionsSaving, EachControlReachesItsOption) {
  const struct {
    int page;
    const char *control, *file;
    std::function<void(QWidget&)> more;
  } rows[] = {
      {0, "chkAudio(0)", "EmulateSound = 0|", {}},
      {0, "chkAudio(1)", "EmulateDSB = 0|", {}},
      {0, "chkFlipStereo", "FlipStereo = 1|", {}},
      {1, "chkFullscreen", "FullScreen = 1|", [](QWidget& w) { press(w, "chkFPS"); }},
      {1, "chkFPS", "ShowFrameRate = 1|", {}},
      {1, "chkWidescreen", "WideScreen = 1|", {}},
      {1, "chkThrottle", "Throttle = 0|", {}},
      {1, "chkVsync", "Vsync = 0|", {}},
      {3, "chkMulti", "MultiThreaded = 0|", {}},
      {0, "hslVolume(0)", "SoundVolume = 90|",
       [](QWidget& w) { type(w, "hslVolume(0)", Qt::Key_PageDown); }},
      {0, "hslVolume(1)", "MusicVolume = 99|",
       [](QWidget& w) { type(w, "hslVolume(1)", Qt::Key_Left); }},
      {0, "hslBalance", "Balance = -100|", [](QWidget& w) { type(w, "hslBalance", Qt::Key_Home); }},
      {3, "hslPPC", "PowerPCFrequency = 1000|", [](QWidget& w) { type(w, "hslPPC", Qt::Key_End); }},
      {1, "cmbRes", "XResolution = 640|YResolution = 480|",
       [](QWidget& w) { type(w, "cmbRes", Qt::Key_Down); }},
      {1, "chkCustRes", "XResolution = 0|YResolution = 480|", [](QWidget& w) {
         get<QLineEdit>(w, "tbxCustRes(0)").selectAll();
         QTest::keyClicks(&get(w, "tbxCustRes(0)"), "0");
         QTest::keyClicks(&get(w, "tbxCustRes(1)"), "480");
       }}};
  for (const auto& row : rows) {
    const bool bar =
        std::string(row.control).starts_with("hsl") || std::string(row.control) == "cmbRes";
    const auto change = [&](QWidget& window) {
      page(window, row.page);
      if (!bar) press(window, row.control);
      if (row.more) row.more(window);
      save(window);
    };
    startWith("");
    options(change);
    EXPECT_EQ(saved(), std::string("[ Global ]|") + row.file);
    EXPECT_FALSE(OptionsSaved) << "the main window has taken it up";
    startWith("[ Global ]\n");
    gameOptions(0, change);
    const bool onlyGlobal = std::string(row.control) == "chkVsync";
    EXPECT_EQ(saved(), std::string("[ Global ]|[ a ]|") + (onlyGlobal ? "" : row.file));
    EXPECT_TRUE(OptionsSaved);
  }
}

TEST_F(OptionsSaving, GameKeepsOnlyWhatDiffers) {
  startWith(
      "[ Global ]\nThrottle = 0\n[ a ]\nThrottle = 1\nBalance = 5\nForceFeedback = 1\n[ a "
      "]\nFullScreen = 1\n");
  gameOptions(0, [](QWidget& window) {
    page(window, 1);
    EXPECT_TRUE(get<QCheckBox>(window, "chkThrottle").isChecked());
    press(window, "chkThrottle");
    save(window);
  });
  // The last row of the name takes the values; what equals the global value is dropped there.
  EXPECT_EQ(saved(),
            "[ Global ]|Throttle = 0|[ a ]|Throttle = 1|Balance = 5|ForceFeedback = 1|[ a "
            "]|FullScreen = 1|Balance = 5|");
}

TEST_F(OptionsSaving, OldEmulatorGetsNoThreads) {
  startWith("[ Global ]\nMultiThreaded = 0\nWideScreen = 1\n");
  EmulatorVersion = "0.2a";
  options(save);
  EXPECT_EQ(saved(), "[ Global ]|WideScreen = 1|");
}

TEST_F(OptionsSaving, EmptyCustomBoxReturnsToTheDefault) {
  startWith("[ Global ]\nXResolution = 641\nYResolution = 481\n");
  options([](QWidget& window) {
    page(window, 1);
    get<QLineEdit>(window, "tbxCustRes(0)").selectAll();
    type(window, "tbxCustRes(0)", Qt::Key_Backspace);
    save(window);
  });
  EXPECT_EQ(saved(), "[ Global ]|YResolution = 481|");
}

TEST_F(OptionsSaving, ReadOnlyFileKeepsTheOldTextAndTheNewValues) {
  startWith("[ Global ]\nThrottle = 0\n");
  const auto before = read("Config/Kestrivane.ini");
  std::filesystem::permissions(path("Config/Kestrivane.ini"), std::filesystem::perms(0444));
  {
    const support::Unprivileged user;
    options([](QWidget& window) {
      press(window, "chkFlipStereo");
      save(window);
    });
  }
  EXPECT_EQ(read("Config/Kestrivane.ini"), before);
  options(
      [](QWidget& window) { EXPECT_TRUE(get<QCheckBox>(window, "chkFlipStereo").isChecked()); });
}

TEST_F(OptionsSaving, GlobalSaveLooksForTheArchivesAgain) {
  startWith("");
  write("late/b.zip", "");
  options([](QWidget& window) {
    page(window, 4);
    auto& tree = get<QTreeWidget>(window, "Dir1");
    const auto found = tree.findItems("late", Qt::MatchExactly | Qt::MatchRecursive);
    tree.setCurrentItem(found.first());
    press(window, "cmdAddPath(0)");
    save(window);
  });
  EXPECT_EQ(saved(), "[ Global ]|;ROMpaths=" + AppFolder + "/late|");
  EXPECT_TRUE(GameCatalog[1].Available);
  EXPECT_EQ(GameCatalog[1].RomFolder, 1);
}

TEST_F(OptionsSaving, RestoringAGame) {
  const struct {
    const char *file, *saved;
    bool yes, closes;
  } rows[] = {
      {"[ a ]\nThrottle = 0\n[ b ]\nBalance = 1\n[ c ]\nBalance = 2\n",
       "[ Global ]|[ c ]|Balance = 2|[ b ]|Balance = 1|", true, true},
      {"[ b ]\nBalance = 1\n[ a ]\nThrottle = 0\n", "[ Global ]|[ b ]|Balance = 1|", true, true},
      {"[ b ]\nBalance = 1\n", "[ Global ]|[ b ]|Balance = 1|", true, true},
      {"", "[ Global ]|", true, false},
      {"[ a ]\nThrottle = 0\n", "[ Global ]|[ a ]|Throttle = 0|", false, false}};
  for (const auto& row : rows) {
    startWith(std::string("[ Global ]\n") + row.file);
    gameOptions(0, [&](QWidget& window) {
      const support::WhenModal question("", [&](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), "Confirmation");
        if (row.yes) answer(box, QMessageBox::Yes);
      });
      press(window, "lblGameDef");
      EXPECT_EQ(window.isVisible(), !row.closes) << row.saved;
    });
    EXPECT_EQ(saved(), row.saved);
  }
}

}  // namespace
