#include "platform/forms/control.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QTextDocument>
#include <QWidget>
#include <cmath>
#include <map>

#include "platform/forms/native.h"

namespace forms {
namespace {

constexpr int kTwipsPerPixel = 15;

constexpr const char* kRoleProperty = "accessibleRole";

QColor ToColour(Colour colour) { return {colour.red, colour.green, colour.blue}; }

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

// A widget in the role that it has when asked: the toolkit makes this as soon as the widget is
// there, and what assistive technology has seen once must stay.
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
  // Later, since what it opens may stay for long and the caller waits.
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (!pressable() || !widget()->isEnabled()) return;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
      QCoreApplication::postEvent(widget(), new QKeyEvent(type, Qt::Key_Space, Qt::NoModifier));
  }

 private:
  bool pressable() const {
    return role() == QAccessible::Link || role() == QAccessible::RadioButton;
  }
};

QAccessibleInterface* NewInterface(const QString& className, QObject* object) {
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

int ToPixels(int twips) {
  return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

// Edges are rounded, not sizes, so that neighbours keep touching.
QRect ToPixels(const Box& box) {
  return {QPoint(ToPixels(box.left), ToPixels(box.top)),
          QPoint(ToPixels(box.left + box.width) - 1, ToPixels(box.top + box.height) - 1)};
}

QFont ToFont(const FontStyle& style) {
  QFont font;  // of the form's family
  font.setPixelSize(static_cast<int>(std::lround(style.points * 96 / 72)));
  font.setBold(style.bold);
  font.setItalic(style.italic);
  font.setUnderline(style.underline);
  return font;
}

QString ToQString(const std::string& text) { return QString::fromStdString(text); }

QString PlainToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}

void PaintFocusRing(QWidget& on) {
  constexpr int kPixels = 2;
  QPainter painter(&on);
  painter.setPen(QPen(on.palette().color(QPalette::Highlight), kPixels));
  painter.drawRect(on.rect().adjusted(1, 1, -1, -1));
}

Control::Control(QWidget* widget, const char* name, const Box& box, const FontStyle& font)
    : widget_(widget) {
  [[maybe_unused]] static const bool kInstalled = (QAccessible::installFactory(NewInterface), true);
  widget_->setObjectName(QString::fromUtf8(name));
  setFont(font);
  move(box);
  widget_->show();
}

Control::~Control() { delete widget_; }

void Control::move(const Box& box) {
  box_ = box;
  widget_->setGeometry(ToPixels(box));
}

void Control::setLeft(int left) { move({left, box_.top, box_.width, box_.height}); }

void Control::setVisible(bool visible) { widget_->setVisible(visible); }

bool Control::enabled() const { return widget_->isEnabledTo(widget_->parentWidget()); }

void Control::setEnabled(bool enabled) { widget_->setEnabled(enabled); }

void Control::setFocus() { widget_->setFocus(Qt::OtherFocusReason); }

std::string Control::toolTip() const {
  return widget_->property("plainToolTip").toString().toStdString();
}

void Control::setToolTip(const std::string& text) {
  const auto plain = ToQString(text);
  widget_->setProperty("plainToolTip", plain);
  widget_->setToolTip(PlainToolTip(plain));
}

void Control::setFont(const FontStyle& font) { widget_->setFont(ToFont(font)); }

void Control::setTextColour(Colour colour) {
  auto palette = widget_->palette();
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, ToColour(colour));
  widget_->setPalette(palette);
}

void Control::setBackColour(Colour colour) {
  auto palette = widget_->palette();
  for (const auto role : {QPalette::Window, QPalette::Base})
    palette.setColor(role, ToColour(colour));
  widget_->setPalette(palette);
  widget_->setAutoFillBackground(true);
}

void Control::resetColours() { widget_->setPalette({}); }

void Control::setAccessibleName(const std::string& name) {
  auto text = ToQString(name).trimmed();
  if (text.endsWith(u':')) text.chop(1);
  widget_->setAccessibleName(text);
}

void Control::setRole(Role role) {
  widget_->setProperty(kRoleProperty, static_cast<int>(ToAccessibleRole(role)));
}

}  // namespace forms
