// The start of the main window, its menus and languages, the about box, and the program's ends.
#include <QApplication>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>

#include "base/text.h"
#include "core/module1.h"
#include "support/ui_test.h"

namespace {

class MainMenus : public support::UiTest {
 protected:
  MainMenus() { addGames("a b"); }
};

TEST_F(MainMenus, LanguageChangesTheWindowAtOnce) {
  const std::pair<int, const char*> languages[] = {{1, "Espanhol JOGAR!"},
                                                   {1, "Espanhol JOGAR!"},
                                                   {2, "&Español JUGAR!"},
                                                   {0, "&Spanish PLAY!"}};
  start();
  for (const auto& [language, texts] : languages) {
    clickRow(1);
    widget("cmdConfGame").setFocus();
    item("mLang(" + std::to_string(language) + ")").trigger();
    EXPECT_EQ(rows(list()), "A*|B|");
    EXPECT_EQ(QApplication::focusWidget(), &list());
    for (int index = 0; index < 3; ++index)
      EXPECT_EQ(item("mLang(" + std::to_string(index) + ")").isChecked(), index == language);
    EXPECT_EQ(item("mLang(2)").text().toStdString() + " " + caption("cmdPlay"), texts);
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

TEST_F(MainMenus, HomepageOpensInTheBrowser) {
  if (!support::kPosix) GTEST_SKIP() << "the system opens it there, not the toolkit";
  start();
  QTextBrowser browser;
  QString opened;
  QObject::connect(&browser, &QTextBrowser::anchorClicked,
                   [&](const QUrl& address) { opened = address.toString(); });
  QDesktopServices::setUrlHandler("https", &browser, "anchorClicked");
  item("mHomepage").trigger();
  QDesktopServices::unsetUrlHandler("https");
  EXPECT_EQ(opened, "https://kestrivane-ui.example/");
}

TEST_F(MainMenus, AboutBoxClosesOnDoubleClickAnywhereAndEscape) {
  start();
  item("mLang(1)").trigger();
  for (const auto* name : {"", "Image1", "Label1", "lblCredits"}) {
    const support::WhenModal about("Form3", [&](QWidget& box) {
      EXPECT_EQ(textOf(box, "lblCredits"), "Traduzido em português por a comunidade Kestrivane UI");
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

TEST_F(MainMenus, FailureShowsABoxInTheConfiguredLanguageAndNoWindow) {
  write("Config/Kestrivane.ini", ";KVLLanguage=2\r\n");
  std::filesystem::remove(path("Kestrivane.exe"));
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

TEST_F(MainMenus, WindowShowsWhatWasLoaded) {
  addEmulator();
  const std::pair<std::string, const char*> starts[] = {
      {";GameListPref=1|;KVLLanguage=1|", "(Kestrivane 0.3a detectado) mLang(2) optGames(1) "},
      {";GameListPref=0|;KVLLanguage=3|", "(Kestrivane 0.3a detected) optGames(0) "}};
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

TEST_F(MainMenus, OnlyTheTitleBarEndsWithTheUnloadStep) {
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
