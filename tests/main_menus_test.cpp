// The menus of the main window, its languages, and the about box.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "core/module1.h"
#include "support/ui_test.h"

namespace {

using Module1::CurrentLanguage;

class MainMenus : public support::UiTest {
 protected:
  MainMenus() { addGames("a b"); }
};

TEST_F(MainMenus, LanguageChangesTheWindowAtOnce) {
  const struct {
    int menu, language;
    const char* texts;
  } rows[] = {{1, 2, "Espanhol|JOGAR!| 2 jogos listados|Contagem de Jogo: 0\r"},
              {2, 1, "&Español|JUGAR!| 2 juegos listados|Partidas jugadas: 0\r"},
              {0, 0, "&Spanish|PLAY!| 2 games listed|Play Count: 0\r"}};
  start();
  for (const auto& row : rows) {
    auto& language = item("mLang(" + std::to_string(row.menu) + ")");
    for (int again = 0; again < 2; ++again) {
      clickRow(1);
      widget("cmdConfGame").setFocus();
      language.trigger();
      EXPECT_EQ(CurrentLanguage, row.language);
      EXPECT_EQ(caption("lblGameTitle"), "A") << "back on the first title";
      EXPECT_EQ(QApplication::focusWidget(), &list());
    }
    for (int index = 0; index < 3; ++index)
      EXPECT_EQ(item("mLang(" + std::to_string(index) + ")").isChecked(), index == row.menu);
    const auto texts = item("mLang(2)").text().toStdString() + "|" + caption("cmdPlay") + "|" +
                       caption("lblInfo") + "|" + caption("lblTP");
    EXPECT_EQ(texts.substr(0, texts.find('\r') + 1), row.texts);
  }
  EXPECT_FALSE(exists("Config/Kestrivane.ini"));
}

TEST_F(MainMenus, AccessKeysOpenMenusAndEscapeClosesThemOnly) {
  start();
  key(Qt::Key_H, Qt::AltModifier);
  const auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu && menu->menuAction()->objectName() == "mHelp");
  key(Qt::Key_Escape);
  EXPECT_FALSE(QApplication::activePopupWidget());
  EXPECT_TRUE(dynamic_cast<QMenuBar*>(QApplication::focusWidget()));
  key(Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), &list());
  EXPECT_TRUE(ends.empty());
}

TEST_F(MainMenus, OptionsAreOfAllGamesOrOfTheSelectedOne) {
  start();
  click("optGames(1)");
  std::string seen;
  const auto saved = [&](QWidget&) {
    seen += std::to_string(Module1::OptionScope) + " ";
    EXPECT_FALSE(Module1::OptionsSaved);
    write(Module1::OptionScope == 254 ? "roms/b.zip" : "roms/a.zip", "");
    Module1::OptionsSaved = true;
  };
  {
    const support::WhenModal global("Form2", saved);
    item("mConfig").trigger();
  }
  EXPECT_EQ(caption("lblGameTitle"), "B") << "the archives were looked for again";
  EXPECT_FALSE(Module1::OptionsSaved);
  const support::WhenModal game("Form2", saved);
  click("cmdConfGame");
  EXPECT_EQ(seen, "254 1 ");
  EXPECT_TRUE(Module1::OptionsSaved && list().count() == 1) << "nothing is looked at";
}

TEST_F(MainMenus, ClearingNvramsAsksAndReportsNothing) {
  start();
  item("mClearNVRAM").trigger();
  for (const auto* name : {"NVRAM/a.nv", "NVRAM/B.NV", "NVRAM/c.nvx", "NVRAM/d.nv/e.nv"})
    write(name, "");
  {
    const support::Unprivileged rights;
    item("mClearNVRAM").trigger();
  }
  EXPECT_TRUE(exists("NVRAM/a.nv"));
  item("mClearNVRAM").trigger();
  EXPECT_FALSE(exists("NVRAM/a.nv") || exists("NVRAM/B.NV"));
  EXPECT_TRUE(exists("NVRAM/c.nvx") && exists("NVRAM/d.nv/e.nv"));
}

TEST_F(MainMenus, AboutBoxClosesOnDoubleClickAnywhereAndEscape) {
  start();
  for (const auto* name : {"", "Image1", "Label1", "lblCredits"}) {
    const support::WhenModal about("Form3", [&](QWidget& box) {
      if (*name)
        QTest::mouseDClick(&get(box, name), Qt::LeftButton);
      else
        key(Qt::Key_Escape);
      EXPECT_FALSE(box.isVisible()) << name;
    });
    item("mAbout").trigger();
  }
  EXPECT_TRUE(ends.empty());
}

}  // namespace
