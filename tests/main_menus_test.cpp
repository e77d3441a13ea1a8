// The menus of the main window, its languages, and the about box.
#include <QApplication>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QUrl>

#include "core/module1.h"
#include "support/ui_test.h"

namespace {

using Module1::CurrentLanguage;
using support::TextOf;

class Opener : public QObject {
  Q_OBJECT
 public:
  Opener() { QDesktopServices::setUrlHandler("https", this, "open"); }
  ~Opener() override { QDesktopServices::unsetUrlHandler("https"); }
  QStringList opened;
 public slots:
  void open(const QUrl& address) { opened << address.toString(); }
};

class MainMenus : public support::UiTest {
 protected:
  MainMenus() { addGames("a b"); }

  // The items of a menu in order, hidden ones in brackets, ticked ones with a star.
  static std::string layout(const QList<QAction*>& items) {
    std::string text;
    for (const auto* item : items) {
      auto own = item->objectName().toStdString() + (item->isChecked() ? "*" : "");
      if (item->menu()) own += "{ " + layout(item->menu()->actions()) + "}";
      text += (item->isVisible() ? own : "[" + own + "]") + " ";
    }
    return text;
  }
};

TEST_F(MainMenus, StandInTheirOrder) {
  start();
  EXPECT_EQ(layout(window().findChild<QMenuBar*>()->actions()),
            "mFile{ mLanguage{ mLang(0)* mLang(1) mLang(2) } [mUIcolor{ mBlack mWhite mWindows* }] "
            "mExit } mTools{ mConfig mLinea mClearNVRAM } mHelp{ mHomepage mAbout } ");
  EXPECT_FALSE(item("mUIcolor").isEnabled());
  EXPECT_TRUE(item("mLinea").isSeparator());
}

TEST_F(MainMenus, LanguageChangesTheWindowAtOnce) {
  const struct {
    int menu, language;
    const char* texts;
  } rows[] = {
      {1, 2, "Preto|Português|Espanhol|JOGAR!| 2 jogos listados|Contagem de Jogo: 0|detectado)"},
      {2, 1, "&Negro|Portugués|&Español|JUGAR!| 2 juegos listados|Partidas jugadas: 0|detectado)"},
      {0, 0, "&Black|Portuguese|&Spanish|PLAY!| 2 games listed|Play Count: 0|detected)"}};
  start();
  const auto size = window().size();
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
    std::string texts;
    for (const auto* name : {"mBlack", "mLang(1)", "mLang(2)"})
      texts += item(name).text().toStdString() + "|";
    texts += caption("cmdPlay") + "|" + caption("lblInfo") + "|";
    texts += caption("lblTP").substr(0, caption("lblTP").find('\r')) + "|";
    EXPECT_EQ(texts + window().windowTitle().section(' ', -1).toStdString(), row.texts);
    for (const auto* name : {"cmdPlay", "cmdConfGame", "optGames(0)", "optGames(1)"})
      EXPECT_LE(widget(name).sizeHint().width(), widget(name).width()) << name << " is clipped";
    EXPECT_EQ(window().size(), size);
  }
  EXPECT_FALSE(exists("Config/Kestrivane.ini"));
}

TEST_F(MainMenus, AccessKeysOpenMenusAndEscapeClosesThemOnly) {
  start();
  const auto open = [](Qt::Key letter) {
    key(letter, Qt::AltModifier);
    const auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    return menu ? menu->menuAction()->objectName().toStdString() : "";
  };
  EXPECT_EQ(open(Qt::Key_H), "mHelp");
  key(Qt::Key_Escape);
  EXPECT_FALSE(QApplication::activePopupWidget());
  EXPECT_TRUE(dynamic_cast<QMenuBar*>(QApplication::focusWidget()));
  key(Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), &list());
  EXPECT_TRUE(ends.empty());
  EXPECT_EQ(open(Qt::Key_F), "mFile");
  key(Qt::Key_L);
  key(Qt::Key_S);
  EXPECT_EQ(CurrentLanguage, 1);
  EXPECT_EQ(open(Qt::Key_A), "mFile");
  key(Qt::Key_S);
  EXPECT_EQ(ends, std::vector<int>{0});
}

TEST_F(MainMenus, OptionsAreOfAllGamesOrOfTheSelectedOne) {
  start();
  click("optGames(1)");
  std::string seen;
  const auto saved = [&](QWidget& options) {
    seen += std::to_string(Module1::OptionScope) + " ";
    EXPECT_FALSE(Module1::OptionsSaved);
    const auto off = options.frameGeometry().center() - window().frameGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
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

TEST_F(MainMenus, HomepageGoesToTheOpenerOfTheSystem) {
  start();
  item("mHomepage").trigger();  // there is none here
  EXPECT_FALSE(QApplication::activeModalWidget());
  const Opener opener;
  item("mHomepage").trigger();
  EXPECT_EQ(opener.opened, QStringList("https://kestrivane-ui.example/"));
}

TEST_F(MainMenus, AboutBoxClosesOnDoubleClickAnywhereAndEscapeOnly) {
  start();
  const char* const rows[][3] = {
      {"mLang(0)", "v0.9 (build 151)", ""},
      {"mLang(2)", "v0.9 (compilación 151)", ""},
      {"mLang(1)", "v0.9 (build 151)", "Traduzido em português por a comunidade Kestrivane UI"}};
  for (const auto& [language, version, credits] : rows) {
    item(language).trigger();
    const support::WhenModal escape(
        "Form3", [&, version = version, credits = credits](QWidget& about) {
          EXPECT_EQ(TextOf(about, "Label4"), version);
          EXPECT_EQ(TextOf(about, "lblCredits"), credits);
          const auto off = about.frameGeometry().center() - window().frameGeometry().center();
          EXPECT_LE(off.manhattanLength(), 2);
          for (const auto other : {Qt::Key_Return, Qt::Key_Space, Qt::Key_A}) key(other);
          for (auto* child : about.findChildren<QWidget*>())
            QTest::mouseClick(child, Qt::LeftButton);
          EXPECT_TRUE(about.isVisible());
          key(Qt::Key_Escape);
          EXPECT_FALSE(about.isVisible());
        });
    item("mAbout").trigger();
  }
  for (const auto* name :
       {"", "Image1", "Label1", "Label2", "Label3", "Label4", "Label5", "Label6", "lblCredits"}) {
    const support::WhenModal close("Form3", [&](QWidget& about) {
      QTest::mouseDClick(*name ? about.findChild<QWidget*>(name) : &about, Qt::LeftButton);
      EXPECT_FALSE(about.isVisible()) << name;
    });
    item("mAbout").trigger();
  }
  EXPECT_TRUE(ends.empty());
}

}  // namespace

#include "main_menus_test.moc"
