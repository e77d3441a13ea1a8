#include "config/config_reader.h"

#include "base/text.h"
#include "startup/startup.h"
#include "support/state_text.h"
#include "support/temp_app.h"

namespace config {
namespace {

using namespace Module1;

class ConfigReader : public support::TempApp {
 protected:
  // Reads a file of this text, where "|" stands for CR LF. "bak" at the end of the state stands for
  // a copy of the file that was made.
  std::string load(const std::string& text) {
    const auto bytes = base::ReplaceIgnoringCase(text, "|", "\r\n");
    startup::FillSharedState();
    std::filesystem::remove_all(path("Config"));
    write("Config/Kestrivane.ini", bytes);
    Adopt(LoadConfigFile(AppFolder));
    const std::string copy = "Config/Kestrivane.ini.bak";
    EXPECT_TRUE(!exists(copy) || read(copy) == bytes);
    return support::StateText() + (exists(copy) ? "bak" : "");
  }
};

TEST_F(ConfigReader, TakesEachLineByItsRule) {
  const struct {
    const char *what, *file, *state;  // no "bak" where the parse failed or saw the banner
  } rows[] = {
      {"an empty file", "", "bak"},
      {"keys in any case", "balance = 5 ; my own|VSYNC=  0  |", "1.Balance=5 1.Vsync=0 bak"},
      {"an unknown key", "Nothing = 1|Vsync = 0|", "1.Vsync=0 bak"},
      {"a value with =", "FragmentShader = x|FragmentShader = a=b|", "bak"},
      {"a key without =", "Vsync = 0|Vsync|", "bak"},
      {"a value with ;", "VertexShader = a;b|", "1.VertexShader=a bak"},
      {"a lone LF ends no line", "Vsync = 0\nThrottle = 0|", "bak"},
      {"the Global header adds no row", "[ Global ]|Vsync = 0|", "1:Global 1.Vsync=0 bak"},
      {"others do", "[ global ]|[ Global ] |[ Global ] ;|", "2:global 3:Global 4:Global bak"},
      {"Global behind a game", "[ g ]|Vsync = 1|[ Global ]|Vsync = 0|", "2:Global 2.Vsync=0 bak"},
      {"brackets in a value", "VertexShader = C:\\[ old ]\\v.txt|", "2:old ]\\v.txt bak"},
      {"a header not in column 1", "  [ game_a ]|", "2:game_a ] bak"},
      {"a header with its end too early", "[ ]|Vsync = 0|", "2: "},
      {"folders", ";rompaths=a b*\\\\b|;ICONPATHS=i|", "rom1=a b icon1=i rom2=\\\\b bak"},
      {"a gap among folders", ";ROMpaths=a**c|", "rom1=a rom3=c bak"},
      {"five folders", ";ROMpaths=a*b*c*d*e|Vsync = 0|", "rom1=a rom2=b rom3=c rom4=d "},
      {"letters of the code page", ";ROMpaths=C:\\Caf\xE9|", "rom1=C:\\Café bak"},
      {"a play log", ";GameTimeLog=a,1,22*B,x,y,z|", "log0=a,1,22 log1=B,x,y bak"},
      {"a play log with a trailing *", ";GameTimeLog=a,1,22*|Vsync = 0|", "log0=a,1,22 "},
      {"a play log with too few fields", ";GameTimeLog=a,1*b,2,3|", "log0=a,1, "},
      {"the banner", ";*** by Kestrivane UI\xAE (v0.9)|Vsync = 0|", "1.Vsync=0 "},
      {"an input system", ";InputMethod= 2 |", "input=2 bak"},
      {"an input system out of range", ";InputMethod=256|Vsync = 0|", ""},
      {"a filter", ";GameListPref=1|", "pref=1 bak"},
      {"no filter of these", ";GameListPref=1|;GameListPref=2|Vsync = 0|", "1.Vsync=0 pref=1 bak"},
      {"a filter out of range", ";GameListPref=-1|Vsync = 0|", ""},
      {"a language", ";KVLLanguage=2|", "lang=2 bak"},
      {"a language nobody speaks", ";KVLLanguage=9|", "lang=9 bak"}};
  for (const auto& row : rows) EXPECT_EQ(load(row.file), row.state) << row.what;
}

TEST_F(ConfigReader, StopsAtTheLimitsOfLinesAndPlays) {
  std::string log = ";GameTimeLog=";
  for (int row = 0; row < 41; ++row) log += (row ? "*g" : "g") + std::to_string(row) + ",1,30";
  EXPECT_TRUE(load(log + "|").ends_with("log40=g40,1,30 bak"));
  EXPECT_TRUE(load(log + "*g41,1,30|Vsync = 0|").ends_with("log40=g40,1,30 "));
  std::string lines;
  for (int line = 0; line < 32767; ++line) lines += "; some comment|";
  EXPECT_EQ(load(lines + "Vsync = 0|"), "1.Vsync=0 bak");
  EXPECT_EQ(load("Vsync = 0|" + lines + "|"), "");
}

TEST_F(ConfigReader, WithoutAReadableFileTheDefaultBindingsHold) {
  const auto file = path("Config/Kestrivane.ini");
  for (const std::string what : {"none", "a folder", "a pipe", "unreadable"}) {
    startup::FillSharedState();
    std::filesystem::remove_all(path("Config"));
    write("Config/Kestrivane.ini", "Vsync = 0\r\n");
    if (support::kPosix) std::filesystem::permissions(file, std::filesystem::perms(0));
    if (what != "unreadable") std::filesystem::remove(file);
    if (what == "a folder") std::filesystem::create_directory(file);
    if (what == "a pipe" && !support::MakePipe(file)) continue;
    if (what == "unreadable" && !support::kPosix) continue;
    const support::Unprivileged user;
    Adopt(LoadConfigFile(AppFolder));
    const auto state = support::StateText();
    EXPECT_TRUE(state.starts_with("1.InputStart1=\"KEY_1,JOY1_BUTTON9\" ")) << what << state;
    EXPECT_TRUE(state.ends_with("1.InputAutoTrigger2=0 ")) << what << state;
    EXPECT_FALSE(exists("Config/Kestrivane.ini.bak")) << what;
  }
}

}  // namespace
}  // namespace config
