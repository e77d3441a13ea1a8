#include "platform/forms/control.h"

#include <QHelpEvent>
#include <QPalette>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>
#include <cmath>

#include "platform/forms/control_accessible.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr const char* kTakesEnterProperty = "takesEnter";

QColor ToColour(Colour colour) { return {colour.red, colour.green, colour.blue}; }

}  // namespace

int ToPixels(int twips) {
  return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

// Rounds the edges instead of the size, so that neighbours still touch.
QRect ToPixels(const Box& box) {
  return {QPoint(ToPixels(box.left), ToPixels(box.top)),
          QPoint(ToPixels(box.left + box.width) - 1, ToPixels(box.top + box.height) - 1)};
}

QFont ToFont(const FontStyle& style) {
  QFont font;  // its family comes from the form
  font.setPixelSize(static_cast<int>(std::lround(style.points * 96 / 72)));
  font.setBold(style.bold);
  font.setItalic(style.italic);
  font.setUnderline(style.underline);
  if (style.letterWidth != 100) font.setLetterSpacing(QFont::PercentageSpacing, style.letterWidth);
  return font;
}

QString ToQString(const std::string& text) { return QString::fromStdString(text); }

void ShowPlainToolTip(const QHelpEvent& at, const QString& text, QWidget& on) {
  const bool looksLikeMarkup = Qt::mightBeRichText(text);
  QToolTip::showText(at.globalPos(),
                     looksLikeMarkup
                         ? "<span style=\"white-space:pre\">" + text.toHtmlEscaped() + "</span>"
                         : text,
                     &on);
}

void SetTakesEnter(QWidget& control) { control.setProperty(kTakesEnterProperty, true); }

bool TakesEnter(const QWidget& control) { return control.property(kTakesEnterProperty).toBool(); }

Control::Control(QWidget* widget, const char* name, const Box& box, const FontStyle& font)
    : widget_(widget) {
  widget_->setObjectName(QString::fromUtf8(name));
  setFont(font);
  move(box);
  widget_->show();
}

// A form's controls are members of the class derived from it, so they are destroyed before the
// window that owns their widgets.
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

std::string Control::toolTip() const { return widget_->toolTip().toStdString(); }

void Control::setToolTip(const std::string& text) { widget_->setToolTip(ToQString(text)); }

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

void Control::setAccessibleDescription(const std::string& text) {
  widget_->setAccessibleDescription(ToQString(text).simplified());
}

void Control::announce() const { Announce(*widget_); }

void Control::setRole(Role role) { SetAccessibleRole(*widget_, role); }

}  // namespace forms
