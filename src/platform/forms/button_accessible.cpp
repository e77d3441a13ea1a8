#include "platform/forms/button_accessible.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionButton>

#include "platform/forms/input_guard.h"

namespace forms {
namespace {

QAccessible::Role RoleOf(const QAbstractButton& button) {
  if (!button.isCheckable()) return QAccessible::Button;
  return button.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
}

// Reports what the toolkit's own interface reports, which this one replaces because it would toggle
// a check box at once and in any window.
class ButtonInterface : public QAccessibleWidget {
 public:
  explicit ButtonInterface(QAbstractButton* button) : QAccessibleWidget(button, RoleOf(*button)) {}

  QString text(QAccessible::Text kind) const override {
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    if (kind == QAccessible::Name && widget()->accessibleName().isEmpty())
      return button()->text().replace(mark, QStringLiteral("\\1"));
    if (kind == QAccessible::Accelerator)
      return (state().defaultButton ? QKeySequence(Qt::Key_Enter)
                                    : QKeySequence::mnemonic(button()->text()))
          .toString(QKeySequence::NativeText);
    return QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    const auto* box = qobject_cast<QCheckBox*>(widget());
    state.checkStateMixed = box && box->checkState() == Qt::PartiallyChecked;
    const auto* push = qobject_cast<QPushButton*>(widget());
    state.defaultButton = push && push->isDefault();
    return state;
  }
  // The area where a click acts. For check boxes and option buttons it is the box and the caption,
  // which is smaller than the widget.
  QRect rect() const override {
    if (!button()->isVisible() || !button()->isCheckable()) return QAccessibleWidget::rect();
    QStyleOptionButton look;
    look.initFrom(button());
    look.text = button()->text();
    const auto element = role() == QAccessible::CheckBox ? QStyle::SE_CheckBoxClickRect
                                                         : QStyle::SE_RadioButtonClickRect;
    return button()
        ->style()
        ->subElementRect(element, &look, button())
        .translated(button()->mapToGlobal(QPoint()));
  }
  QStringList actionNames() const override {
    const auto own = button()->isCheckable() ? toggleAction() : pressAction();
    return (button()->isEnabled() ? QStringList(own) : QStringList()) +
           QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != pressAction() && name != toggleAction()) return QAccessibleWidget::doAction(name);
    PressLater(*widget(), [button = button()] { button->click(); });
  }
  QStringList keyBindingsForAction(const QString& name) const override {
    if (name != pressAction()) return {};
    return {button()->shortcut().toString()};
  }

 private:
  QAbstractButton* button() const { return static_cast<QAbstractButton*>(widget()); }
};

QAccessibleInterface* NewInterface(const QString& className, QObject* object) {
  const bool ours = className == QLatin1String("QPushButton") ||
                    className == QLatin1String("QCheckBox") ||
                    className == QLatin1String("QRadioButton");
  return ours ? new ButtonInterface(static_cast<QAbstractButton*>(object)) : nullptr;
}

}  // namespace

void MakeButtonsAccessible() { QAccessible::installFactory(NewInterface); }

}  // namespace forms
