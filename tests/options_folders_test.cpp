// The tree and the drives of the folders page.
#include <QTreeWidget>

#include "support/ui_test.h"

namespace {

class OptionsFolders : public support::UiTest {};

TEST_F(OptionsFolders, OfTheTreeCanBeSavedAndAreReachedByKeysAndSeen) {
  if (!support::kPosix) GTEST_SKIP() << "names with < can't be made";
  std::string deep = "d0";
  for (int level = 1; level < 24; ++level) deep += "/d" + std::to_string(level) + " of <b>many";
  const auto parent = deep.substr(0, deep.rfind("/d23"));
  for (const auto* folder : {"日本 é/x", "not text \xFF", "two\r\nlines", "back\\slash",
                             "two*folders", "quo\"ted", "d23 of <b>many"})
    write(parent + "/" + folder + "/b.zip", "");
  start();
  Module1::AppFolder += "/" + parent;
  modify("optOPT(4)", [&](QWidget& window) {
    auto& tree = get<QTreeWidget>(window, "Dir1");
    const auto keys = [&](const char* pressed, int times, const char* name) {
      tree.setFocus();
      for (int time = 0; time < times; ++time) act(window, QString("press ") + pressed);
      const auto place = tree.visualItemRect(tree.currentItem());
      EXPECT_TRUE(place.left() >= 0 && place.left() < tree.viewport()->width() / 2) << name;
      EXPECT_TRUE(tipAt(*tree.viewport(), place.center()).ends_with(name)) << name;
    };
    keys("", 0, "/d22 of &lt;b&gt;many");
    keys("Right", 4, "/d23 of &lt;b&gt;many");
    act(window, "click cmdAddPath(0)");
    EXPECT_EQ(get<QListWidget>(window, "lstFolders(0)").count(), 1);
    keys("Left", 4, "/d21 of &lt;b&gt;many");
    keys("Return", 1, "/d21 of &lt;b&gt;many");
    tree.currentItem()->parent()->setExpanded(false);
    keys("*", 1, "/d20 of &lt;b&gt;many");
    EXPECT_TRUE(tree.findItems("x", Qt::MatchExactly | Qt::MatchRecursive).empty());
  });
}

TEST_F(OptionsFolders, OfADriveAreThoseOfTheInnermostOneThatHoldsOurs) {
  if (!support::kPosix) GTEST_SKIP() << "no environment moves the folder of a user there";
  const auto home = qgetenv("HOME");
  const auto parent =
      QString::fromStdString(Module1::AppFolder.substr(0, Module1::AppFolder.rfind('/')));
  const auto alike =
      QString::fromStdString(Module1::AppFolder.substr(0, Module1::AppFolder.rfind(' ')));
  start();
  for (const auto& drive : {parent, alike}) {
    qputenv("HOME", drive.toUtf8());
    modify("optOPT(4)", [&](QWidget& window) {
      auto& drives = get<QComboBox>(window, "Drive1");
      const auto first = drives.currentText();
      EXPECT_EQ(first == drive, drive == parent);
      drives.setCurrentText(drive == parent ? "/" : drive);
      EXPECT_EQ(drives.currentText() == first, drive == alike) << "what can't be read is not taken";
      EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0) == "/", drive == parent);
    });
  }
  qputenv("HOME", home);
}

}  // namespace
