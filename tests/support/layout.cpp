#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QStyleOptionButton>

#include "support/snapshot.h"

namespace support {
namespace {

// The area of a label's text, in the label's coordinates. A single line that is too wide is
// measured at 80 percent, the smallest size that a label draws. Below the baseline it counts only
// as far as its letters reach.
QRect TextOf(const QLabel& label) {
  const auto text = label.text();
  const bool isOneLine = !label.wordWrap() && !text.contains('\n');
  auto font = label.font();
  if (isOneLine && QFontMetrics(font).horizontalAdvance(text) > label.contentsRect().width())
    font.setPixelSize(font.pixelSize() * 8 / 10);
  const QFontMetrics metrics(font);
  const int flags = static_cast<int>(label.alignment()) | (isOneLine ? 0 : Qt::TextWordWrap);
  const int margin = label.margin();
  auto place = metrics.boundingRect(label.contentsRect().adjusted(margin, margin, -margin, -margin),
                                    flags, text);
  if (isOneLine)
    place.setBottom(place.top() + metrics.ascent() + metrics.tightBoundingRect(text).bottom());
  return place;
}

// The visible area of a control. Of a label without a frame and background it is that of the text.
QRect VisibleArea(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  const bool isText =
      label && label->frameShape() == QFrame::NoFrame && !label->autoFillBackground();
  return isText ? TextOf(*label).translated(label->pos()) & label->geometry() : control.geometry();
}

bool Fits(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return label->text().isEmpty() ||
           label->rect().adjusted(-1, 0, 1, 0).contains(TextOf(*label));  // italic letters lean out
  // The length of a drive's path depends on the machine.
  if (const auto* box = qobject_cast<const QComboBox*>(&control);
      box && box->objectName() != "Drive1")
    return box->sizeHint().width() <= box->width();
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  if (!button || button->text().isEmpty()) return true;
  QStyleOptionButton option;
  option.initFrom(button);
  const auto element = button->inherits("QCheckBox")      ? QStyle::SE_CheckBoxContents
                       : button->inherits("QRadioButton") ? QStyle::SE_RadioButtonContents
                                                          : QStyle::SE_PushButtonContents;
  const auto text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
  return text.width() <= button->style()->subElementRect(element, &option).width() &&
         text.height() <= button->height();
}

}  // namespace

QString LayoutFaults(const QWidget& control) {
  QString faults;
  const auto& parent = *control.parentWidget();
  if (!parent.rect().contains(control.geometry())) faults += " CUT";
  if (!Fits(control)) faults += " TEXT CUT";
  for (const auto* other : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (other == &control) break;
    if (!other->isVisible() || !control.geometry().intersects(other->geometry())) continue;
    static const QRegularExpression ground("^(frmOPT|frame).*|^(Label1|Shape1)$");
    if (ground.match(other->objectName()).hasMatch()) continue;
    const auto both = VisibleArea(control) & VisibleArea(*other);
    // Neighbours may share one line of pixels.
    if (both.width() > 1 && both.height() > 1) faults += " over " + other->objectName();
  }
  return faults;
}

}  // namespace support
