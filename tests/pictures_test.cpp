// Snapshots and icons: which are shown, and which are refused.
#include <QImageWriter>
#include <cstdint>

#include "support/snapshot.h"
#include "support/ui_test.h"

namespace {

class Pictures : public support::UiTest {
 protected:
  // Selects a game and returns the colours of its picture and icon.
  std::string picturesOf(int row) {
    act("click lstGames:" + QString::number(row));
    const auto colour = [this](const char* name) { return support::ColourOf(get(window(), name)); };
    return (colour("imgGames") + " " + colour("imgIcon")).toStdString();
  }
};

TEST_F(Pictures, PicturesHaveTheScreensResolutionAndIconsTheNearestFrame) {
  std::string head("\0\0\1\0\3\0", 6), frames;
  for (const auto& [size, colour] : {std::pair(16, Qt::green), {44, Qt::yellow}, {200, Qt::blue}}) {
    writePicture("frame.ico", colour, {size, size});
    const auto icon = read("frame.ico");
    const auto at = static_cast<std::uint32_t>(6 + 3 * 16 + frames.size());
    head += icon.substr(6, 12) + std::string(reinterpret_cast<const char*>(&at), 4);
    frames += icon.substr(22);
  }
  write("Icons/a.ico", head + frames);
  write("Snaps/a.jpg", "");
  // Lines of one pixel of the screen.
  const auto box = QSize(394, 344) * qApp->devicePixelRatio();
  QImage lines(box, QImage::Format_RGB32);
  for (int y = 0; y < box.height(); ++y)
    for (int x = 0; x < box.width(); ++x) lines.setPixel(x, y, x % 2 ? 0xFFFFFF : 0);
  ASSERT_TRUE(lines.save(QString::fromStdString(path("Snaps/a.jpg").string()), nullptr, 100));
  start();
  // Of the frames 16, 44 and 200 the one nearest to 32 pixels.
  EXPECT_EQ(picturesOf(0), "drawn yellow");
  const auto drawn = get(window(), "imgGames").grab().toImage();
  const auto at = drawn.rect().center();
  EXPECT_GT(std::abs(qGray(drawn.pixel(at)) - qGray(drawn.pixel(at + QPoint(1, 0)))), 200);
}

TEST_F(Pictures, PictureThatCantBeDecodedOrCostsTooMuchLeavesTheOldOne) {
  writePicture("Snaps/a.jpg", Qt::red);
  writePicture("Icons/a.ico", Qt::yellow);
  writePicture("Icons/b.ico", Qt::blue);
  QImageWriter writer(QString::fromStdString(path("Snaps/b.jpg").string()));
  writer.setProgressiveScanWrite(true);
  ASSERT_TRUE(writer.write(QImage(QStringLiteral("Icons/b.ico"))));
  start();
  const auto jpeg = read("Snaps/b.jpg"), icon = read("Icons/b.ico");
  const auto unended = jpeg.substr(0, jpeg.size() - 2);
  const auto scan = unended.substr(unended.rfind("\xFF\xDA"));
  std::string large = jpeg, outside = icon, scans, marks;
  large.replace(large.find("\xFF\xC2") + 5, 4, "\x3F\xFF\x3F\xFF");
  outside.replace(18, 4, "\xF0\xFF\xFF\xFF");
  for (int i = 0; i < 100; ++i) {
    scans += scan;
    marks += "\xFF\xDA";
  }
  // Marks of scans within a segment or after the end must not count.
  const auto padded =
      "\xFF\xD8\xFF\xE1" + std::string("\0\xCA", 2) + marks + jpeg.substr(2) + scans;
  const std::pair<std::string, std::string> rows[] = {
      {"a text file", ""},
      {unended, icon.substr(0, 200)},
      {icon, jpeg},
      {large, outside},
      {unended + scans + "\xFF\xD9", std::string("\0\0\1\0\xFF\xFF", 6)},
      {padded, icon}};
  for (const auto& [picture, frames] : rows) {
    write("Snaps/b.jpg", picture);
    write("Icons/b.ico", frames);
    EXPECT_EQ(picturesOf(0), "red yellow");
    const bool isGood = frames == icon;
    EXPECT_EQ(picturesOf(1), isGood ? "blue blue" : "red yellow") << picture.size();
  }
  // Valid files that are too large.
  for (const auto* name : {"Snaps/b.jpg", "Icons/b.ico"})
    std::filesystem::resize_file(path(name), 2147483648);
  for (const int row : {0, 1}) EXPECT_EQ(picturesOf(row), "red yellow");
}

}  // namespace
