#include "config/config_writer.h"

#include "config/config_reader.h"
#include "config/user_settings.h"
#include "core/option_catalogue.h"
#include "platform/code_page.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

namespace config {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

const std::string kName = "Config/Kestrivane.ini", kUnread = kName + ".unread",
                  kBak = kName + ".bak";

class ConfigFile : public support::TempApp {
 protected:
  ConfigFile() { fs::create_directory(path("Config")); }

  static std::string& value(std::size_t row, const char* name) {
    return Module1::Profiles[row].Slots[core::OptionIndex(name)].Value;
  }
  static void load() {
    startup::FillSharedState();
    Adopt(LoadConfigFile(AppFolder));
  }
  static void load(const std::string& bytes) {
    write(kName, bytes);
    load();
  }
  static std::string text() { return platform::EncodeCodePage(ConfigText()); }
};

TEST_F(ConfigFile, MoreRowsThanFitAreNotWritten) {
  write(kName, "old");
  for (const std::size_t rows : {256U, 255U}) {
    Module1::Profiles.resize(rows);
    WriteConfigFile();
    EXPECT_EQ(read(kName) == "old", rows > core::kMaxProfiles);
  }
}

TEST_F(ConfigFile, IsCopiedBeforeTheFirstWriteIfItWasNotRead) {
  const support::ShortPatience patience;
  // A file with a bad line, then also one that can't be read, and one in a folder that can't be.
  for (const auto& locked : {std::string(), kName, std::string("Config")}) {
    if (!locked.empty() && !support::kPosix) continue;
    const auto file = path(locked.empty() ? kName : locked);
    const std::string bytes = "Vsync = 0\r\n;InputMethod=x\r\n[ a ]\r\n";
    const auto copy = kUnread + (locked.empty() ? "" : "2");
    load(bytes);
    if (!locked.empty()) fs::permissions(file, fs::perms(0));
    {
      const support::Unprivileged user(file);
      Adopt(LoadConfigFile(AppFolder));
      WriteConfigFile();
    }
    fs::permissions(file, fs::perms(0777));
    EXPECT_EQ(read(kName), bytes) << "no right to write, or none to read what would be lost";
    WriteConfigFile();
    EXPECT_EQ(read(copy), bytes);
    EXPECT_EQ(read(kName), text());
    fs::remove(path(copy));
    WriteConfigFile();
    EXPECT_FALSE(exists(copy)) << "once";
    write(kUnread, "an earlier copy stays");
  }
  EXPECT_EQ(read(kUnread), "an earlier copy stays");

  std::string sections;
  for (int game = 0; game < 253; ++game) sections += "[ g" + std::to_string(game) + " ]\r\n";
  load(sections);
  WriteConfigFile();
  EXPECT_NE(read(kName), sections) << "the state holds as many rows as the file";
  sections += "[ one too many ]\r\n";
  load(sections);
  Module1::Profiles.pop_back();
  WriteConfigFile();
  EXPECT_EQ(read(kName), sections) << "the state never held the whole file";
}

TEST_F(ConfigFile, IsCopiedBeforeASaveThatWouldLoseIt) {
  load("Vsync = 0\r\n[ a ]\r\n;ROMpaths=/日本\r\n;InputMethod=1\r\n");
  const auto ours = text();
  const auto cut = ours.substr(0, ours.find("KVL configuration"));
  const std::string zeros(5000, '\0'), foreign = "Vsync = 0\r\n";
  const struct {
    const char* what;
    std::string bytes;
    bool isLost;
    std::string changed;  // what another program writes after the start
  } rows[] = {
      {"ours", ours, false, ""},
      {"with zeros behind it", ours + zeros, false, ""},
      {"cut short", cut, true, ""},
      {"cut short, with zeros", cut + zeros, true, ""},
      {"ours with the end of another", ours + ours.substr(cut.size() - 5), true, ""},
      {"with a line that can't be read", ours + ";InputMethod=x\r\n", true, ""},
      {"of another program", foreign, false, ""},
      {"and touched", foreign, false, foreign},
      {"and then changed", foreign, true, "Vsync = 1\r\n"},
  };
  for (const auto& [what, bytes, isLost, changed] : rows)
    for (const bool noBak : {false, true})
      for (const unsigned rights : {0600U, 0664U}) {
        SCOPED_TRACE(what);
        const bool isCopied = isLost || (noBak && bytes == foreign);
        fs::remove_all(path("Config"));
        if (noBak) fs::create_directories(path(kBak));
        write(kName, bytes);
        fs::permissions(path(kName), fs::perms(rights));
        load();
        if (!changed.empty()) write(kName, changed);
        const auto old = read(kName);
        EXPECT_EQ(noBak ? "" : read(kBak), bytes == foreign && !noBak ? foreign : "");
        WriteConfigFile();
        EXPECT_EQ(exists(kUnread), isCopied) << noBak;
        EXPECT_EQ(read(kUnread), isCopied ? old : "");
        EXPECT_EQ(read(kName), text());
        WriteConfigFile();
        EXPECT_FALSE(exists(kUnread + "2")) << "once";
        for (const auto& file : fs::directory_iterator(path("Config")))
          EXPECT_TRUE(file.status().permissions() == fs::perms(rights) || file.is_directory() ||
                      !support::kPosix)
              << file.path() << " has other readers";
      }
}

TEST_F(ConfigFile, WithoutAReadableOneTheDefaultBindingsHold) {
  const auto file = path(kName);
  const auto expectDefaults = [](const char* what) {
    load();
    EXPECT_EQ(value(1, "InputStart1"), "\"KEY_1,JOY1_BUTTON9\"") << what;
    EXPECT_EQ(value(1, "InputAutoTrigger2") + value(1, "Vsync"), "0") << what;
    EXPECT_FALSE(exists(kBak)) << what;
  };
  expectDefaults("there is none");
  write(kName, "Vsync = 0\r\n");
  if (support::kPosix) {
    fs::permissions(file, fs::perms(0));
    const support::Unprivileged user;
    expectDefaults("one that nobody may read");
  }
  fs::permissions(file, fs::perms(0666));
  fs::resize_file(file, 17 << 20);
  expectDefaults("one of 17 MB");
  WriteConfigFile();
  EXPECT_EQ(read(kName), text());
  EXPECT_EQ(fs::file_size(path(kUnread)), 17U << 20U);
}

TEST_F(ConfigFile, SettingsStoreGetsAllKeysAndKeepsOldOnes) {
  load(
      ";GameListPref=1\r\n;ICONpaths=i\r\n;ROMpaths=r*/日本*d*last\r\n"
      ";GameTimeLog=game_a,3,1250*x/y,1,64\r\n");
  SaveUserSettings();
  Module1::RomPaths[3].clear();
  Module1::PlayLog = {};
  SaveUserSettings();
  const auto text = settings();
  for (const auto* line : {"game_a=\"3,1250\"", "y=\"1,64\"", "GameListPref=1", "Language=0",
                           "ICON1=i", "ROMS2=/日本", "ROMS3=", "ROMS4=last", "SNAP4="})
    EXPECT_NE(text.find(line + std::string("\n")), std::string::npos) << line << text;
}

}  // namespace
}  // namespace config
