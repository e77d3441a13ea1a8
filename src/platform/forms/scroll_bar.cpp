#include "platform/forms/scroll_bar.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <string>

#include "base/failure.h"
#include "platform/forms/control_accessible.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

class NativeScrollBar : public Ringed<QScrollBar> {
 public:
  explicit NativeScrollBar(QWidget* parent) : Ringed(Qt::Horizontal, parent) {
    setTracking(false);
    setInvertedControls(false);  // Right and Up increase the value
    setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  // Without the focus, the bar ignores the wheel, so that scrolling past it changes nothing.
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
  SetAccessibleValue(*bar, QString::number(value));
  bar->setRange(minimum, maximum);
  bar->setPageStep(largeStep);
  bar->setValue(value);
  QObject::connect(bar, &QScrollBar::valueChanged, bar, [this, bar](int now) {
    SetAccessibleValue(*bar, QString::number(now));
    Raise(onChange);
  });
}

void ScrollBar::setValueText(const std::string& text) {
  SetAccessibleValue(*widget(), ToQString(text));
}

int ScrollBar::value() const { return Native(widget())->value(); }

void ScrollBar::setValue(int value) {
  auto* bar = Native(widget());
  if (value < bar->minimum() || value > bar->maximum()) throw base::Failure("outside the bar");
  bar->setValue(value);
}

}  // namespace forms
