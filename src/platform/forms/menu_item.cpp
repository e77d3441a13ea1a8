#include "platform/forms/menu_item.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

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

const QWidget& BarOf(const QAction& action) {
  const auto* holder = static_cast<const QWidget*>(action.parent());
  while (qobject_cast<const QMenu*>(holder)) holder = holder->parentWidget();
  return *holder;
}

QMenu& MenuOf(QAction& action) {
  if (!action.menu()) {
    auto* menu = new QMenu(static_cast<QWidget*>(action.parent()));
    action.setMenu(menu);
    // Assistive technology opens menus without asking.
    const auto closeWhereNoneOpens = [menu, &action] {
      if (!TakesInput(BarOf(action))) menu->close();
    };
    QObject::connect(menu, &QMenu::aboutToShow, menu, closeWhereNoneOpens, Qt::QueuedConnection);
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
  QObject::connect(action_, &QAction::triggered, action_, [this] {
    if (TakesInput(BarOf(*action_)))
      Raise(onClick);
    else
      action_->setChecked(action_->isCheckable());  // only a ticked one can be unticked
  });
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
