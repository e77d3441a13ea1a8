// The folders page: lists, limits, and the choice of a shader file.
#include "support/options_test.h"

namespace {

using namespace Module1;
using support::WhenModal;

class OptionsFolders : public support::OptionsTest {
 protected:
  static std::string folders(const QWidget& window, int index) {
    return rows(get<QListWidget>(window, "lstFolders(" + std::to_string(index) + ")"));
  }
  static std::string enabled(const QWidget& window, const std::string& name) {
    std::string text;
    for (int index = 0; index < 5; ++index)
      text += get(window, name + "(" + std::to_string(index) + ")").isEnabled() ? '1' : '0';
    return text;
  }
  // Shows the folder in the tree, as a person would by opening its parents.
  static void goTo(const QWidget& window, const char* folder) {
    auto& tree = get<QTreeWidget>(window, "Dir1");
    tree.setCurrentItem(tree.findItems(folder, Qt::MatchExactly | Qt::MatchRecursive).first());
  }
};

TEST_F(OptionsFolders, ThreeFoldersCanBeAddedAndRemoved) {
  startWith(";SNAPpaths=/s/<b>one*/s/2*/s/3|");
  write(".hidden/b.zip", "");
  const auto hidden = AppFolder + support::kSeparator + ".hidden";
  options([&](QWidget& window) {
    page(window, 4);
    EXPECT_EQ(folders(window, 1), "/s/<b>one*|/s/2|/s/3|");
    EXPECT_EQ(enabled(window, "cmdAddPath"), "10111");
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "01000");
    goTo(window, ".hidden");
    for (int times = 0; times < 3; ++times) press(window, "cmdAddPath(0)");
    EXPECT_EQ(enabled(window, "cmdAddPath"), "00111");
    press(window, "cmdRemovePath(0)");
    EXPECT_EQ(folders(window, 0), hidden + "|" + hidden + "*|");
    clickRow(get<QListWidget>(window, "lstFolders(1)"), 1);
    auto& list = get(window, "lstFolders(1)");
    for (const std::string left : {"/s/<b>one*|/s/3|", "/s/3*|", ""}) {
      press(window, "cmdRemovePath(1)");
      EXPECT_EQ(folders(window, 1), left);
      EXPECT_EQ(list.toolTip() == "/s/<b>one", left.starts_with("/s/<")) << "of the selected row";
      EXPECT_EQ(list.toolTip().isEmpty(), left.empty());
    }
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "10000");
    save(window);
  });
  EXPECT_EQ(saved(), ";ROMpaths=" + hidden + "*" + hidden + "|");
  EXPECT_NE(settings().find("SNAP3=\n"), std::string::npos) << "none stays behind a gap";
  EXPECT_TRUE(GameCatalog[1].Available) << "the archives were looked for again";
}

TEST_F(OptionsFolders, TreeOffersWhatCanBeSavedAndOpensOneFolderAtATime) {
  startWith("");
  for (const auto* folder : {"deep/er", "日本 é"}) write(std::string(folder) + "/b.zip", "");
  if (support::kPosix) {
    for (const auto* folder :
         {"not text \xFF", "two\r\nlines", "back\\slash", "two*folders", "quo\"ted"})
      write(std::string(folder) + "/b.zip", "");
    std::filesystem::create_symlink(".", path("deep/loop"));
  }
  options([&](QWidget& window) {
    page(window, 4);
    auto& tree = get<QTreeWidget>(window, "Dir1");
    std::string names;
    for (int row = 0; row < tree.currentItem()->childCount(); ++row)
      names += tree.currentItem()->child(row)->text(0).toStdString() + "|";
    EXPECT_EQ(names, "Config|deep|Icons|ROMs|Snaps|日本 é|");
    goTo(window, "deep");
    type(window, "Dir1", Qt::Key_Asterisk);
    EXPECT_EQ(tree.findItems("er", Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
  });
}

TEST_F(OptionsFolders, DeepFoldersAreReachedByKeysAndSeen) {
  if (!support::kPosix) GTEST_SKIP() << "names with < can't be made";
  std::string deep = "d0";
  for (int level = 1; level < 24; ++level) deep += "/d" + std::to_string(level) + " of <b>many";
  write(deep + "/f.fs", "");
  startWith("");
  AppFolder += "/" + deep.substr(0, deep.rfind("/d23"));
  options([&](QWidget& window) {
    page(window, 4);
    auto& tree = get<QTreeWidget>(window, "Dir1");
    const auto expectSeen = [&](const char* name) {
      const auto* item = tree.currentItem();
      EXPECT_EQ(item->text(0).toStdString(), name);
      EXPECT_TRUE(item->isSelected());
      const auto left = tree.visualItemRect(item).left();
      EXPECT_TRUE(left >= 0 && left < tree.viewport()->width() / 2) << name << left;
    };
    expectSeen("d22 of <b>many");
    tree.setFocus();
    for (int presses = 0; presses < 4; ++presses) key(Qt::Key_Right);
    expectSeen("d23 of <b>many");
    EXPECT_TRUE(tipAt(*tree.viewport(), tree.visualItemRect(tree.currentItem()).center())
                    .ends_with("/d23 of &lt;b&gt;many"));
    press(window, "cmdAddPath(0)");
    EXPECT_TRUE(folders(window, 0).ends_with("/d23 of <b>many*|"));
    tree.setFocus();
    for (int presses = 0; presses < 4; ++presses) key(Qt::Key_Left);
    expectSeen("d21 of <b>many");
    EXPECT_FALSE(tree.currentItem()->isExpanded());
    key(Qt::Key_Return);
    EXPECT_TRUE(window.isVisible() && tree.currentItem()->isExpanded());
    tree.currentItem()->parent()->setExpanded(false);
    expectSeen("d20 of <b>many");
  });
}

TEST_F(OptionsFolders, DriveIsTheInnermostOneAndCanBeChanged) {
  if (!support::kPosix) GTEST_SKIP() << "no environment moves the folder of a user there";
  const auto home = qgetenv("HOME");
  const auto parent = std::filesystem::path(AppFolder).parent_path().string();
  const auto alike = AppFolder.substr(0, AppFolder.rfind(' '));
  startWith("");
  for (const auto& drive : {parent, alike}) {
    qputenv("HOME", drive.c_str());
    options([&](QWidget& window) {
      page(window, 4);
      auto& drives = get<QComboBox>(window, "Drive1");
      const auto first = drives.currentText().toStdString();
      EXPECT_EQ(first == drive, drive == parent) << first;
      if (drive == parent) {
        drives.setCurrentIndex(drives.findText("/"));
        EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0), "/");
      } else {
        drives.setCurrentIndex(drives.findText(QString::fromStdString(drive)));
        EXPECT_EQ(drives.currentText().toStdString(), first) << "what can't be read is not taken";
      }
    });
  }
  qputenv("HOME", home);
}

TEST_F(OptionsFolders, ChoosingAShaderLocksThePage) {
  startWith(";ROMpaths=/r|");
  for (const auto* name : {"shaders/b.fs", "shaders/.A.fs", "empty/nothing/x", "shaders/a=b.fs",
                           "shaders/a;b.fs", "shaders/a[ b.fs", "shaders/my kestrivane ui®.fs"})
    write(name, "");
  if (support::kPosix) write("shaders/.not text \xFF.fs", "");
  const auto shaders = AppFolder + support::kSeparator + "shaders";
  options([&](QWidget& window) {
    page(window, 4);
    goTo(window, "empty");
    get<QListWidget>(window, "lstFolders(0)").clearSelection();
    const std::pair<const char*, const char*> refused[] = {
        {"cmdAddPath(3)", "The selected folder is empty!"},
        {"cmdRemovePath(0)", "Select an item from the list."}};
    for (const auto& [button, text] : refused) {
      const WhenModal box("", [text = text](QWidget& message) {
        EXPECT_EQ(textOf(message, "qt_msgbox_label"), text);
      });
      press(window, button);
    }
    EXPECT_EQ(folders(window, 0), "/r|");
    goTo(window, "shaders");
    press(window, "cmdAddPath(3)");
    EXPECT_EQ(folders(window, 3), "<-- Select the Shader file with double clic|");
    const auto plain = get(window, "lstFolders(4)").palette();
    EXPECT_NE(get(window, "lstFolders(3)").palette(), plain) << "a hint";
    for (const auto* name : {"optOPT", "cmdAddPath", "cmdRemovePath"})
      EXPECT_EQ(enabled(window, name), "00000") << name;
    EXPECT_EQ(enabled(window, "lstFolders"), "00010");
    EXPECT_FALSE(get(window, "cmdSave").isEnabled() || get(window, "btnCancel").isEnabled());
    auto& files = get<QListWidget>(window, "File1");
    EXPECT_EQ(files.currentItem()->text(), ".A.fs");
    std::string choices;
    for (int row = 0; row < files.count(); ++row)
      choices += (files.item(row)->flags() == Qt::NoItemFlags ? "-" : "") +
                 files.item(row)->text().toStdString() + "|";
    const std::string odd = support::kPosix ? "-.not text \xEF\xBF\xBD.fs|" : "";
    EXPECT_EQ(choices, ".A.fs|" + odd + "-a;b.fs|-a=b.fs|-a[ b.fs|b.fs|-my kestrivane ui®.fs|");
    clickRow(files, files.count() - 5, true);
    EXPECT_EQ(folders(window, 3), "<-- Select the Shader file with double clic|");
    clickRow(files, files.count() - 2, true);
    EXPECT_EQ(folders(window, 3), shaders + "\\b.fs*|");
    EXPECT_EQ(get(window, "lstFolders(3)").palette(), plain);
    EXPECT_EQ(enabled(window, "cmdAddPath"), "11101");
    save(window);
  });
  EXPECT_EQ(saved(), "FragmentShader = \"" + shaders + "\\b.fs\"|;ROMpaths=/r|");
  options([](QWidget& window) {
    page(window, 4);
    press(window, "cmdAddPath(4)");
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
}

}  // namespace
