// What marks the control in focus and the chosen one, told from its surroundings on any desktop.
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/forms/native.h"

namespace forms {
namespace {

// 3 is what is asked for; what a style paints is a little off its palette's colours.
constexpr double kMarkContrast = 5;

// As the guidelines for accessible contents measure it.
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

QColor MarkColour(const QWidget& on) {
  const auto& palette = on.palette();
  return WithContrast(palette.color(QPalette::Highlight), palette.color(on.backgroundRole()),
                      kMarkContrast);
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

void PaintFocusRing(QWidget& on, int pixels) {
  QPainter painter(&on);
  painter.setPen(QPen(MarkColour(on), pixels));
  const int inside = pixels / 2;
  painter.drawRect(on.rect().adjusted(inside, inside, -1, -1));
}

void PaintFrame(QWidget& on) {
  constexpr double kFrameContrast = 1.5;
  const auto& palette = on.palette();
  const auto background = palette.color(QPalette::Base);
  QPainter painter(&on);
  painter.setPen(WithContrast(palette.color(QPalette::Mid), background, kFrameContrast));
  // Between whole scales a half of the outermost pixel may lie outside.
  const auto scale = on.devicePixelRatioF();
  const int inside = scale == std::floor(scale) ? 0 : 1;
  painter.drawRect(on.rect().adjusted(inside, inside, -1 - inside, -1 - inside));
}

void PaintChosenMark(QWidget& on) {
  constexpr int kPixels = 4;
  auto bar = on.rect().adjusted(3, 0, -3, -3);
  bar.setTop(bar.bottom() - kPixels + 1);
  QPainter(&on).fillRect(bar, MarkColour(on));
}

}  // namespace forms
