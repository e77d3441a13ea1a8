#include "platform/forms/scroll_bar.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <stdexcept>

#include "platform/forms/native.h"

namespace forms {
namespace {

class NativeScrollBar : public QScrollBar {
 public:
  explicit NativeScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setTracking(false);
    setInvertedControls(false);  // Right and Up for more, as a person expects of a value
    setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  // Styles show no focus on a scroll bar, which is a control of its own here.
  void paintEvent(QPaintEvent* event) override {
    QScrollBar::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
  void focusInEvent(QFocusEvent* event) override {
    QScrollBar::focusInEvent(event);
    update();
  }
  void focusOutEvent(QFocusEvent* event) override {
    QScrollBar::focusOutEvent(event);
    update();
  }
  // The wheel belongs to the page unless the bar was chosen.
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) QScrollBar::wheelEvent(event);
  }
};

QScrollBar* Native(QWidget* widget) { return static_cast<QScrollBar*>(widget); }

}  // namespace

ScrollBar::ScrollBar(Container& parent, const char* name, const Box& box, int minimum, int maximum,
                     int largeStep, int value)
    : Control(new NativeScrollBar(parent.clientArea()), name, box, {}) {
  auto* bar = Native(widget());
  bar->setRange(minimum, maximum);
  bar->setPageStep(largeStep);
  bar->setValue(value);
  QObject::connect(bar, &QScrollBar::valueChanged, bar, [this] { Raise(onChange); });
}

int ScrollBar::minimum() const { return Native(widget())->minimum(); }

int ScrollBar::maximum() const { return Native(widget())->maximum(); }

int ScrollBar::value() const { return Native(widget())->value(); }

void ScrollBar::setValue(int value) {
  if (value < minimum() || value > maximum()) throw std::out_of_range("outside the bar");
  Native(widget())->setValue(value);
}

}  // namespace forms
