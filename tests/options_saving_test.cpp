// What a save leaves in the file, in either scope, and the restoring of a game.
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
  EXPECT_TRUE(fileHas("InputStart1 = \"KEY_5,JOY2_X,A,B\""));
  start();
  EmulatorVersion = "0.3a";
  options([](QWidget&) { key(Qt::Key_Return); });
  EXPECT_EQ(read("Config/Kestrivane.ini"), first) << "Enter saves";
  gameOptions(0, save);
  EXPECT_EQ(read("Config/Kestrivane.ini"), first);
  EXPECT_NE(settings().find("ROMS3=/r/3"), std::string::npos);
}

TEST_F(OptionsSaving, EachControlReachesItsOption) {
  constexpr auto kMouse = Qt::Key_unknown;
  const struct {
    int page;
    const char* control;
    Qt::Key key;
    const char* file;
  } rows[] = {{0, "chkAudio(0)", kMouse, "EmulateSound = 0|"},
              {0, "chkAudio(1)", kMouse, "EmulateDSB = 0|"},
              {0, "chkFlipStereo", kMouse, "FlipStereo = 1|"},
              {1, "chkFullscreen", kMouse, "FullScreen = 1|"},
              {1, "chkFPS", kMouse, "ShowFrameRate = 1|"},
              {1, "chkWidescreen", kMouse, "WideScreen = 1|"},
              {1, "chkThrottle", kMouse, "Throttle = 0|"},
              {1, "chkVsync", kMouse, "Vsync = 0|"},
              {3, "chkMulti", kMouse, "MultiThreaded = 0|"},
              {0, "hslVolume(0)", Qt::Key_PageDown, "SoundVolume = 90|"},
              {0, "hslVolume(1)", Qt::Key_Left, "MusicVolume = 99|"},
              {0, "hslBalance", Qt::Key_Home, "Balance = -100|"},
              {3, "hslPPC", Qt::Key_End, "PowerPCFrequency = 1000|"},
              {1, "cmbRes", Qt::Key_Down, "XResolution = 640|YResolution = 480|"}};
  for (const auto& row : rows) {
    const auto change = [&](QWidget& window) {
      page(window, row.page);
      row.key == kMouse ? press(window, row.control) : type(window, row.control, row.key);
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
      "[ Global ]\nThrottle = 0\n[ a ]\nThrottle = 1\nBalance = 5\nForceFeedback = 1\n"
      "[ a ]\nFullScreen = 1\nThrottle = 1\n");
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
  const std::pair<const char*, bool> rows[] = {{"1.0", true}, {"0.3a", true}, {"0.3", false}};
  for (const auto& [version, able] : rows) {
    startWith("[ Global ]\nMultiThreaded = 0\nWideScreen = 1\n");
    EmulatorVersion = version;
    options([able = able](QWidget& window) {
      for (const auto* name : {"chkMulti", "chkWidescreen", "hslBalance", "chkVsync"})
        EXPECT_EQ(get(window, name).isEnabled(), able) << EmulatorVersion << name;
      save(window);
    });
    EXPECT_EQ(saved(),
              std::string("[ Global ]|WideScreen = 1|") + (able ? "MultiThreaded = 0|" : ""));
  }
}

TEST_F(OptionsSaving, CustomSizeIsKeptAsTypedAndAnEmptyBoxReturnsToTheDefault) {
  startWith("[ Global ]\nYResolution = 481\n");
  const std::pair<const char*, const char*> rows[] = {{"0", "XResolution = 0|"}, {"", ""}};
  for (const auto& [width, line] : rows) {
    options([width = width](QWidget& window) {
      page(window, 1);
      get<QLineEdit>(window, "tbxCustRes(0)").clear();
      QTest::keyClicks(&get(window, "tbxCustRes(0)"), width);
      save(window);
    });
    EXPECT_EQ(saved(), std::string("[ Global ]|") + line + "YResolution = 481|");
  }
}

TEST_F(OptionsSaving, FileThatCantBeWrittenKeepsWhatIsThereAndTheNewValuesInMemory) {
  startWith("[ Global ]\nThrottle = 0\n");
  const auto before = read("Config/Kestrivane.ini");
  const auto saveAs = [this](bool flip) {
    options([=](QWidget& window) {
      EXPECT_EQ(get<QCheckBox>(window, "chkFlipStereo").isChecked(), !flip);
      press(window, "chkFlipStereo");
      save(window);
      EXPECT_FALSE(window.isVisible());
    });
  };
  std::filesystem::permissions(path("Config/Kestrivane.ini"), std::filesystem::perms(0444));
  {
    const support::Unprivileged user;
    saveAs(true);
  }
  EXPECT_EQ(read("Config/Kestrivane.ini"), before);
  std::filesystem::remove(path("Config/Kestrivane.ini"));
  write("Config/Kestrivane.ini/mine.txt", "a folder in the way");
  saveAs(false);
  EXPECT_EQ(read("Config/Kestrivane.ini/mine.txt"), "a folder in the way");
  std::filesystem::remove_all(path("Config"));
  saveAs(true);
  EXPECT_FALSE(exists("Config"));
  std::filesystem::create_directory(path("Config"));
  saveAs(false);
  EXPECT_EQ(saved(), "[ Global ]|Throttle = 0|") << "a new file";
}

TEST_F(OptionsSaving, RestoringAGame) {
  const struct {
    const char *file, *saved;
    bool yes, closes;
  } rows[] = {{"[ a ]\nThrottle = 0\n[ b ]\nBalance = 1\n[ c ]\nBalance = 2\n",
               "[ Global ]|[ c ]|Balance = 2|[ b ]|Balance = 1|", true, true},
              {"[ b ]\nBalance = 1\n", "[ Global ]|[ b ]|Balance = 1|", true, true},
              {"", "[ Global ]|", true, false},
              {"[ a ]\nThrottle = 0\n", "[ Global ]|[ a ]|Throttle = 0|", false, false}};
  for (const auto& row : rows) {
    startWith(std::string("[ Global ]\n") + row.file);
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

}  // namespace
