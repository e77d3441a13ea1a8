// The start of the main window, its menus, and the program's ends.
#include <QDesktopServices>
#include <QMenu>
#include <QTextBrowser>

#include "support/ui_test.h"

namespace {

class MainMenus : public support::UiTest {};

TEST_F(MainMenus, KeysOpenMenusAndOnlyTheTitleBarEndsWithTheUnloadStep) {
  write("roms/a.zip", "");
  start();
  const auto menuAfter = [](const char* pressed) {
    key(QKeySequence(pressed));
    QApplication::processEvents();
    const auto* popup = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    return popup ? popup->menuAction()->objectName().toStdString() : "";
  };
  EXPECT_EQ(menuAfter("Alt+H"), "mHelp");
  EXPECT_TRUE(menuAfter("Esc").empty() && !list().hasFocus()) << "the bar has it";
  EXPECT_TRUE(menuAfter("Esc").empty() && list().hasFocus());
  auto& button = get(window(), "cmdConfGame");
  button.setFocus();
  menuAfter("F10");
  EXPECT_EQ(menuAfter("Right"), "mTools");
  EXPECT_TRUE(menuAfter("Esc").empty() && !button.hasFocus()) << "the bar has it";
  EXPECT_TRUE(menuAfter("Esc").empty() && button.hasFocus());
  for (const auto held : {Qt::Key_Escape, Qt::Key_Return})
    QTest::simulateEvent(window().windowHandle(), true, held, Qt::NoModifier, {}, true);
  EXPECT_TRUE(ends.empty()) << "a key held down closes and opens nothing";
  use("mExit");
  for (const auto* name : {"lstGames", "cmdPlay", "cmdConfGame", "optGames(0)"}) {
    get(window(), name).setFocus();
    use("=Esc");
  }
  EXPECT_EQ(ends, std::vector<int>(5, 0));
  EXPECT_EQ(settings(), "");
  window().close();
  EXPECT_EQ(ends.size(), 5U);
  EXPECT_NE(settings().find("Language=0"), std::string::npos);
}

TEST_F(MainMenus, NvramsAreClearedAndTheHomepageOpensInTheBrowser) {
  start();
  use("mClearNVRAM");
  for (const auto* name : {"NVRAM/a.nv", "NVRAM/B.NV", "NVRAM/c.nvx", "NVRAM/d.nv/e.nv"})
    write(name, "");
  use("mClearNVRAM");
  EXPECT_FALSE(exists("NVRAM/a.nv") || exists("NVRAM/B.NV"));
  EXPECT_TRUE(exists("NVRAM/c.nvx") && exists("NVRAM/d.nv/e.nv"));
  if (!support::kPosix) return;  // the system opens the page there, not the toolkit
  QTextBrowser browser;
  QString opened;
  QObject::connect(&browser, &QTextBrowser::anchorClicked,
                   [&](const QUrl& address) { opened = address.toString(); });
  QDesktopServices::setUrlHandler("https", &browser, "anchorClicked");
  get<QAction>(window(), "mHomepage").trigger();
  QDesktopServices::unsetUrlHandler("https");
  EXPECT_EQ(opened, "https://kestrivane-ui.example/");
}

TEST_F(MainMenus, FailureShowsABoxInTheConfiguredLanguageAndNoWindow) {
  std::filesystem::remove(path("Kestrivane.exe"));
  const auto look = [&](QWidget& box) {
    see(box);
    EXPECT_FALSE(form->visible());
  };
  inModal(look, [this] { startWith(";KVLLanguage=2|"); });
  EXPECT_EQ(ends, std::vector<int>({1}));
  window().close();
  EXPECT_EQ(settings(), "") << "the unload step does nothing after a failure";
}

}  // namespace
