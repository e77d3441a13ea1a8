// What a screen reader is told of every window, in every language, and the access keys.
#include <QAbstractButton>
#include <QAccessible>
#include <QMenu>
#include <QRegularExpression>
#include <set>

#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

void ExpectNamed(const QAccessibleInterface& control, std::set<std::pair<int, QString>>& taken) {
  const auto role = control.role();
  const auto state = control.state();
  if (state.invisible || role == QAccessible::Whitespace) return;
  const auto id = control.object() ? control.object()->objectName() : QString();
  const auto name = control.text(QAccessible::Name).trimmed();
  const bool nameless = role == QAccessible::MenuBar || role == QAccessible::StaticText ||
                        (role == QAccessible::Client && id.isEmpty());
  const bool wrong = name.isEmpty() || name.contains(QRegularExpression(QStringLiteral("&\\w"))) ||
                     role == QAccessible::Client || role == QAccessible::StaticText;
  const bool twice = state.focusable && !taken.emplace(role, name).second;
  EXPECT_FALSE((wrong && (state.focusable || !nameless)) || twice)
      << id.toStdString() << ", role " << role << ", is called \"" << name.toStdString() << '"';
  const bool whole = role == QAccessible::List || role == QAccessible::Tree ||
                     role == QAccessible::ComboBox || role == QAccessible::EditableText;
  for (int i = 0; !whole && i < control.childCount(); ++i) ExpectNamed(*control.child(i), taken);
}

void ExpectAccessible(QWidget& window) {
  support::ExpectLaidOut(window);
  std::set<std::pair<int, QString>> taken;
  ExpectNamed(*QAccessible::queryAccessibleInterface(&window), taken);
  std::set<std::pair<const QObject*, QString>> keys;
  QStringList clashes;
  const auto look = [&](const QObject* place, const QString& caption) {
    const auto key = QKeySequence::mnemonic(caption).toString();
    if (!key.isEmpty() && !keys.emplace(place, key).second) clashes << key;
  };
  for (const auto* button : window.findChildren<QAbstractButton*>()) look(&window, button->text());
  for (const auto* action : window.findChildren<QAction*>())
    look(qobject_cast<QMenu*>(action->parent()) ? action->parent() : &window, action->text());
  // The Spanish menus Archivo and Ayuda take turns.
  const bool known = Module1::CurrentLanguage == 1 && window.objectName() == "Form1";
  EXPECT_EQ(clashes.join(' ').toStdString(), known ? "Alt+A" : "");
}

class Accessibility : public support::UiTest {
 protected:
  // The names and values of controls, a star behind what is checked, each ended by "|".
  static std::string told(const QWidget& window, const std::vector<const char*>& names) {
    QString text;
    for (const auto* name : names) {
      const auto& control = *QAccessible::queryAccessibleInterface(&get(window, name));
      text += control.text(QAccessible::Name) + " " + control.text(QAccessible::Value) +
              (control.state().checked ? "*|" : "|");
    }
    return text.toStdString();
  }
};

TEST_F(Accessibility, EveryControlOfEveryWindowHasItsNameAndKeyInEveryLanguage) {
  constexpr const char* kTexts[] = {"&Spanish, PLAY!, detected)", "Espanhol, JOGAR!, detectado)",
                                    "&Español, JUGAR!, detectado)"};
  start();
  for (int language = 0; language < 3; ++language) {
    SCOPED_TRACE(language);
    clickRow(1);
    widget("cmdConfGame").setFocus();
    item(indexed("mLang", language)).trigger();
    const auto title = window().windowTitle().section(' ', -1).toStdString();
    EXPECT_EQ(item("mLang(2)").text().toStdString() + ", " + caption("cmdPlay") + ", " + title,
              kTexts[language]);
    for (int index = 0; index < 3; ++index)
      EXPECT_EQ(item(indexed("mLang", index)).isChecked(), index == language);
    EXPECT_EQ(rows(list()), "A*|B|");
    EXPECT_EQ(window().focusWidget(), &list());
    ExpectAccessible(window());
    gameOptions(0, ExpectAccessible);
    options([&](QWidget& dialog) {
      for (int index = 0; index < 5; ++index) {
        EXPECT_TRUE(get(dialog, indexed("frmOPT", index)).isVisible());
        ExpectAccessible(dialog);
        key(Qt::Key_Right);
      }
      use(dialog, "optOPT(2)");
      const auto leave = [](QWidget& chooser) {
        ExpectAccessible(chooser);
        key(Qt::Key_Escape);
        EXPECT_FALSE(chooser.isVisible());
      };
      inModal("frmInput2", leave, [&] { use(dialog, "lstInput(1)=Down lstInput(1)=F2"); });
      use(dialog, QString("cmbInputType=Down ").repeated(language));
      const auto turnPage = [](QWidget& pages) {
        ExpectAccessible(pages);
        use(pages, "optADV(1)");
        ExpectAccessible(pages);
      };
      inModal("frmFF", turnPage, [&] { use(dialog, "lblAdvOpts"); });
    });
    const auto closeAbout = [&](QWidget& box) {
      ExpectAccessible(box);
      EXPECT_EQ(textOf(box, "lblCredits"),
                language == 1 ? "Traduzido em português por a comunidade Kestrivane UI" : "");
      if (language == 0)
        key(Qt::Key_Escape);
      else
        QTest::mouseDClick(language == 1 ? &get(box, "Image1") : &box, Qt::LeftButton);
      EXPECT_FALSE(box.isVisible());
    };
    inModal("Form3", closeAbout, [&] { item("mAbout").trigger(); });
  }
}

TEST_F(Accessibility, ValuesAndStatesAreTold) {
  support::FakeClock clock;
  write("roms/a.zip", "seconds=0\nend=error\n");
  startWith("Balance = 30|;KVLLanguage=1|");
  const auto* games = QAccessible::queryAccessibleInterface(&list());
  EXPECT_TRUE(games->child(0)->state().selected && !games->child(1)->state().selected);
  options([](QWidget& dialog) {
    key(Qt::Key_Right);
    use(dialog, "hslVolume(1)=Left");
    EXPECT_EQ(told(dialog, {"optOPT(1)", "cmbRes", "hslVolume(1)", "hslBalance", "lstInput(3)"}),
              "Video *|Resolución 496x384|Música Volumen 99%|"
              "Balance Trasero/Frontal +30% al Frontal|Botón 3 |");
    const auto* cells = QAccessible::queryAccessibleInterface(&get(dialog, "lstInput(3)"));
    EXPECT_EQ(cells->child(1)->text(QAccessible::Name), "Coin1") << "the cell is empty";
    use(dialog, "optOPT(2)");
    auto& link = get(dialog, "lblAdvOpts");
    const auto plain = link.grab().toImage();
    link.setFocus();
    EXPECT_NE(link.grab().toImage(), plain) << "the focus is seen";
    const auto look = [](QWidget& box) {
      const auto* yes = dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes);
      EXPECT_EQ(yes->text().toStdString(), "&Sí");
      EXPECT_FALSE(box.windowIcon().isNull());
    };
    inModal("", look, [&] { use(dialog, "lblLoadDefaults"); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    key(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); })) << "the key of Save";
  });
  EXPECT_EQ(saved(), "MusicVolume = 99|Balance = 30|;KVLLanguage=1|");
  clock.onSleep = [] { ExpectAccessible(*QApplication::activeModalWidget()); };
  inModal("Form4", ExpectAccessible, [this] { click("cmdPlay"); });
}

}  // namespace
