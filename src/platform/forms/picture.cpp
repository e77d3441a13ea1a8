#include "platform/forms/picture.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <algorithm>
#include <cstdlib>
#include <map>

#include "base/failure.h"
#include "platform/files.h"
#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"

namespace forms {

struct Picture::Data {
  QPixmap pixmap;
  QIcon icon;
};

namespace {

// Limits on memory and time. A progressive JPEG is kept in memory as a whole while it is decoded,
// and each of its scans processes all of it.
constexpr long long kLargestFile = 64 << 20;
constexpr int kLargestSide = 16384;
constexpr qint64 kMaxPixels = 40'000'000;
constexpr qsizetype kMaxScans = 64;

// Throws if the JPEG has too many scans, or no end mark because it was cut off, which the decoder
// would accept. Bytes after the end mark are ignored.
void CheckScans(const QByteArray& jpeg) {
  constexpr auto kStart = 0xD8, kEnd = 0xD9, kScan = 0xDA, kFirstRestart = 0xD0, kAlone = 0x01;
  const auto byte = [&](qsizetype at) {
    if (at >= jpeg.size()) throw base::Failure("cut off");
    return static_cast<unsigned char>(jpeg[at]);
  };
  int scans = 0;
  for (qsizetype at = 0;;) {
    // Skips coded data. In it, FF is a data byte if a zero follows.
    while (byte(at) != 0xFF || byte(at + 1) == 0xFF || byte(at + 1) == 0) ++at;
    const auto mark = byte(at + 1);
    at += 2;
    if (mark == kEnd) return;
    if (mark == kAlone || (mark >= kFirstRestart && mark <= kStart)) continue;
    if (mark == kScan && ++scans > kMaxScans) throw base::Failure("too many scans");
    at += byte(at) << 8 | byte(at + 1);
  }
}

// Moves the reader to the frame whose width is nearest to `wantedWidth`. The number of frames in
// the file may be wrong, so no more are looked at than a file of this size can list.
void ChooseFrame(QImageReader& reader, int wantedWidth) {
  constexpr qint64 kListEntryBytes = 16;
  const auto frames =
      std::min<qint64>(reader.imageCount(), reader.device()->size() / kListEntryBytes);
  int best = 0;
  int bestDistance = kLargestSide;
  for (int frame = 0; frame < frames && reader.jumpToImage(frame); ++frame) {
    const int distance = std::abs(reader.size().width() - wantedWidth);
    if (distance < bestDistance) {
      best = frame;
      bestDistance = distance;
    }
  }
  reader.jumpToImage(best);
}

// With the format given, the toolkit does not load all its decoders to find the right one.
QPixmap ReadAsset(const char* name, const char* format) {
  QImageReader reader(QStringLiteral(":/%1.%2").arg(QLatin1String(name), QLatin1String(format)),
                      format);
  reader.setAutoDetectImageFormat(false);
  return QPixmap::fromImage(reader.read());
}

}  // namespace

const QPixmap& PixmapOf(const Picture& picture) {
  static const QPixmap none;
  return picture.data() ? picture.data()->pixmap : none;
}

QIcon IconOf(const Picture& picture) { return picture.data() ? picture.data()->icon : QIcon(); }

QIcon WindowIcon() {
  constexpr int kTwips = 480;
  return IconOf(Picture::ProgramIcon(kTwips));
}

Picture Picture::FromFile(const std::string& path, const char* format, int width, int height) {
  const double scale = qGuiApp->devicePixelRatio();
  const QSize wanted = QSize(ToPixels(width), ToPixels(height)) * scale;
  auto bytes = QByteArray::fromStdString(platform::ReadBytes(path, kLargestFile));
  const bool isIcon = height == 0;
  if (!isIcon) CheckScans(bytes);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  if (isIcon) ChooseFrame(reader, wanted.width());
  const auto size = reader.size();
  if (size.width() > kLargestSide || size.height() > kLargestSide ||
      qint64{size.width()} * size.height() > kMaxPixels)
    throw base::Failure("picture too large");
  if (!isIcon) reader.setScaledSize(wanted);
  auto image = reader.read();
  if (image.isNull()) throw base::Failure("not a picture");
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

// Each picture is decoded only once, although a dialog is created anew at each opening.
Picture Picture::FromAsset(const std::string& name) {
  static std::map<std::string, Picture> decoded;
  auto& picture = decoded[name];
  if (picture.data()) return picture;
  const QIcon icon(QStringLiteral(":/") + ToQString(name));
  picture =
      Picture(std::make_shared<const Data>(Data{icon.pixmap(icon.availableSizes().first()), icon}));
  return picture;
}

Picture Picture::DefaultSnapshot() {
  const bool fine = qGuiApp->devicePixelRatio() > 1;
  auto pixmap = ReadAsset(fine ? "default@2x" : "default", "jpg");
  pixmap.setDevicePixelRatio(fine ? 2 : 1);
  return Picture(std::make_shared<const Data>(Data{std::move(pixmap), {}}));
}

Picture Picture::ProgramIcon(int size) {
  static QIcon forWindows;
  static QIcon everySize;
  if (forWindows.isNull()) {
    for (const char* name : {"icon_16", "icon_24", "icon_32", "icon_48", "icon_64"})
      forWindows.addPixmap(ReadAsset(name, "png"));
    everySize = forWindows;
    everySize.addPixmap(ReadAsset("icon_128", "png"));
  }
  const QSize pixels(ToPixels(size), ToPixels(size));
  return Picture(std::make_shared<const Data>(Data{everySize.pixmap(pixels), forWindows}));
}

}  // namespace forms
