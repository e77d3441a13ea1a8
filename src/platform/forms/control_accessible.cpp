#include "platform/forms/control_accessible.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/forms/accessible_text.h"
#include "platform/forms/input_guard.h"
#include "platform/forms/rows_accessible.h"

namespace forms {
namespace {

constexpr const char* kRoleProperty = "accessibleRole";
constexpr const char* kValueProperty = "accessibleValue";

QAccessible::Role ToAccessibleRole(Role role) {
  switch (role) {
    case Role::Picture:
      return QAccessible::Graphic;
    case Role::Group:
      return QAccessible::Grouping;
    case Role::Link:
      return QAccessible::Link;
    case Role::Decoration:
      break;
  }
  return QAccessible::Whitespace;
}

// Reports the role that the widget has when it is asked. The toolkit creates this interface before
// the form has set the role, and can't replace it later.
class RoleInterface : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QAccessible::Role role() const override {
    const auto given = widget()->property(kRoleProperty);
    return given.isValid() ? static_cast<QAccessible::Role>(given.toInt())
                           : QAccessibleWidget::role();
  }
  QString text(QAccessible::Text kind) const override {
    auto text = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && text.isEmpty() && role() != QAccessible::Whitespace)
      text = widget()->property("text").toString();
    // A tool tip that repeats the name would be spoken after it.
    if (kind == QAccessible::Description && text == this->text(QAccessible::Name)) return {};
    return text;
  }
  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    const auto checked = widget()->property("checked");
    state.checkable = checked.isValid();
    state.checked = checked.toBool();
    return state;
  }
  QStringList actionNames() const override {
    return (pressable() ? QStringList(pressAction()) : QStringList()) +
           QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (!pressable() || !widget()->isEnabled()) return;
    const auto press = [this] {
      for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(widget(), new QKeyEvent(type, Qt::Key_Space, Qt::NoModifier));
    };
    PressLater(*widget(), press);
  }

 private:
  bool pressable() const {
    return role() == QAccessible::Link || role() == QAccessible::RadioButton;
  }
};

// A bar whose value also has a text. For a slider, screen readers speak the text only if it is an
// attribute, and else the number; for a spin box they speak the text. So where the toolkit has no
// attributes, the bar is reported as a spin box.
class BarInterface : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit BarInterface(QScrollBar* bar)
      : QAccessibleWidget(bar, HasAttributes() ? QAccessible::Slider : QAccessible::SpinBox),
        shown_(NewAccessibleText([bar] { return bar->property(kValueProperty).toString(); })),
        attributes_([this]() -> AttributeValues {
          return {{QStringLiteral("valuetext"), text(QAccessible::Value)}};
        }) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? shown_->text(0, shown_->characterCount())
                                      : QAccessibleWidget::text(kind);
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface) return shown_.get();
    auto* attributes = attributes_.cast(type);
    return attributes ? attributes : QAccessibleWidget::interface_cast(type);
  }
  QVariant currentValue() const override { return bar()->value(); }
  void setCurrentValue(const QVariant& value) override {
    if (TakesInput(*bar())) bar()->setValue(value.toInt());
  }
  QVariant maximumValue() const override { return bar()->maximum(); }
  QVariant minimumValue() const override { return bar()->minimum(); }
  QVariant minimumStepSize() const override { return bar()->singleStep(); }

 private:
  QScrollBar* bar() const { return static_cast<QScrollBar*>(widget()); }

  std::unique_ptr<QAccessibleTextInterface> shown_;
  AccessibleAttributes attributes_;
};

QAccessibleInterface* NewInterface(const QString& className, QObject* object) {
  if (auto* bar = qobject_cast<QScrollBar*>(object); bar && bar->property(kValueProperty).isValid())
    return new BarInterface(bar);
  static const std::map<QString, QAccessible::Role> kRoles = {
      {QStringLiteral("QFrame"), QAccessible::Whitespace},
      {QStringLiteral("QLabel"), QAccessible::StaticText},
      {QStringLiteral("QToolButton"), QAccessible::RadioButton},
      {QStringLiteral("QWidget"), QAccessible::Client}};
  const auto role = kRoles.find(className);
  const bool own = object && className == QLatin1String(object->metaObject()->className());
  if (!own || role == kRoles.end()) return nullptr;
  return new RoleInterface(static_cast<QWidget*>(object), role->second);
}

}  // namespace

void MakeControlsAccessible() { QAccessible::installFactory(NewInterface); }

void Announce(QWidget& widget) {
  QAccessibleEvent focus(&widget, QAccessible::Focus);
  QAccessible::updateAccessibility(&focus);
}

void AnnounceFocusOf(QWidget& window) {
  auto* focus = window.focusWidget() ? window.focusWidget() : &window;
  auto* control = QAccessible::queryAccessibleInterface(focus);
  auto* row = control ? control->focusChild() : nullptr;
  if (!row) return Announce(*focus);
  AnnounceFocus(row);
}

void SetAccessibleRole(QWidget& widget, Role role) {
  widget.setProperty(kRoleProperty, static_cast<int>(ToAccessibleRole(role)));
}

void SetAccessibleValue(QWidget& bar, const QString& value) {
  bar.setProperty(kValueProperty, value);
}

}  // namespace forms
