#include "platform/forms/label.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include "platform/forms/native.h"

namespace forms {
namespace {

class NativeLabel : public QLabel {
 public:
  NativeLabel(QWidget* parent, const Label& label, bool spread)
      : QLabel(parent), label_(label), spread_(spread) {
    setTextFormat(Qt::PlainText);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    const auto room = contentsRect();
    if (spread_) return paintSpread(room);
    const bool fits = wordWrap() || text().contains('\n') ||
                      fontMetrics().horizontalAdvance(text()) <= room.width();
    if (fits) {
      QLabel::paintEvent(event);
    } else {
      paintFitted(room);
    }
    if (hasFocus()) {
      QPainter painter(this);
      QStyleOptionFocusRect option;
      option.initFrom(this);
      style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) Raise(label_.onClick);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter)
      Raise(label_.onClick);
    else
      QLabel::keyPressEvent(event);
  }

 private:
  void paintFitted(const QRect& room) {
    constexpr int kSmallestPercent = 80;
    auto smaller = font();
    smaller.setPixelSize(
        std::max(smaller.pixelSize() * kSmallestPercent / 100,
                 smaller.pixelSize() * room.width() / fontMetrics().horizontalAdvance(text())));
    QPainter painter(this);
    painter.setFont(smaller);
    const auto fitted = painter.fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          fitted, foregroundRole());
  }
  void paintSpread(const QRect& room) {
    static const QRegularExpression blanks(QStringLiteral("\\s{2,}"));
    const auto pieces = text().split(blanks);
    QPainter painter(this);
    for (qsizetype i = 0; i < pieces.size(); ++i) {
      const auto side = i == 0                   ? Qt::AlignLeft
                        : i + 1 == pieces.size() ? Qt::AlignRight
                                                 : Qt::AlignHCenter;
      style()->drawItemText(&painter, room, side | Qt::AlignTop, palette(), isEnabled(), pieces[i],
                            foregroundRole());
    }
  }

  const Label& label_;
  bool spread_;
};

QLabel* Native(QWidget* widget) { return static_cast<QLabel*>(widget); }

}  // namespace

Label::Label(Container& parent, const char* name, const Box& box, const std::string& caption,
             const FontStyle& font, Align align)
    : Control(new NativeLabel(parent.clientArea(), *this, align == Align::Spread), name, box,
              font) {
  const auto horizontal = align == Align::Left     ? Qt::AlignLeft
                          : align == Align::Centre ? Qt::AlignHCenter
                                                   : Qt::AlignRight;
  Native(widget())->setAlignment(horizontal | Qt::AlignTop);
  setCaption(caption);
}

std::string Label::caption() const { return Native(widget())->text().toStdString(); }

void Label::setCaption(const std::string& caption) {
  auto* label = Native(widget());
  label->setText(ToQString(caption));
  if (!link_) return;
  auto place = ToPixels(box());
  if (const int missing = label->sizeHint().width() - place.width(); missing > 0) {
    if (label->alignment().testFlag(Qt::AlignRight))
      place.setLeft(place.left() - missing);
    else
      place.setRight(place.right() + missing);
  }
  label->setGeometry(place);
}

void Label::setWordWrap(bool wrap) {
  constexpr int kMarginPixels = 2;
  Native(widget())->setWordWrap(wrap);
  Native(widget())->setMargin(wrap ? kMarginPixels : 0);
}

void Label::setBorder(bool border) {
  Native(widget())->setFrameStyle(border ? static_cast<int>(QFrame::Box) |
                                               static_cast<int>(QFrame::Plain)
                                         : static_cast<int>(QFrame::NoFrame));
}

void Label::makeLink() {
  link_ = true;
  setRole(Role::Link);
  widget()->setForegroundRole(QPalette::Link);
  widget()->setFocusPolicy(Qt::StrongFocus);
  widget()->setCursor(QCursor(QPixmap(QStringLiteral(":/link_pointer.png")), 11, 4));
}

}  // namespace forms
