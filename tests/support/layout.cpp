#include <QAbstractButton>
#include <QLabel>
#include <QMainWindow>
#include <QStyleOptionButton>
#include <set>

#include "support/ui_test.h"

namespace support {
namespace {

std::string NameOf(const QWidget& control) {
  return control.objectName().section('(', 0, 0).toStdString();
}

// Whether the second is meant to lie on the first.
bool IsMeant(const QWidget& under, const QWidget& above) {
  const std::set<std::string> meant = {"frmOPT optOPT",
                                       "frame optADV",    // tabs cut into their page's frame
                                       "Label1 lblInfo",  // a bar and the text on it
                                       "Label1 Label2", "Label6 Label5"};  // a title and its shadow
  return meant.contains(NameOf(under) + " " + NameOf(above));
}

bool IsFrameOf(const QWidget& outer, const QWidget& inner) {
  const auto* frame = qobject_cast<const QLabel*>(&outer);
  const bool hasLine = frame ? frame->frameShape() != QFrame::NoFrame
                             : outer.metaObject()->className() == QByteArray("QFrame");
  return hasLine && outer.geometry().contains(inner.geometry());
}

// The font in which a label that is too narrow draws its one line.
QFont FontOf(const QLabel& label) {
  auto font = label.font();
  if (!label.wordWrap() && !label.text().contains('\n') &&
      label.fontMetrics().horizontalAdvance(label.text()) > label.contentsRect().width())
    font.setPixelSize(font.pixelSize() * 8 / 10);
  return font;
}

// Where the text of a label stands, in its own coordinates; of one line no room for letters below
// the line that it does not have.
QRect TextOf(const QLabel& label) {
  const auto flags =
      static_cast<int>(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
  const QFontMetrics metrics(FontOf(label));
  const int margin = label.margin();
  const auto room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
  auto text = metrics.boundingRect(room, flags, label.text());
  if (text.height() < 2 * metrics.height())
    text.setBottom(text.top() + metrics.ascent() +
                   metrics.tightBoundingRect(label.text()).bottom());
  return text;
}

// What of a control is seen: of a label without a line around it its text.
QRect SeenOf(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (!label || label->frameShape() != QFrame::NoFrame || label->autoFillBackground())
    return control.geometry();
  return TextOf(*label).translated(label->pos()) & label->geometry();
}

bool Fits(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return label->text().isEmpty() ||
           label->rect().adjusted(-1, 0, 1, 0).contains(TextOf(*label));  // letters lean out
  // Drives are as long as they are.
  if (const auto* box = qobject_cast<const QComboBox*>(&control); box && NameOf(*box) != "Drive1")
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

void ExpectLaidOutIn(const QWidget& parent) {
  QList<QWidget*> seen;
  for (auto* control : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!control->isVisible() || control->objectName().isEmpty()) continue;
    const auto what = control->window()->objectName().toStdString() + "." +
                      control->objectName().toStdString() + " \"" +
                      control->property("text").toString().toStdString() + "\"";
    EXPECT_TRUE(parent.rect().contains(control->geometry())) << what << " is cut off";
    EXPECT_TRUE(Fits(*control)) << what << " has its text cut off";
    for (const auto* other : seen) {
      // Neighbours may share a line.
      const auto both = SeenOf(*control) & SeenOf(*other);
      EXPECT_TRUE(both.width() <= 1 || both.height() <= 1 || IsMeant(*control, *other) ||
                  IsMeant(*other, *control) || IsFrameOf(*control, *other) ||
                  IsFrameOf(*other, *control))
          << what << " lies on " << other->objectName().toStdString();
    }
    seen.append(control);
    if (control->metaObject()->className() == QByteArray("QWidget")) ExpectLaidOutIn(*control);
  }
}

}  // namespace

void ExpectLaidOut(const QWidget& window) {
  if (const auto* form = qobject_cast<const QMainWindow*>(&window))
    ExpectLaidOutIn(*form->centralWidget());
}

}  // namespace support
