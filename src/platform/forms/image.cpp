#include "platform/forms/image.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"

namespace forms {
namespace {

class NativeImage : public QWidget {
 public:
  NativeImage(QWidget* parent, const Image& image, bool stretch)
      : QWidget(parent), image_(image), stretch_(stretch) {}

  void setBorder(bool border) { border_ = border; }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto& pixmap = PixmapOf(image_.picture());
    if (stretch_ && !pixmap.isNull())
      painter.drawPixmap(rect(), pixmap);
    else
      painter.drawPixmap(0, 0, pixmap);
    if (border_) {
      painter.setPen(palette().color(QPalette::Mid).darker());
      painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
  }

 private:
  const Image& image_;
  bool stretch_;
  bool border_ = false;
};

}  // namespace

Image::Image(Container& parent, const char* name, const Box& box, Stretch stretch)
    : Control(new NativeImage(parent.clientArea(), *this, stretch == Stretch::Yes), name, box, {}) {
}

void Image::setPicture(const Picture& picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  widget()->update();
}

void Image::setBorder(bool border) {
  static_cast<NativeImage*>(widget())->setBorder(border);
  widget()->update();
}

}  // namespace forms
