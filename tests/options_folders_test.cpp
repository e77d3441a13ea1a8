// The folders page: lists, limits, and the choice of a shader file.
#include "support/options_test.h"

namespace {

using namespace Module1;
using support::WhenModal;

class OptionsFolders : public support::OptionsTest {
 protected:
  static QStringList rows(const QWidget& window, int index) {
    auto& list = get<QListWidget>(window, "lstFolders(" + std::to_string(index) + ")");
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
      texts << list.item(row)->text() + (list.item(row)->isSelected() ? "*" : "");
    return texts;
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
  startWith("[ Global ]\n;SNAPpaths=/s/<b>one*/s/2*/s/3\n");
  write(".hidden/b.zip", "");
  const auto app = QString::fromStdString(AppFolder);
  options([&](QWidget& window) {
    page(window, 4);
    EXPECT_EQ(rows(window, 1), QStringList({"/s/<b>one*", "/s/2", "/s/3"}));
    EXPECT_EQ(enabled(window, "cmdAddPath"), "10111");
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "01000");
    goTo(window, ".hidden");
    press(window, "cmdAddPath(0)");
    press(window, "cmdAddPath(0)");
    EXPECT_EQ(rows(window, 0), QStringList({app + "/.hidden", app + "/.hidden*"}));
    press(window, "cmdAddPath(0)");
    EXPECT_EQ(enabled(window, "cmdAddPath"), "00111");
    press(window, "cmdRemovePath(0)");
    EXPECT_EQ(rows(window, 0), QStringList({app + "/.hidden", app + "/.hidden*"}));
    auto& list = get<QListWidget>(window, "lstFolders(1)");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(1)).center());
    for (const auto& left :
         {QStringList({"/s/<b>one*", "/s/3"}), QStringList({"/s/3*"}), QStringList()}) {
      press(window, "cmdRemovePath(1)");
      EXPECT_EQ(rows(window, 1), left);
    }
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "10000");
    save(window);
  });
  EXPECT_EQ(saved(), "[ Global ]|;ROMpaths=" + AppFolder + "/.hidden*" + AppFolder + "/.hidden|");
  EXPECT_TRUE(GameCatalog[1].Available) << "the archives were looked for again";
}

TEST_F(OptionsFolders, TreeOffersWhatCanBeSavedAndOpensOneFolderAtATime) {
  startWith("[ Global ]\n");
  for (const auto* folder :
       {"not text \xFF", "two\r\nlines", "back\\slash", "two*folders", "deep/er", "日本 é"})
    write(std::string(folder) + "/b.zip", "");
  std::filesystem::create_symlink(".", path("deep/loop"));
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

TEST_F(OptionsFolders, ChoosingAShaderLocksThePage) {
  startWith("[ Global ]\n;ROMpaths=/r\n");
  write("shaders/b.fs", "");
  write("shaders/.A.fs", "");
  write("empty/nothing/x", "");
  write("empty/not text \xFF.fs", "");
  options([](QWidget& window) {
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
    EXPECT_EQ(rows(window, 0), QStringList({"/r"}));
    goTo(window, "shaders");
    press(window, "cmdAddPath(3)");
    EXPECT_EQ(rows(window, 3), QStringList("<-- Select the Shader file with double clic"));
    for (const auto* name : {"optOPT", "cmdAddPath", "cmdRemovePath"})
      EXPECT_EQ(enabled(window, name), "00000") << name;
    EXPECT_EQ(enabled(window, "lstFolders"), "00010");
    EXPECT_FALSE(get(window, "cmdSave").isEnabled() || get(window, "btnCancel").isEnabled());
    auto& files = get<QListWidget>(window, "File1");
    EXPECT_EQ(files.currentItem()->text(), ".A.fs");
    const auto at = files.visualItemRect(files.item(1)).center();
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(files.viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(rows(window, 3), QStringList(QString::fromStdString(AppFolder) + "/shaders\\b.fs*"));
    EXPECT_EQ(enabled(window, "cmdAddPath"), "11101");
    save(window);
  });
  EXPECT_EQ(saved(),
            "[ Global ]|FragmentShader = \"" + AppFolder + "/shaders\\b.fs\"|;ROMpaths=/r|");
  options([](QWidget& window) {
    page(window, 4);
    press(window, "cmdAddPath(4)");
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_EQ(Profiles[1].Slots[7].Value, "");
}

}  // namespace
