// Marks the control in focus and the chosen button, with enough contrast on any desktop.
#include <QEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/forms/native.h"

namespace forms {
namespace {

// Guidelines require a contrast of 3. The rest makes up for styles that do not paint exactly their
// palette's colours.
constexpr double kMarkContrast = 5;

// The relative luminance of the web's accessibility guidelines (WCAG).
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor MarkColour(const QWidget& on, QPalette::ColorRole background) {
  const auto& palette = on.palette();
  return WithContrast(palette.color(QPalette::Highlight), palette.color(background), kMarkContrast);
}

}  // namespace

QColor WithContrast(const QColor& colour, const QColor& background, double contrast) {
  constexpr int kSteps = 20;
  const QColor end = Luminance(background) < 0.18 ? Qt::white : Qt::black;
  const auto mixed = [&](int step) {
    const auto mix = [step](int from, int to) { return from + (to - from) * step / kSteps; };
    return QColor(mix(colour.red(), end.red()), mix(colour.green(), end.green()),
                  mix(colour.blue(), end.blue()));
  };
  int step = 0;
  while (step < kSteps && Contrast(mixed(step), background) < contrast) ++step;
  return mixed(step);
}

QPalette WithReadableSelection(QPalette palette) {
  constexpr double kTextContrast = 5.2;
  for (const auto group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(group, QPalette::Highlight,
                     WithContrast(palette.color(group, QPalette::Highlight),
                                  palette.color(group, QPalette::HighlightedText), kTextContrast));
  return palette;
}

void PaintLineInside(QPainter& painter, const QRect& box, const QColor& colour, int pixels) {
  const auto toScreen = painter.deviceTransform();
  const auto exact = toScreen.mapRect(QRectF(box));
  const double left = std::round(exact.left()), right = std::round(exact.right());
  const double top = std::round(exact.top()), bottom = std::round(exact.bottom());
  const double width = std::max(1.0, std::floor(pixels * toScreen.m11()));
  const QRectF sides[] = {{left, top, right - left, width},
                          {left, bottom - width, right - left, width},
                          {left, top, width, bottom - top},
                          {right - width, top, width, bottom - top}};
  for (const auto& side : sides) painter.fillRect(toScreen.inverted().mapRect(side), colour);
}

void PaintFocusRing(QWidget& on, int pixels) {
  QPainter painter(&on);
  PaintLineInside(painter, on.rect(), MarkColour(on, on.backgroundRole()), pixels);
}

void PaintViewEdge(const QWidget& view, QWidget& on, const QRect& contents, int margin) {
  constexpr double kFrameContrast = 1.5;
  const auto& palette = on.palette();
  const auto base = palette.color(QPalette::Base);
  const auto edge = contents.adjusted(0, -margin, 0, margin);
  QPainter painter(&on);
  if (&on == &view) painter.fillRect(edge, base);
  if (view.hasFocus())
    PaintLineInside(painter, edge, MarkColour(on, QPalette::Base), 2);
  else
    PaintLineInside(painter, edge, WithContrast(palette.color(QPalette::Mid), base, kFrameContrast),
                    1);
}

bool IsPaint(const QEvent& event) { return event.type() == QEvent::Paint; }

bool IsFocusChange(const QEvent& event) {
  return event.type() == QEvent::FocusIn || event.type() == QEvent::FocusOut;
}

void PaintChosenMark(QWidget& on) {
  constexpr int kPixels = 4;
  auto bar = on.rect().adjusted(3, 0, -3, -3);
  bar.setTop(bar.bottom() - kPixels + 1);
  QPainter(&on).fillRect(bar, MarkColour(on, on.backgroundRole()));
}

}  // namespace forms
