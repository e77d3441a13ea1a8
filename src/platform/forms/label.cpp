#include "platform/forms/label.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QStyle>
#include <QTextLayout>
#include <algorithm>
#include <string>

#include "platform/forms/native.h"

namespace forms {
namespace {

// Breaks the text into lines that fit. If there is too much, the last whole line ends in an
// ellipsis.
QString Wrapped(const QString& text, const QFont& font, const QSize& room) {
  const QFontMetrics metrics(font);
  const auto maxLines = std::max(room.height() / metrics.lineSpacing(), 1);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QTextLayout layout(text, font);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(room.width());
    const bool last = lines.size() + 1 == maxLines;
    const auto rest = text.mid(line.textStart());
    lines << (last ? metrics.elidedText(rest, Qt::ElideRight, room.width())
                   : rest.left(line.textLength()).trimmed());
    if (last) break;
  }
  layout.endLayout();
  return lines.join('\n');
}

class NativeLabel : public QLabel {
 public:
  NativeLabel(QWidget* parent, const Label& label, bool spread)
      : QLabel(parent), label_(label), spread_(spread) {
    setTextFormat(Qt::PlainText);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    drawFrame(&painter);
    const auto room = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
    if (spread_)
      paintSpread(painter, room);
    else
      paintText(painter, room);
    painter.end();
    if (hasFocus()) PaintFocusRing(*this, 1);
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
  void paintText(QPainter& painter, const QRect& room) const {
    auto shown = text().remove('\r');
    if (wordWrap())
      shown = Wrapped(shown, font(), room.size());
    else if (!shown.contains('\n'))
      shown = fitted(painter, shown, room.width());
    // The toolkit ignores a space at the end of a line when it aligns the text, but not a
    // non-breaking one.
    static const QRegularExpression lastBlank(QStringLiteral(" (?=\n|$)"));
    shown.replace(lastBlank, QChar(QChar::Nbsp));
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
  }
  static QString fitted(QPainter& painter, const QString& line, int width) {
    constexpr int kSmallestPercent = 80;
    const int needed = painter.fontMetrics().horizontalAdvance(line);
    if (needed <= width) return line;
    auto smaller = painter.font();
    smaller.setPixelSize(std::max(smaller.pixelSize() * kSmallestPercent / 100,
                                  smaller.pixelSize() * width / needed));
    painter.setFont(smaller);
    return painter.fontMetrics().elidedText(line, Qt::ElideRight, width);
  }
  void paintSpread(QPainter& painter, const QRect& room) const {
    static const QRegularExpression blanks(QStringLiteral("\\s{2,}"));
    const auto pieces = text().split(blanks);
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
  // If the box is high enough, leaves a pixel for accents on capitals, which exceed the line.
  if (ToPixels(box.height) * 3 >= widget()->font().pixelSize() * 4)
    widget()->setContentsMargins(0, 1, 0, 0);
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
  if (wrap) widget()->setContentsMargins(0, 0, 0, 0);
}

void Label::setBorder(bool border) {
  Native(widget())->setFrameStyle(border ? static_cast<int>(QFrame::Box) |
                                               static_cast<int>(QFrame::Plain)
                                         : static_cast<int>(QFrame::NoFrame));
}

void Label::makeLink() {
  link_ = true;
  setRole(Role::Link);
  SetTakesEnter(*widget());
  constexpr double kTextContrast = 4.5;
  auto palette = widget()->palette();
  palette.setColor(
      QPalette::WindowText,
      WithContrast(palette.color(QPalette::Link), palette.color(QPalette::Window), kTextContrast));
  widget()->setPalette(palette);
  widget()->setFocusPolicy(Qt::StrongFocus);
  widget()->setCursor(QCursor(QPixmap(QStringLiteral(":/link_pointer.png")), 11, 4));
}

}  // namespace forms
