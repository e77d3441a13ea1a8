#include "platform/forms/menu_item.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QShortcut>
#include <QTimer>

#include "platform/forms/input_guard.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

QMenuBar& MenuBarOf(const Form& form) {
  auto* window = static_cast<QMainWindow*>(form.clientArea()->window());
  if (auto* bar = qobject_cast<QMenuBar*>(window->menuWidget())) return *bar;
  auto* bar = window->menuBar();
  bar->setNativeMenuBar(false);
  const auto* open = new QShortcut(Qt::Key_F10, bar);
  QObject::connect(open, &QShortcut::activated, bar,
                   [bar] { bar->setActiveAction(bar->actions().constFirst()); });
  return *bar;
}

QWidget& BarOf(const QAction& action) {
  auto* holder = static_cast<QWidget*>(action.parent());
  while (qobject_cast<const QMenu*>(holder)) holder = holder->parentWidget();
  return *holder;
}

constexpr const char* kOpensProperty = "opensFromBar";

// Whether the item's menu is being opened from the bar.
bool IsOpening(const QAction& item) { return item.parent()->property(kOpensProperty).toBool(); }

void WatchOpening(QMenu& menu) {
  if (!qobject_cast<QMenuBar*>(menu.parentWidget())) return;
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] {
    menu.setProperty(kOpensProperty, true);
    const auto end = [&menu] { menu.setProperty(kOpensProperty, false); };
    QMetaObject::invokeMethod(&menu, end, Qt::QueuedConnection);
  });
}

// Screen readers speak the name of a menu when it is entered. The toolkit gives menus no name.
void NameMenu(const QAction& action) {
  static const QRegularExpression accessKey(QStringLiteral("&(.)"));
  if (auto* menu = action.menu()) menu->setAccessibleName(action.text().replace(accessKey, "\\1"));
}

void AnnounceFocus(const QAction& action) {
  auto* holder = static_cast<QWidget*>(action.parent());
  QAccessibleEvent focus(holder, QAccessible::Focus);
  focus.setChild(static_cast<int>(holder->actions().indexOf(&action)));
  QAccessible::updateAccessibility(&focus);
}

void AnnounceIfActive(const QAction& action) {
  const auto* holder = static_cast<const QWidget*>(action.parent());
  const auto* menu = qobject_cast<const QMenu*>(holder);
  const auto* active =
      menu ? menu->activeAction() : static_cast<const QMenuBar*>(holder)->activeAction();
  if (active == &action && QApplication::activePopupWidget() == menu) AnnounceFocus(action);
}

QMenu& MenuOf(QAction& action) {
  if (!action.menu()) {
    auto* menu = new QMenu(static_cast<QWidget*>(action.parent()));
    action.setMenu(menu);
    NameMenu(action);
    WatchOpening(*menu);
    // Assistive technology can open a menu although its window takes no input.
    const auto closeIfBlocked = [menu, &action] {
      if (!TakesInput(BarOf(action))) menu->close();
    };
    QObject::connect(menu, &QMenu::aboutToShow, menu, closeIfBlocked, Qt::QueuedConnection);
    // When a menu closes, the toolkit does not announce the item that opened it.
    QObject::connect(
        menu, &QMenu::aboutToHide, &action, [&action] { AnnounceIfActive(action); },
        Qt::QueuedConnection);
  }
  return *action.menu();
}

// When a menu opens, the toolkit announces the control in focus after the menu's first item, so the
// item is announced again. If the menu was opened from the bar, its name is announced first, with a
// pause after it, because a screen reader stops speaking the name when the item follows at once.
void AnnounceAgain(QAction& action, bool opensMenu) {
  if (!opensMenu) return AnnounceIfActive(action);
  constexpr int kNameMilliseconds = 1000;
  AnnounceFocus(*static_cast<const QMenu*>(action.parent())->menuAction());
  QTimer::singleShot(kNameMilliseconds, &action, [&action] { AnnounceIfActive(action); });
}

}  // namespace

MenuItem::MenuItem(Form& form, const char* name, const std::string& caption)
    : action_(MenuBarOf(form).addAction(QString())) {
  prepare(name, caption);
}

MenuItem::MenuItem(MenuItem& parent, const char* name, const std::string& caption)
    : action_(MenuOf(*parent.action_).addAction(QString())) {
  prepare(name, caption);
}

void MenuItem::prepare(const char* name, const std::string& caption) {
  action_->setObjectName(QString::fromUtf8(name));
  if (caption == "-")
    action_->setSeparator(true);
  else
    setCaption(caption);
  QObject::connect(action_, &QAction::triggered, action_, [this] {
    action_->setChecked(action_->isCheckable());  // restores it: only ticked items are checkable
    // Assistive technology can trigger items of a blocked window, and waits until this returns.
    PressLater(BarOf(*action_), [this] { Raise(onClick); });
  });
  QObject::connect(action_, &QAction::hovered, action_, [this] {
    const auto announce = [this, opens = IsOpening(*action_)] { AnnounceAgain(*action_, opens); };
    QMetaObject::invokeMethod(action_, announce, Qt::QueuedConnection);
  });
}

void MenuItem::setCaption(const std::string& caption) {
  action_->setText(ToQString(caption));
  NameMenu(*action_);
}

void MenuItem::setChecked(bool checked) {
  action_->setCheckable(checked);
  action_->setChecked(checked);
}

void MenuItem::setVisible(bool visible) { action_->setVisible(visible); }

void MenuItem::setEnabled(bool enabled) { action_->setEnabled(enabled); }

}  // namespace forms
