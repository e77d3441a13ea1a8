// What a screen reader is told of every window, in every language, and the access keys.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QRegularExpression>
#include <set>

#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

using support::WhenModal;

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
  // Name and value of a control, and a star if it is checked.
  static std::string told(const QWidget& window, const char* name) {
    const auto& control = *QAccessible::queryAccessibleInterface(&get(window, name));
    return (control.text(QAccessible::Name) + " " + control.text(QAccessible::Value))
               .trimmed()
               .toStdString() +
           (control.state().checked ? "*" : "");
  }
};

TEST_F(Accessibility, EveryControlOfEveryWindowHasItsNameAndKey) {
  start();
  for (int language = 0; language < 3; ++language) {
    SCOPED_TRACE(language);
    item(indexed("mLang", language)).trigger();
    ExpectAccessible(window());
    gameOptions(0, ExpectAccessible);
    options([&](QWidget& dialog) {
      for (const int index : {0, 1, 3, 4, 2}) {
        page(dialog, index);
        ExpectAccessible(dialog);
      }
      type(dialog, "lstInput(1)", Qt::Key_Down);
      WhenModal("frmInput2", ExpectAccessible).during([&] {
        type(dialog, "lstInput(1)", Qt::Key_F2);
      });
      type(dialog, "cmbInputType", Qt::Key_Down, language);
      const WhenModal advanced("frmFF", [](QWidget& pages) {
        ExpectAccessible(pages);
        press(pages, "optADV(1)");
        ExpectAccessible(pages);
      });
      press(dialog, "lblAdvOpts");
    });
    const WhenModal about("Form3", [&](QWidget& box) {
      ExpectAccessible(box);
      EXPECT_EQ(textOf(box, "lblCredits"),
                language == 1 ? "Traduzido em português por a comunidade Kestrivane UI" : "");
      language == 0   ? key(Qt::Key_Escape)
      : language == 1 ? QTest::mouseDClick(&get(box, "Image1"), Qt::LeftButton)
                      : QTest::mouseDClick(&box, Qt::LeftButton);
      EXPECT_FALSE(box.isVisible()) << language;
    });
    item("mAbout").trigger();
  }
}

TEST_F(Accessibility, ValuesAndStatesAreTold) {
  support::FakeClock clock;
  write("roms/a.zip", "seconds=0\nend=error\n");
  start();
  item("mLang(2)").trigger();
  EXPECT_EQ(told(window(), "lstGames"), "juegos listados");
  const auto* games = QAccessible::queryAccessibleInterface(&list());
  EXPECT_TRUE(games->child(0)->state().selected && !games->child(1)->state().selected);
  options([](QWidget& dialog) {
    key(Qt::Key_Right);
    EXPECT_EQ(told(dialog, "optOPT(1)"), "Video*");
    EXPECT_EQ(told(dialog, "cmbRes"), "Resolución 496x384");
    type(dialog, "hslVolume(1)", Qt::Key_Left);
    EXPECT_EQ(told(dialog, "hslVolume(1)"), "Música Volumen 99%");
    EXPECT_EQ(told(dialog, "lstInput(3)"), "Botón 3");
    type(dialog, "hslBalance", Qt::Key_Left);
    EXPECT_EQ(told(dialog, "hslBalance"), "Balance Trasero/Frontal +1% al Trasero");
    const auto* list = QAccessible::queryAccessibleInterface(&get(dialog, "lstInput(3)"));
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "Coin1") << "the cell is empty";
    const WhenModal question("", [](QWidget& box) {
      auto& buttons = dynamic_cast<QMessageBox&>(box);
      EXPECT_EQ((buttons.button(QMessageBox::Yes)->text() + buttons.button(QMessageBox::No)->text())
                    .toStdString(),
                "&Sí&No");
      EXPECT_FALSE(box.windowIcon().isNull());
      answer(box, QMessageBox::No);
    });
    page(dialog, 2);
    auto& link = get(dialog, "lblAdvOpts");
    const auto plain = link.grab().toImage();
    link.setFocus();
    EXPECT_NE(link.grab().toImage(), plain) << "the focus is seen";
    press(dialog, "lblLoadDefaults");
  });
  clock.onSleep = [] { ExpectAccessible(*QApplication::activeModalWidget()); };
  const WhenModal report("Form4", ExpectAccessible);
  click("cmdPlay");
}

}  // namespace
