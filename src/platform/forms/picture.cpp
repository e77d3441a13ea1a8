#include "platform/forms/picture.h"

#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <cstdlib>
#include <map>
#include <stdexcept>

#include "platform/files.h"
#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"

namespace forms {

struct Picture::Data {
  QPixmap pixmap;
  QIcon icon;
};

namespace {

constexpr int kLargestSide = 16384;

// Moves the reader to the frame whose width is nearest to the one asked for.
void ChooseFrame(QImageReader& reader, int wantedWidth) {
  int best = 0;
  int bestDistance = kLargestSide;
  for (int frame = 0; frame < reader.imageCount() && reader.jumpToImage(frame); ++frame) {
    const int distance = std::abs(reader.size().width() - wantedWidth);
    if (distance < bestDistance) {
      best = frame;
      bestDistance = distance;
    }
  }
  reader.jumpToImage(best);
}

}  // namespace

const QPixmap& PixmapOf(const Picture& picture) {
  static const QPixmap none;
  return picture.data() ? picture.data()->pixmap : none;
}

QIcon IconOf(const Picture& picture) { return picture.data() ? picture.data()->icon : QIcon(); }

Picture Picture::FromFile(const std::string& path, const char* format, int width, int height) {
  const double scale = qGuiApp->devicePixelRatio();
  const QSize wanted = QSize(ToPixels(width), ToPixels(height)) * scale;
  QImageReader reader(QString::fromStdString(platform::SystemPath(path)), format);
  reader.setAutoDetectImageFormat(false);
  const bool isIcon = height == 0;
  if (isIcon) ChooseFrame(reader, wanted.width());
  const auto size = reader.size();
  if (size.width() > kLargestSide || size.height() > kLargestSide)
    throw std::runtime_error("picture too large");
  if (!isIcon) reader.setScaledSize(wanted);
  auto image = reader.read();
  if (image.isNull()) throw std::runtime_error("not a picture");
  const int logical = isIcon ? std::min(ToPixels(width), image.width()) : ToPixels(width);
  image.setDevicePixelRatio(static_cast<double>(image.width()) / logical);
  return Picture(std::make_shared<const Data>(Data{QPixmap::fromImage(std::move(image)), {}}));
}

Picture Picture::FromJpeg(const std::string& path, int width, int height) {
  return FromFile(path, "jpeg", width, height);
}

Picture Picture::FromIcon(const std::string& path, int size) {
  return FromFile(path, "ico", size, 0);
}

// Decoded once: every window wants the program's icon.
Picture Picture::FromAsset(const std::string& name) {
  static std::map<std::string, Picture> decoded;
  auto& picture = decoded[name];
  if (picture.data()) return picture;
  const QIcon icon(QStringLiteral(":/") + ToQString(name));
  const auto sizes = icon.availableSizes();
  constexpr int kIconPixels = 32;
  const auto size =
      name.ends_with(".ico") || sizes.empty() ? QSize(kIconPixels, kIconPixels) : sizes.first();
  picture = Picture(std::make_shared<const Data>(Data{icon.pixmap(size), icon}));
  return picture;
}

}  // namespace forms
