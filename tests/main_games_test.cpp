// The list of games, its filter, and the panel of the selected game.
#include <QApplication>
#include <QImage>
#include <QImageWriter>
#include <QTest>

#include "core/module1.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/ui_test.h"

namespace {

using namespace Module1;

class MainGames : public support::UiTest {
 protected:
  static void makePicture(const char* name, Qt::GlobalColor colour, int width = 32,
                          int height = 32) {
    write(name, "");
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(QString::fromStdString(path(name).string())));
  }
  // The control as it is drawn: the letter of a plain red, yellow, green or blue, else "?".
  char colourOf(const char* name) const {
    const auto image = widget(name).grab().toImage();
    const auto pixel = image.pixelColor(image.rect().center());
    return pixel.saturation() < 240 ? '?' : "rygcbm"[(pixel.hue() + 30) / 60 % 6];
  }
};

TEST_F(MainGames, AreSortedWithoutRegardToCaseAndKeepTheirRow) {
  addGames("zebra <b>&%s%1[*] beta");
  write("roms/beta.zip", "");
  start();
  EXPECT_EQ(rows(list()), "<B>&%S%1[*]*|BETA|ZEBRA|");
  clickRow(1);
  EXPECT_TRUE(widget("cmdPlay").isEnabled());
  key(Qt::Key_Down);
  EXPECT_EQ(caption("lblGameTitle"), "ZEBRA");
  EXPECT_FALSE(widget("cmdPlay").isEnabled());
  key(Qt::Key_B);
  EXPECT_EQ(caption("lblGameTitle"), "BETA");
}

TEST_F(MainGames, FilterRefillsTheListAndAnEmptyOneResetsThePanelAndPlaysNothing) {
  addGames("a b c");
  makePicture("Snaps/b.jpg", Qt::red);
  write("roms/b.zip", "");
  write("Config/Kestrivane.ini", ";GameListPref=1\r\n");
  start();
  EXPECT_EQ(rows(list()) + caption("lblInfo"), "B*| 1 game listed");
  click("optGames(0)");
  EXPECT_EQ(rows(list()) + caption("lblInfo"), "A*|B|C| 3 games listed");
  clickRow(1);
  click("optGames(0)");
  EXPECT_EQ(rows(list()), "A*|B|C|") << "a click on the chosen button too";
  GameCatalog[1].Available = false;
  widget("optGames(0)").setFocus();
  key(Qt::Key_Right);
  EXPECT_EQ(QApplication::focusWidget(), &list());
  EXPECT_EQ(caption("lblGameTitle") + caption("lblInfo") + caption("lblTP"), "NO GAMES AVAILABLE");
  EXPECT_FALSE(widget("cmdPlay").isEnabled() || widget("cmdConfGame").isEnabled());
  EXPECT_EQ(colourOf("imgGames"), '?');
  key(Qt::Key_Return);
  EXPECT_EQ(LaunchRequest.RomName, "");
  click("optGames(0)");
  EXPECT_TRUE(widget("cmdConfGame").isEnabled());
}

TEST_F(MainGames, PicturesAreAsFineAsTheScreenAndIconsTheNearestFrame) {
  addGames("a");
  std::string head("\0\0\1\0\3\0", 6), frames;
  for (const auto& [size, colour] : {std::pair(16, Qt::green), {44, Qt::yellow}, {200, Qt::blue}}) {
    makePicture("frame.ico", colour, size, size);
    const auto icon = read("frame.ico");
    const auto at = static_cast<std::uint32_t>(6 + 3 * 16 + frames.size());
    head += icon.substr(6, 12) + std::string(reinterpret_cast<const char*>(&at), 4);
    frames += icon.substr(22);
  }
  write("Icons/a.ico", head + frames);
  write("Snaps/a.jpg", "");
  // Lines as thin as the screen has them.
  const auto box = QSize(394, 344) * qApp->devicePixelRatio();
  QImage lines(box, QImage::Format_RGB32);
  for (int y = 0; y < box.height(); ++y)
    for (int x = 0; x < box.width(); ++x) lines.setPixel(x, y, x % 2 ? 0xFFFFFF : 0);
  ASSERT_TRUE(lines.save(QString::fromStdString(path("Snaps/a.jpg").string()), nullptr, 100));
  start();
  EXPECT_EQ(colourOf("imgIcon"), 'y');
  const auto drawn = widget("imgGames").grab().toImage();
  const auto at = drawn.rect().center();
  EXPECT_GT(std::abs(qGray(drawn.pixel(at)) - qGray(drawn.pixel(at + QPoint(1, 0)))), 200);
}

TEST_F(MainGames, TipTellsWhereTheArchiveIsOrBelongs) {
  addGames("a b <b>c");
  write("More/B.ZIP", "");
  write("Config/Kestrivane.ini",
        platform::EncodeCodePage(";ROMpaths=" + AppFolder + "\\more*/gone\r\n"));
  start();
  const auto in = [](const char* name) { return platform::SystemPath(AppFolder + name); };
  const auto missing =
      ".zip\n" + in("\\roms") + "\n" + in("\\more") + "\n" + platform::SystemPath("/gone");
  const std::string tips[] = {"&lt;b&gt;c" + missing, "a" + missing, in("\\more\\b.zip")};
  for (int row = 0; row < 3; ++row) {
    clickRow(row);
    EXPECT_EQ(tipAt(*list().viewport(), placeOf(list(), row)), tips[row]);
    EXPECT_EQ(tipAt(widget("cmdPlay"), {5, 5}), tips[row]);
  }
  EXPECT_EQ(widget("cmdPlay").toolTip().toStdString(), tips[2]) << "as assistive technology has it";
}

TEST_F(MainGames, PicturesComeFromTheFirstFolderUpToAGap) {
  addGames("a b c d");
  makePicture("Snaps/a.jpg", Qt::red, 8, 900);
  for (const auto* name : {"two/a.JPG", "two/b.JPG"}) makePicture(name, Qt::blue);
  makePicture("four/c.jpg", Qt::green);
  makePicture("icons1/b.ico", Qt::yellow);
  const auto in = [](const char* folder) { return AppFolder + "/" + folder; };
  const auto folders = in("one") + "*" + in("TWO") + "*" + in("three") + "*" + in("four");
  write("Config/Kestrivane.ini",
        platform::EncodeCodePage(";SNAPpaths=" + folders + "\r\n;ICONpaths=" + in("icons1") +
                                 "\r\n"));
  start();
  std::string colours;
  for (int row = 0; row < 4; ++row) {
    clickRow(row);
    colours += {colourOf("imgGames"), colourOf("imgIcon")};
  }
  EXPECT_EQ(colours, "r?by????");
  SnapPaths = {in("Snaps"), "", in("four"), "", ""};
  clickRow(2);
  EXPECT_EQ(colourOf("imgGames"), '?') << "an empty entry ends the list";
}

TEST_F(MainGames, PictureThatCantBeDecodedOrCostsTooMuchLeavesTheOldOne) {
  addGames("a b");
  makePicture("Snaps/a.jpg", Qt::red);
  makePicture("Icons/a.ico", Qt::yellow);
  makePicture("Icons/b.ico", Qt::blue);
  QImageWriter writer(QString::fromStdString(path("Snaps/b.jpg").string()));
  writer.setProgressiveScanWrite(true);
  ASSERT_TRUE(writer.write(QImage(QStringLiteral("Icons/b.ico"))));
  start();
  const auto jpeg = read("Snaps/b.jpg");
  const auto icon = read("Icons/b.ico");
  const auto ofSize = [&](const char* heightAndWidth) {
    auto bytes = jpeg;
    return bytes.replace(bytes.find("\xFF\xC2") + 5, 4, heightAndWidth, 4);
  };
  auto manyScans = jpeg.substr(0, jpeg.size() - 2);
  const auto scan = manyScans.substr(manyScans.rfind("\xFF\xDA"));
  for (int i = 0; i < 100; ++i) manyScans += scan;
  auto outside = icon;
  outside.replace(18, 4, "\xF0\xFF\xFF\xFF");
  // Another picture behind the end, and marks of scans in what a segment holds and behind the end.
  auto padded = jpeg.substr(0, 2) + std::string("\xFF\xE1\0\xCA", 4);
  for (int i = 0; i < 100; ++i) padded += "\xFF\xDA";
  padded += jpeg.substr(2) + scan + padded;
  const std::pair<std::string, std::string> rows[] = {
      {"a text file", ""},
      {jpeg.substr(0, 200), icon.substr(0, 20)},
      {jpeg.substr(0, jpeg.size() - 2), icon.substr(0, 200)},
      {icon, jpeg},
      {ofSize("\xFF\xDC\xFF\xDC"), outside},
      {ofSize("\x3F\xFF\x3F\xFF"), std::string(5000, '\xFF')},
      {manyScans + "\xFF\xD9", std::string("\0\0\1\0\xFF\xFF", 6)},
      {jpeg, icon}};
  for (const auto& row : rows) {
    write("Snaps/b.jpg", row.first);
    write("Icons/b.ico", row.second);
    for (const auto* name : {"Snaps/b.jpg", "Icons/b.ico"})  // the last are good but for their size
      if (&row == std::end(rows) - 1) std::filesystem::resize_file(path(name), 2147483648);
    clickRow(0);
    clickRow(1);
    EXPECT_EQ(std::string({colourOf("imgGames"), colourOf("imgIcon")}), "ry") << &row - rows;
  }
  write("Snaps/b.jpg", padded);
  clickRow(0);
  clickRow(1);
  EXPECT_EQ(colourOf("imgGames"), 'b') << "complete, whatever stands behind it";
}

TEST_F(MainGames, FiguresAreThoseOfTheLastRowOfTheGame) {
  addGames("a b");
  start();
  EXPECT_EQ(caption("lblTP"), "Play Count: 0\r\nPlay Time: 0:00:00");
  PlayLog[0] = {"a", "9", "9"};
  PlayLog[1] = {"A", "9", "9"};
  PlayLog[4] = {"a", "behind the gap", "9"};
  const char* const rows[][3] = {{"3", "3725", "1:02:05"}, {"x<b>", "", "0:00:00"}};
  for (const auto& [plays, seconds, time] : rows) {
    PlayLog[2] = {"a", plays, seconds};
    clickRow(0);
    EXPECT_EQ(caption("lblTP"), std::string("Play Count: ") + plays + "\r\nPlay Time: " + time);
  }
}

}  // namespace
