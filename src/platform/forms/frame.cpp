#include "platform/forms/frame.h"

#include <QPainter>
#include <QWidget>

#include "platform/forms/native.h"

namespace forms {
namespace {

class NativeFrame : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    // The upper line keeps off the frame's edge, as for a heading, to leave room for buttons above.
    constexpr int kHeadingPixels = 9;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, kHeadingPixels, -1, -1));
  }
};

}  // namespace

Frame::Frame(Container& parent, const char* name, const Box& box)
    : Control(new NativeFrame(parent.clientArea()), name, box, {}) {
  setRole(Role::Group);
}

}  // namespace forms
