// The home page.
#include <QDesktopServices>
#include <QTextBrowser>

#include "support/ui_test.h"

namespace {

class MainMenus : public support::UiTest {};

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

}  // namespace
