// What a save leaves in the file, in either scope, and the restoring of a game.
#include "support/options_test.h"

namespace {

using namespace Module1;

class OptionsSaving : public support::OptionsTest {};

TEST_F(OptionsSaving, WithoutAChangeTheFileStaysByteForByte) {
  const std::string text =
      "XResolution = 641|Throttle = 0|Crosshairs = 1|[ a ]|Throttle = 1|WideScreen = 1|[ gone ]|"
      ";ROMpaths=/r/1*/r/2*/r/3|;SNAPpaths=/s|;GameTimeLog=a,1,22|;InputMethod=1|";
  startWith("FragmentShader = \"/s/a=b.fs\"|InputStart1 = \"KEY1_5,JOY2_X,A,B\"|" + text);
  options(save);
  const auto first = read("Config/Kestrivane.ini");
  EXPECT_EQ(saved(), text);
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
    EXPECT_EQ(saved(), row.file);
    EXPECT_FALSE(OptionsSaved) << "the main window has taken it up";
    startWith("");
    gameOptions(0, change);
    const bool onlyGlobal = std::string(row.control) == "chkVsync";
    EXPECT_EQ(saved(), std::string("[ a ]|") + (onlyGlobal ? "" : row.file));
    EXPECT_TRUE(OptionsSaved);
  }
}

TEST_F(OptionsSaving, GameKeepsOnlyWhatDiffers) {
  const std::string kept = "Throttle = 0|[ a ]|Throttle = 1|Balance = 5|ForceFeedback = 1|[ a ]|";
  startWith(kept + "FullScreen = 1|Throttle = 1|");
  gameOptions(0, [](QWidget& window) {
    page(window, 1);
    EXPECT_TRUE(get<QCheckBox>(window, "chkThrottle").isChecked());
    press(window, "chkThrottle");
    save(window);
  });
  // The last row of the name takes the values; what equals the global value is dropped there.
  EXPECT_EQ(saved(), kept + "FullScreen = 1|Balance = 5|");
}

TEST_F(OptionsSaving, OldEmulatorGetsNoThreads) {
  const std::pair<const char*, bool> rows[] = {{"1.0", true}, {"0.3a", true}, {"0.3", false}};
  for (const auto& [version, able] : rows) {
    startWith("WideScreen = 1|MultiThreaded = 0|");
    EmulatorVersion = version;
    options([able = able](QWidget& window) {
      for (const auto* name : {"chkMulti", "chkWidescreen", "hslBalance", "chkVsync"})
        EXPECT_EQ(get(window, name).isEnabled(), able) << EmulatorVersion << name;
      save(window);
    });
    EXPECT_EQ(saved(), able ? "WideScreen = 1|MultiThreaded = 0|" : "WideScreen = 1|");
  }
}

TEST_F(OptionsSaving, WhatTheLoadingDidNotReachStaysAsItWas) {
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

TEST_F(OptionsSaving, AGameThatTheFileCantNameKeepsNothing) {
  addGames("a;b b");
  startWith("");
  gameOptions(0, [](QWidget& window) {
    press(window, "chkFlipStereo");
    save(window);
  });
  EXPECT_EQ(saved(), "");
}

TEST_F(OptionsSaving, RestoringAGame) {
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

}  // namespace
