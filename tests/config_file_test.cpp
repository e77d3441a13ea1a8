#include "config/config_writer.h"

#include "base/text.h"
#include "config/config_reader.h"
#include "config/user_settings.h"
#include "core/option_catalogue.h"
#include "platform/code_page.h"
#include "support/state_text.h"
#include "support/temp_app.h"

namespace config {
namespace {

using namespace Module1;

// The file of a user who has been everywhere, with "|" for each line's end.
constexpr const char* kFile =
    "XResolution = 800|FullScreen = 1|FragmentShader = C:\\é\\f.glsl|"
    "InputStart1 = \"key_1,JOY1_BUTTON9\"|InputAutoTrigger = 1|InputAutoTrigger2 = 0|"
    "[ game_a ]|Throttle = 0|[ empty ]|;GameListPref=1|;KVLLanguage=2|"
    ";ROMpaths=C:\\roms*/日本*d|;ICONpaths=i|;GameTimeLog=game_a,3,1250*b,1,64|;InputMethod=1|";

class ConfigFile : public support::TempApp {
 protected:
  ConfigFile() { std::filesystem::create_directory(path("Config")); }

  static std::string& value(std::size_t row, const char* name) {
    return Profiles[row].Slots[core::OptionIndex(name)].Value;
  }
  // The state that the file stands for, with much beside it that the file does not hold.
  void fillState() {
    auto configuration = Defaults(AppFolder);
    ParseConfigText(base::ReplaceIgnoringCase(kFile, "|", "\r\n"), configuration);
    Adopt(std::move(configuration));
    value(1, "Throttle") = "1";
    for (std::size_t slot = 31; slot < 126; ++slot) Profiles[1].Slots[slot].Value = "\"NONE\"";
    for (const auto* global : {"Crosshairs", "Vsync", "InputStart1"}) value(2, global) = "9";
    RomPaths[4] = IconPaths[3] = PlayLog[3].GameId = "behind the end";
  }
};

TEST_F(ConfigFile, WritesTheFormatByteForByteAndReadsItBack) {
  fillState();
  WriteConfigFile();
  note(read("Config/Kestrivane.ini"));
  startup::FillSharedState();
  Adopt(LoadConfigFile(AppFolder));
  note(support::StateText());
}

TEST_F(ConfigFile, AFailureLeavesTheOldFile) {
  write("Config/Kestrivane.ini", "old");
  for (const std::size_t rows : {256U, 255U}) {
    Profiles.resize(rows);
    WriteConfigFile();
    EXPECT_EQ(read("Config/Kestrivane.ini") == "old", rows > core::kMaxProfiles);
  }
  std::filesystem::remove_all(path("Config"));
  WriteConfigFile();
  EXPECT_FALSE(exists("Config"));
}

TEST_F(ConfigFile, WhatWasNotReadIsRescuedBeforeTheFirstWrite) {
  const std::string file = "Config/Kestrivane.ini", unread = file + ".unread";
  const auto load = [&](const std::string& bytes) {
    startup::FillSharedState();
    write(file, bytes);
    Adopt(LoadConfigFile(AppFolder));
  };
  // A bad line alone, and what nobody could read or even look for.
  for (const auto& locked : {std::string(), file, std::string("Config")}) {
    if (!locked.empty() && !support::kPosix) continue;
    const auto allow = [&](unsigned rights) {
      if (!locked.empty())
        std::filesystem::permissions(path(locked), std::filesystem::perms(rights));
    };
    const std::string bytes = "Vsync = 0\r\n;InputMethod=x\r\n[ a ]\r\n";
    const auto copy = unread + (locked.empty() ? "" : "2");
    load(bytes);
    allow(0);
    {
      const support::Unprivileged user(path(locked.empty() ? file : locked));
      Adopt(LoadConfigFile(AppFolder));
      WriteConfigFile();
    }
    allow(0777);
    EXPECT_EQ(read(file), bytes) << "no right to write, or none to read what would be lost";
    WriteConfigFile();
    EXPECT_EQ(read(copy), bytes);
    EXPECT_EQ(read(file), platform::EncodeCodePage(ConfigText()));
    std::filesystem::remove(path(copy));
    WriteConfigFile();
    EXPECT_FALSE(exists(copy)) << "once";
    write(unread, "an earlier copy stays");
  }
  EXPECT_EQ(read(unread), "an earlier copy stays");

  std::string sections;
  for (int game = 0; game < 253; ++game) sections += "[ g" + std::to_string(game) + " ]\r\n";
  load(sections);
  WriteConfigFile();
  EXPECT_NE(read(file), sections) << "the state holds as many rows as the file";
  sections += "[ one too many ]\r\n";
  load(sections);
  Profiles.pop_back();
  WriteConfigFile();
  EXPECT_EQ(read(file), sections) << "the state never held the whole file";
}

TEST_F(ConfigFile, WithoutOneThatCanBeReadTheDefaultBindingsHold) {
  const auto file = path("Config/Kestrivane.ini");
  const auto expectDefaults = [](const char* what) {
    startup::FillSharedState();
    Adopt(LoadConfigFile(AppFolder));
    EXPECT_EQ(value(1, "InputStart1"), "\"KEY_1,JOY1_BUTTON9\"") << what;
    EXPECT_EQ(value(1, "InputAutoTrigger2") + value(1, "Vsync"), "0") << what;
    EXPECT_FALSE(exists("Config/Kestrivane.ini.bak")) << what;
  };
  expectDefaults("there is none");
  if (support::MakePipe(file)) expectDefaults("a pipe");
  std::filesystem::remove(file);
  write("Config/Kestrivane.ini", "Vsync = 0\r\n");
  if (support::kPosix) {
    std::filesystem::permissions(file, std::filesystem::perms(0));
    const support::Unprivileged user;
    expectDefaults("one that nobody may read");
  }
}

TEST_F(ConfigFile, SettingsStoreTakesAllItsKeysAndForgetsNone) {
  fillState();
  PlayLog[1].GameId = "x/y";
  SaveUserSettings();
  CurrentLanguage = 0;
  RomPaths[3].clear();
  PlayLog = {};
  SaveUserSettings();
  const auto text = settings();
  for (const auto* line : {"game_a=\"3,1250\"", "y=\"1,64\"", "GameListPref=1", "Language=0",
                           "ICON1=i", "ROMS2=/日本", "ROMS3=", "ROMS4=behind the end", "SNAP4="})
    EXPECT_NE(text.find(line + std::string("\n")), std::string::npos) << line << text;
}

}  // namespace
}  // namespace config
