#include "platform/forms/menu_item.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include "platform/forms/native.h"

namespace forms {
namespace {

// Opens the first menu. Once all menus are closed the focus is back where it was; the toolkit would
// leave it in the bar.
void OpenFirstMenu(QMenuBar& bar) {
  auto* visit = new QObject(&bar);
  const auto end = [visit, &bar] {
    if (QApplication::activePopupWidget()) return;  // moved on to another menu
    visit->deleteLater();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    if (bar.hasFocus()) QApplication::sendEvent(&bar, &escape);
  };
  for (const auto* action : bar.actions())
    QObject::connect(action->menu(), &QMenu::aboutToHide, visit, end, Qt::QueuedConnection);
  bar.setActiveAction(bar.actions().constFirst());
}

QMenuBar& MenuBarOf(const Form& form) {
  auto* window = static_cast<QMainWindow*>(form.clientArea()->window());
  if (auto* bar = qobject_cast<QMenuBar*>(window->menuWidget())) return *bar;
  auto* bar = window->menuBar();
  bar->setNativeMenuBar(false);
  const auto* open = new QShortcut(Qt::Key_F10, bar);
  QObject::connect(open, &QShortcut::activated, bar, [bar] { OpenFirstMenu(*bar); });
  return *bar;
}

QMenu& MenuOf(QAction& action) {
  if (!action.menu()) {
    auto* menu = new QMenu(static_cast<QWidget*>(action.parent()));
    action.setMenu(menu);
  }
  return *action.menu();
}

// A menu that opens has the control with the focus told of once more, behind its own first item.
void TellAgain(const QAction& action) {
  auto* holder = static_cast<QWidget*>(action.parent());
  const auto* menu = qobject_cast<const QMenu*>(holder);
  const auto* active =
      menu ? menu->activeAction() : static_cast<const QMenuBar*>(holder)->activeAction();
  if (active != &action || QApplication::activePopupWidget() != menu) return;
  QAccessibleEvent focus(holder, QAccessible::Focus);
  focus.setChild(static_cast<int>(holder->actions().indexOf(&action)));
  QAccessible::updateAccessibility(&focus);
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
  QObject::connect(action_, &QAction::triggered, action_, [this] { Raise(onClick); });
  QObject::connect(
      action_, &QAction::hovered, action_, [this] { TellAgain(*action_); }, Qt::QueuedConnection);
}

void MenuItem::setCaption(const std::string& caption) { action_->setText(ToQString(caption)); }

void MenuItem::setChecked(bool checked) {
  action_->setCheckable(checked);
  action_->setChecked(checked);
}

void MenuItem::setVisible(bool visible) { action_->setVisible(visible); }

void MenuItem::setEnabled(bool enabled) { action_->setEnabled(enabled); }

}  // namespace forms
