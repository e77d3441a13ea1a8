// The ends of the program, and the home page.
#include <QDesktopServices>
#include <QTextBrowser>

#include "support/ui_test.h"

namespace {

class MainMenus : public support::UiTest {};

TEST_F(MainMenus, OnlyTheTitleBarEndsWithTheUnloadStep) {
  start();
  act("press Esc");
  EXPECT_EQ(settings(), "");
  act("close");
  EXPECT_EQ(ends.size(), 1U);
  EXPECT_NE(settings().find("Language=0"), std::string::npos);
}

TEST_F(MainMenus, HomepageOpensInTheBrowser) {
  start();
  if (!support::kPosix) return;  // the system opens the page there, not the toolkit
  QTextBrowser browser;
  QString opened;
  QObject::connect(&browser, &QTextBrowser::anchorClicked,
                   [&](const QUrl& address) { opened = address.toString(); });
  QDesktopServices::setUrlHandler("https", &browser, "anchorClicked");
  act("choose mHomepage");
  QDesktopServices::unsetUrlHandler("https");
  EXPECT_EQ(opened, "https://kestrivane-ui.example/");
}

TEST_F(MainMenus, AFailedStartShowsNoWindowAndLeavesTheSettings) {
  std::filesystem::remove(path("Kestrivane.exe"));
  inModal([this](QWidget&) { EXPECT_FALSE(form->visible()); }, [this] { start(); });
  EXPECT_EQ(ends, std::vector<int>({1}));
  window().close();
  EXPECT_EQ(settings(), "") << "the unload step does nothing after a failure";
}

}  // namespace
