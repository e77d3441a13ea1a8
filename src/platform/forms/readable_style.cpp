#include "platform/forms/readable_style.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <cmath>

#include "platform/forms/native.h"

namespace forms {
namespace {

// Guidelines require a contrast of 3. The rest makes up for styles that do not paint exactly their
// palette's colours.
constexpr double kContrast = 4.2;

class ReadableStyle : public QProxyStyle {
 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!option->state.testFlag(State_Enabled)) return;
    if (element == PE_IndicatorCheckBox)
      PaintLineInside(*painter, option->rect, edgeColour(*option), 1);
    if (element == PE_IndicatorRadioButton) {
      painter->save();
      painter->setRenderHint(QPainter::Antialiasing);
      painter->setPen(QPen(edgeColour(*option), 1.2));
      painter->setBrush(Qt::NoBrush);
      painter->drawEllipse(QRectF(option->rect).adjusted(1, 1, -1, -1));
      painter->restore();
    }
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control != CC_ScrollBar) return;
    constexpr double kGrooveContrast = 1.5;
    // At a scale such as 125 % the theme of Windows may draw an arrow button one pixel too small
    // and leave that pixel black.
    if (const auto scale = painter->deviceTransform().m11(); scale != std::floor(scale))
      for (const auto arrow : {SC_ScrollBarSubLine, SC_ScrollBarAddLine})
        PaintLineInside(*painter, subControlRect(CC_ScrollBar, option, arrow, widget),
                        colourOn(*option, kGrooveContrast), 1);
    if (!option->state.testFlag(State_Enabled)) return;
    constexpr int kGroovePixels = 3;  // how much of the groove shows beside the thumb
    // A style may shade its groove so that no colour of a thumb stands out everywhere.
    const auto groove = subControlRect(CC_ScrollBar, option, SC_ScrollBarGroove, widget);
    painter->fillRect(groove, option->palette.color(QPalette::Window));
    PaintLineInside(*painter, groove, colourOn(*option, kGrooveContrast), 1);
    auto thumb = subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
    if (option->state.testFlag(State_Horizontal))
      thumb.adjust(0, kGroovePixels, 0, -kGroovePixels);
    else
      thumb.adjust(kGroovePixels, 0, -kGroovePixels, 0);
    painter->fillRect(thumb, colourOn(*option, kContrast));
  }
  // Draws the indicator of an option button a little further right, because the caption of the
  // button before may end at its left edge, and the caption a little further left, because its last
  // letter may end at the right edge, where the focus ring is.
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_RadioButton || !button)
      return QProxyStyle::drawControl(element, option, painter, widget);
    constexpr int kMargin = 2;
    QStyleOptionButton part(*button);
    part.rect = subElementRect(SE_RadioButtonIndicator, option, widget).translated(kMargin, 0);
    drawPrimitive(PE_IndicatorRadioButton, &part, painter, widget);
    part.rect = subElementRect(SE_RadioButtonContents, option, widget).translated(-kMargin, 0);
    QProxyStyle::drawControl(CE_RadioButtonLabel, &part, painter, widget);
  }

 private:
  static QColor colourOn(const QStyleOption& option, double contrast) {
    return WithContrast(option.palette.color(QPalette::Mid), option.palette.color(QPalette::Window),
                        contrast);
  }
  // The edge must stand out from the window outside and from the text background inside.
  static QColor edgeColour(const QStyleOption& option) {
    return WithContrast(colourOn(option, kContrast), option.palette.color(QPalette::Base),
                        kContrast);
  }
};

}  // namespace

QStyle* NewReadableStyle() { return new ReadableStyle; }

}  // namespace forms
