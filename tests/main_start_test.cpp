// Starts of the whole program, good and bad ones, and its ends.
#include <QMessageBox>

#include "support/ui_test.h"

namespace {

class MainStart : public support::UiTest {};

TEST_F(MainStart, FailureShowsABoxInTheConfiguredLanguageAndNoWindow) {
  const char* const texts[] = {
      "Kestrivane.exe não é encontrada na pasta deste programa!",
      "Kestrivane.exe foi encontrado, mas não está funcionando como era esperado!"};
  write("Config/Kestrivane.ini", ";KVLLanguage=2\r\n");
  for (const auto* text : texts) {
    ends.clear();
    {
      const support::WhenModal answer("", [&](QWidget& widget) {
        const auto& box = dynamic_cast<QMessageBox&>(widget);
        EXPECT_EQ((box.windowTitle() + box.text()).toStdString(), std::string("Erro!") + text);
        EXPECT_FALSE(form->visible());
      });
      start();
    }
    EXPECT_EQ(ends, std::vector<int>{1});
    EXPECT_FALSE(form->visible());
    window().close();
    EXPECT_EQ(settings(), "") << "the unload step does nothing after a failure";
    addEmulator("silent");
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
