#include "platform/forms/shape.h"

#include <QFrame>

namespace forms {

Shape::Shape(Container& parent, const char* name, const Box& box)
    : Control(new QFrame(parent.clientArea()), name, box, {}) {
  static_cast<QFrame*>(widget())->setFrameStyle(static_cast<int>(QFrame::Box) |
                                                static_cast<int>(QFrame::Plain));
  widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

}  // namespace forms
