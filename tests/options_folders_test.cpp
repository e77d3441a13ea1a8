// The folders page: lists, limits, and the choice of a shader file.
#include <QTreeWidget>

#include "support/ui_test.h"

namespace {

using namespace Module1;

class OptionsFolders : public support::UiTest {
 protected:
  // Shows the folder in the tree, as a person would by opening its parents.
  static void goTo(const QWidget& window, const char* folder) {
    auto& tree = get<QTreeWidget>(window, "Dir1");
    tree.setCurrentItem(tree.findItems(folder, Qt::MatchExactly | Qt::MatchRecursive).first());
  }
};

TEST_F(OptionsFolders, AreUpToThreeThatCanBeAddedAndRemoved) {
  startWith(";SNAPpaths=/s/<b>one*/s/2*/s/3|");
  write(".hidden/b.zip", "");
  modify("optOPT(4)", [this](QWidget& window) {
    goTo(window, ".hidden");
    use(window,
        "cmdAddPath(0) cmdAddPath(0) cmdAddPath(0) cmdRemovePath(0) lstFolders(1)@1 "
        "cmdRemovePath(1) cmdRemovePath(1) cmdRemovePath(1) cmdSave");
  });
  EXPECT_NE(settings().find("SNAP3=\n"), std::string::npos) << "none stays behind a gap";
  use("optGames(1)");  // the archives were looked for again
}

TEST_F(OptionsFolders, OfTheTreeCanBeSavedAndAreReachedByKeysAndSeen) {
  if (!support::kPosix) GTEST_SKIP() << "names with < can't be made";
  std::string deep = "d0";
  for (int level = 1; level < 24; ++level) deep += "/d" + std::to_string(level) + " of <b>many";
  const auto parent = deep.substr(0, deep.rfind("/d23"));
  for (const auto* folder : {"日本 é/x", "not text \xFF", "two\r\nlines", "back\\slash",
                             "two*folders", "quo\"ted", "d23 of <b>many"})
    write(parent + "/" + folder + "/b.zip", "");
  start();
  AppFolder += "/" + parent;
  modify("optOPT(4)", [&](QWidget& window) {
    auto& tree = get<QTreeWidget>(window, "Dir1");
    const auto keys = [&](const char* pressed, int times, const char* name) {
      tree.setFocus();
      use(window, QString("=%1 ").arg(pressed).repeated(times));
      const auto place = tree.visualItemRect(tree.currentItem());
      EXPECT_TRUE(place.left() >= 0 && place.left() < tree.viewport()->width() / 2) << name;
      EXPECT_TRUE(tipAt(*tree.viewport(), place.center()).ends_with(name)) << name;
    };
    keys("", 0, "/d22 of &lt;b&gt;many");
    keys("Right", 4, "/d23 of &lt;b&gt;many");
    use(window, "cmdAddPath(0)");
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
  const auto parent = QString::fromStdString(AppFolder.substr(0, AppFolder.rfind('/')));
  const auto alike = QString::fromStdString(AppFolder.substr(0, AppFolder.rfind(' ')));
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

TEST_F(OptionsFolders, LockThePageWhileAShaderIsChosen) {
  startWith(";ROMpaths=/r|");
  for (const auto* name : {"b.fs", ".A.fs", "a=b.fs", "a;b.fs", "a[ b.fs", "kestrivane ui®.fs"})
    write(std::string("shaders/") + name, "");
  write("empty/nothing/x", "");
  modify("optOPT(4)", [this](QWidget& window) {
    get<QListWidget>(window, "lstFolders(0)").clearSelection();
    goTo(window, "empty");
    use(window, "cmdAddPath(3){Ok} cmdRemovePath(0){Ok}");
    goTo(window, "shaders");
    // Names that the file can't hold are not taken.
    use(window, "cmdAddPath(3) File1@@1 File1@@2 File1@@3 File1@@5 File1@@4 cmdSave");
  });
  EXPECT_NE(file().find("shaders\\b.fs"), std::string::npos);
}

}  // namespace
