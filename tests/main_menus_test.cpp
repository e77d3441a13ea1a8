// The menus of the main window, its languages, and the about box.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "core/module1.h"
#include "support/ui_test.h"

namespace {

class MainMenus : public support::UiTest {
 protected:
  MainMenus() { addGames("a b"); }
};

TEST_F(MainMenus, LanguageChangesTheWindowAtOnce) {
  const std::pair<int, const char*> languages[] = {
      {1, "Espanhol JOGAR!"}, {2, "&Español JUGAR!"}, {0, "&Spanish PLAY!"}};
  start();
  for (const auto& [language, texts] : languages) {
    for (int again = 0; again < 2; ++again) {
      clickRow(1);
      widget("cmdConfGame").setFocus();
      item("mLang(" + std::to_string(language) + ")").trigger();
      EXPECT_EQ(rows(list()), "A*|B|");
      EXPECT_EQ(QApplication::focusWidget(), &list());
    }
    for (int index = 0; index < 3; ++index)
      EXPECT_EQ(item("mLang(" + std::to_string(index) + ")").isChecked(), index == language);
    EXPECT_EQ(item("mLang(2)").text().toStdString() + " " + caption("cmdPlay"), texts);
  }
  EXPECT_FALSE(exists("Config/Kestrivane.ini"));
}

TEST_F(MainMenus, UnknownLanguageTicksNone) {
  write("Config/Kestrivane.ini", ";KVLLanguage=3\r\n");
  start();
  for (int index = 0; index < 3; ++index)
    EXPECT_FALSE(item("mLang(" + std::to_string(index) + ")").isChecked());
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
  widget("cmdConfGame").setFocus();
  key(Qt::Key_F10);
  key(Qt::Key_Right);
  QApplication::processEvents();
  menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu && menu->menuAction()->objectName() == "mTools");
  key(Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_EQ(QApplication::focusWidget(), &widget("cmdConfGame"));
  for (const auto held : {Qt::Key_Escape, Qt::Key_Return})
    QTest::simulateEvent(window().windowHandle(), true, held, Qt::NoModifier, {}, true);
  EXPECT_TRUE(ends.empty()) << "a key held down closes and opens nothing";
}

TEST_F(MainMenus, OptionsOfAllGamesMayBringArchivesThoseOfOneDoNot) {
  start();
  click("optGames(1)");
  const auto save = [](const char* archive) {
    return [=](QWidget&) {
      write(archive, "");
      Module1::OptionsSaved = true;
    };
  };
  support::WhenModal("Form2", save("roms/b.zip")).during([&] { item("mConfig").trigger(); });
  EXPECT_EQ(rows(list()), "B*|");
  support::WhenModal("Form2", save("roms/a.zip")).during([&] { click("cmdConfGame"); });
  EXPECT_EQ(rows(list()), "B*|");
  EXPECT_EQ(Module1::OptionScope, 1);
}

TEST_F(MainMenus, ClearingNvramsAsksAndReportsNothing) {
  start();
  item("mClearNVRAM").trigger();
  for (const auto* name : {"NVRAM/a.nv", "NVRAM/B.NV", "NVRAM/c.nvx", "NVRAM/d.nv/e.nv"})
    write(name, "");
  {
    const support::Unprivileged user(path("NVRAM"));
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
