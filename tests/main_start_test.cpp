// Starts of the whole program, good and bad ones, and its ends.
#include <QMessageBox>

#include "base/text.h"
#include "support/ui_test.h"

namespace {

class MainStart : public support::UiTest {};

TEST_F(MainStart, FailureShowsABoxInTheConfiguredLanguageAndNoWindow) {
  write("Config/Kestrivane.ini", ";KVLLanguage=2\r\n");
  for (const auto* message :
       {"Kestrivane.exe não é encontrada na pasta deste programa!",
        "Kestrivane.exe foi encontrado, mas não está funcionando como era esperado!"}) {
    const support::WhenModal answer("", [&](QWidget& widget) {
      const auto& box = dynamic_cast<QMessageBox&>(widget);
      EXPECT_EQ((box.windowTitle() + box.text()).toStdString(), std::string("Erro!") + message);
      EXPECT_FALSE(form->visible());
    });
    start();
    addEmulator("silent");
  }
  EXPECT_EQ(ends, std::vector<int>({1, 1}));
  EXPECT_FALSE(form->visible());
  window().close();
  EXPECT_EQ(settings(), "") << "the unload step does nothing after a failure";
}

TEST_F(MainStart, WindowShowsWhatWasLoaded) {
  addEmulator();
  const std::pair<std::string, const char*> starts[] = {
      {";GameListPref=1|;KVLLanguage=1|", "(Kestrivane 0.3a detectado) mLang(2) optGames(1) "},
      {";GameListPref=0|;KVLLanguage=9|", "(Kestrivane 0.3a detected) optGames(0) "}};
  for (const auto& [file, shown] : starts) {
    write("Config/Kestrivane.ini", base::ReplaceIgnoringCase(file, "|", "\r\n"));
    start();
    auto text = window().windowTitle().section("  ", 1).toStdString() + " ";
    for (const auto* name : {"mLang(0)", "mLang(1)", "mLang(2)"})
      if (item(name).isChecked()) text += name + std::string(" ");
    for (const auto* name : {"optGames(0)", "optGames(1)"})
      if (widget(name).property("checked").toBool()) text += name + std::string(" ");
    EXPECT_EQ(text, shown);
  }
}

TEST_F(MainStart, OnlyTheTitleBarEndsWithTheUnloadStep) {
  addGames("a");
  write("roms/a.zip", "");
  start();
  item("mExit").trigger();
  for (const auto* name : {"lstGames", "cmdPlay", "cmdConfGame", "optGames(0)"}) {
    widget(name).setFocus();
    key(Qt::Key_Escape);
  }
  EXPECT_EQ(ends, std::vector<int>(5, 0));
  EXPECT_EQ(settings(), "");
  window().close();
  EXPECT_EQ(ends.size(), 5U);
  EXPECT_NE(settings().find("Language=0"), std::string::npos);
}

}  // namespace
