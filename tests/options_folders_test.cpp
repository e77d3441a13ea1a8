// The folders page: lists, limits, and the choice of a shader file.
#include <QTreeWidget>

#include "support/ui_test.h"

namespace {

using namespace Module1;

class OptionsFolders : public support::UiTest {
 protected:
  static std::string folders(const QWidget& window, int index) {
    return rows(get<QListWidget>(window, indexed("lstFolders", index)));
  }
  static std::string enabled(const QWidget& window, const char* name) {
    std::string text;
    for (int index = 0; index < 5; ++index)
      text += get(window, indexed(name, index)).isEnabled() ? '1' : '0';
    return text;
  }
  // Shows the folder in the tree, as a person would by opening its parents.
  static void goTo(const QWidget& window, const char* folder) {
    auto& tree = get<QTreeWidget>(window, "Dir1");
    tree.setCurrentItem(tree.findItems(folder, Qt::MatchExactly | Qt::MatchRecursive).first());
  }
};

TEST_F(OptionsFolders, AreUpToThreeThatCanBeAddedAndRemoved) {
  startWith(";SNAPpaths=/s/<b>one*/s/2*/s/3|");
  write(".hidden/b.zip", "");
  const auto hidden = AppFolder + support::kSeparator + ".hidden";
  options([&](QWidget& window) {
    use(window, "optOPT(4)");
    EXPECT_EQ(folders(window, 1), "/s/<b>one*|/s/2|/s/3|");
    EXPECT_EQ(enabled(window, "cmdAddPath"), "10111");
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "01000");
    goTo(window, ".hidden");
    use(window, "cmdAddPath(0) cmdAddPath(0) cmdAddPath(0)");
    EXPECT_EQ(enabled(window, "cmdAddPath"), "00111");
    use(window, "cmdRemovePath(0)");
    EXPECT_EQ(folders(window, 0), hidden + "|" + hidden + "*|");
    clickRow(get<QListWidget>(window, "lstFolders(1)"), 1);
    for (const std::string left : {"/s/<b>one*|/s/3|", "/s/3*|", ""}) {
      use(window, "cmdRemovePath(1)");
      EXPECT_EQ(folders(window, 1), left);
      const auto tip = get(window, "lstFolders(1)").toolTip().toStdString();
      EXPECT_TRUE(left.starts_with(tip) && tip.empty() == left.empty()) << "of the selected row";
    }
    save(window);
  });
  EXPECT_EQ(saved(), ";ROMpaths=" + hidden + "*" + hidden + "|");
  EXPECT_NE(settings().find("SNAP3=\n"), std::string::npos) << "none stays behind a gap";
  click("optGames(1)");
  EXPECT_EQ(rows(list()), "B*|") << "the archives were looked for again";
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
  options([&](QWidget& window) {
    use(window, "optOPT(4)");
    auto& tree = get<QTreeWidget>(window, "Dir1");
    std::string names;
    for (int row = 0; row < tree.currentItem()->childCount(); ++row)
      names += tree.currentItem()->child(row)->text(0).toStdString() + "|";
    EXPECT_EQ(names, "d23 of <b>many|日本 é|");
    const auto afterKeys = [&](Qt::Key pressed, int times, const std::string& name) {
      tree.setFocus();
      for (; times > 0; --times) key(pressed);
      const auto* item = tree.currentItem();
      EXPECT_EQ(item->text(0).toStdString(), name + " of <b>many");
      EXPECT_TRUE(item->isSelected());
      const auto place = tree.visualItemRect(item);
      EXPECT_TRUE(place.left() >= 0 && place.left() < tree.viewport()->width() / 2) << name;
      EXPECT_TRUE(tipAt(*tree.viewport(), place.center()).ends_with(name + " of &lt;b&gt;many"));
    };
    afterKeys(Qt::Key_Right, 0, "d22");
    afterKeys(Qt::Key_Right, 4, "d23");
    use(window, "cmdAddPath(0)");
    EXPECT_TRUE(folders(window, 0).ends_with("/d23 of <b>many*|"));
    afterKeys(Qt::Key_Left, 4, "d21");
    EXPECT_FALSE(tree.currentItem()->isExpanded());
    afterKeys(Qt::Key_Return, 1, "d21");
    EXPECT_TRUE(window.isVisible() && tree.currentItem()->isExpanded());
    tree.currentItem()->parent()->setExpanded(false);
    afterKeys(Qt::Key_Asterisk, 1, "d20");
    EXPECT_TRUE(tree.findItems("x", Qt::MatchExactly | Qt::MatchRecursive).empty());
  });
}

TEST_F(OptionsFolders, OfADriveAreThoseOfTheInnermostOneThatHoldsOurs) {
  if (!support::kPosix) GTEST_SKIP() << "no environment moves the folder of a user there";
  const auto home = qgetenv("HOME");
  const auto parent = std::filesystem::path(AppFolder).parent_path().string();
  const auto alike = AppFolder.substr(0, AppFolder.rfind(' '));
  start();
  for (const auto& drive : {parent, alike}) {
    qputenv("HOME", drive.c_str());
    options([&](QWidget& window) {
      use(window, "optOPT(4)");
      auto& drives = get<QComboBox>(window, "Drive1");
      const auto first = drives.currentText();
      EXPECT_EQ(first.toStdString() == drive, drive == parent);
      drives.setCurrentText(drive == parent ? "/" : QString::fromStdString(drive));
      if (drive == parent)
        EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0), "/");
      else
        EXPECT_EQ(drives.currentText(), first) << "what can't be read is not taken";
    });
  }
  qputenv("HOME", home);
}

TEST_F(OptionsFolders, LockThePageWhileAShaderIsChosen) {
  startWith(";ROMpaths=/r|");
  for (const auto* name : {"b.fs", ".A.fs", "a=b.fs", "a;b.fs", "a[ b.fs", "kestrivane ui®.fs"})
    write(std::string("shaders/") + name, "");
  write("empty/nothing/x", "");
  const auto shaders = AppFolder + support::kSeparator + "shaders";
  options([&](QWidget& window) {
    use(window, "optOPT(4)");
    get<QListWidget>(window, "lstFolders(0)").clearSelection();
    goTo(window, "empty");
    const std::pair<const char*, const char*> refused[] = {
        {"cmdAddPath(3)", "The selected folder is empty!"},
        {"cmdRemovePath(0)", "Select an item from the list."}};
    for (const auto& [name, text] : refused) {
      const auto look = [&, told = text](QWidget& box) {
        EXPECT_EQ(textOf(box, "qt_msgbox_label"), told);
      };
      inModal("", look, [&, button = name] { use(window, button); });
    }
    EXPECT_EQ(folders(window, 0), "/r|");
    goTo(window, "shaders");
    use(window, "cmdAddPath(3)");
    const auto plain = get(window, "lstFolders(4)").palette();
    EXPECT_NE(get(window, "lstFolders(3)").palette(), plain) << "a hint";
    for (const auto* name : {"optOPT", "cmdAddPath", "cmdRemovePath"})
      EXPECT_EQ(enabled(window, name), "00000") << name;
    EXPECT_EQ(enabled(window, "lstFolders"), "00010");
    EXPECT_FALSE(get(window, "cmdSave").isEnabled() || get(window, "btnCancel").isEnabled());
    auto& files = get<QListWidget>(window, "File1");
    EXPECT_EQ(rows(files), ".A.fs*|a;b.fs|a=b.fs|a[ b.fs|b.fs|kestrivane ui®.fs|");
    for (const int row : {1, 2, 3, 5}) {
      clickRow(files, row, true);
      EXPECT_EQ(folders(window, 3), "<-- Select the Shader file with double clic|");
    }
    clickRow(files, 4, true);
    EXPECT_EQ(folders(window, 3), shaders + "\\b.fs*|");
    EXPECT_EQ(get(window, "lstFolders(3)").palette(), plain);
    EXPECT_EQ(enabled(window, "cmdAddPath"), "11101");
    save(window);
  });
  EXPECT_EQ(saved(), "FragmentShader = \"" + shaders + "\\b.fs\"|;ROMpaths=/r|");
}

}  // namespace
