// The list of games, its filter, and the panel of the selected game.
#include <QImageWriter>
#include <cstdint>
#include <cstdlib>

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
};

TEST_F(MainGames, AreSortedWithoutRegardToCaseAndTellWhereTheirArchiveIsOrBelongs) {
  addGames("zebra <b>&%s%1[*] beta");
  write("more/beta.zip", "");
  startWith(platform::EncodeCodePage(";ROMpaths=" + AppFolder + "\\more*/gone|"));
  for (const auto* pressed : {"=Home", "=End", "=B"}) {
    use(pressed);
    const auto place = list().visualItemRect(list().currentItem()).center();
    const auto tip = tipAt(*list().viewport(), place);
    note(plain(QString::fromStdString(tip)).toStdString());
    EXPECT_EQ(tipAt(get(window(), "cmdPlay"), {5, 5}), tip);
  }
}

TEST_F(MainGames, FilterRefillsTheListAndAnEmptyOneResetsThePanelAndPlaysNothing) {
  addGames("a b c");
  makePicture("Snaps/b.jpg", Qt::red);
  write("roms/b.zip", "");
  startWith(";GameListPref=1|");
  see(window());
  PlayLog = {{{"a", "9", "9"}, {"b", "x<b>", ""}, {"a", "3", "3725"}, {"A", "9", "9"}}};
  PlayLog[5] = {"a", "behind the gap", "9"};
  use("optGames(0) lstGames@1 optGames(0)");
  GameCatalog[1].Available = false;
  use("optGames(0)=Right =Return");
  EXPECT_EQ(LaunchRequest.RomName, "");
  use("optGames(0)");
}

TEST_F(MainGames, PicturesAreAsFineAsTheScreenAndIconsTheNearestFrame) {
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
  see(window());
  const auto drawn = get(window(), "imgGames").grab().toImage();
  const auto at = drawn.rect().center();
  EXPECT_GT(std::abs(qGray(drawn.pixel(at)) - qGray(drawn.pixel(at + QPoint(1, 0)))), 200);
}

TEST_F(MainGames, PicturesComeFromTheFirstFolderUpToAGap) {
  addGames("a b c d");
  makePicture("Snaps/a.jpg", Qt::red, 8, 900);
  for (const auto* name : {"two/a.JPG", "two/b.JPG"}) makePicture(name, Qt::blue);
  makePicture("four/c.jpg", Qt::green);
  makePicture("icons1/b.ico", Qt::yellow);
  start();
  const auto in = [](const char* folder) { return AppFolder + "/" + folder; };
  SnapPaths = {in("Snaps"), in("one"), in("TWO"), in("three"), in("four")};
  IconPaths[1] = in("icons1");
  use("lstGames@1 lstGames@2 lstGames@3 lstGames@0");
  SnapPaths = {in("Snaps"), "", in("four"), "", ""};  // an empty entry ends the list
  use("lstGames@2");
}

TEST_F(MainGames, PictureThatCantBeDecodedOrCostsTooMuchLeavesTheOldOne) {
  makePicture("Snaps/a.jpg", Qt::red);
  makePicture("Icons/a.ico", Qt::yellow);
  makePicture("Icons/b.ico", Qt::blue);
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
  // Marks of scans in what a segment holds and behind the end count for none.
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
    use("lstGames@0 lstGames@1");
  }
  // Good but for their size.
  for (const auto* name : {"Snaps/b.jpg", "Icons/b.ico"})
    std::filesystem::resize_file(path(name), 2147483648);
  use("lstGames@0 lstGames@1");
}

}  // namespace
