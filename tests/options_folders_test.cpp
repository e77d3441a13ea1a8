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
  write(".hidden/x", "");
  const auto app = QString::fromStdString(AppFolder);
  options([&](QWidget& window) {
    page(window, 4);
    EXPECT_EQ(rows(window, 1), QStringList({"/s/<b>one*", "/s/2", "/s/3"}));
    EXPECT_EQ(get(window, "lstFolders(1)").toolTip(), "<span>/s/&lt;b&gt;one</span>");
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
    EXPECT_EQ(list.toolTip(), "/s/2");
    for (const auto& left :
         {QStringList({"/s/<b>one*", "/s/3"}), QStringList({"/s/3*"}), QStringList()}) {
      press(window, "cmdRemovePath(1)");
      EXPECT_EQ(rows(window, 1), left);
    }
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "10000");
    save(window);
  });
  EXPECT_EQ(saved(), "[ Global ]|;ROMpaths=" + AppFolder + "/.hidden*" + AppFolder + "/.hidden|");
}

TEST_F(OptionsFolders, RemovingNeedsASelectedRow) {
  startWith("[ Global ]\n;ROMpaths=/r\n");
  options([](QWidget& window) {
    page(window, 4);
    get<QListWidget>(window, "lstFolders(0)").clearSelection();
    const WhenModal box("", [](QWidget& message) {
      EXPECT_EQ(message.windowTitle(), "Error");
      EXPECT_EQ(support::TextOf(message, "qt_msgbox_label"), "Select an item from the list.");
    });
    press(window, "cmdRemovePath(0)");
    EXPECT_EQ(rows(window, 0), QStringList({"/r"}));
  });
}

TEST_F(OptionsFolders, ChoosingAShaderLocksThePage) {
  startWith("[ Global ]\n;ROMpaths=/r\n");
  write("shaders/b.fs", "");
  write("shaders/.A.fs", "");
  write("empty/nothing/x", "");
  options([](QWidget& window) {
    page(window, 4);
    goTo(window, "empty");
    {
      const WhenModal box("", [](QWidget& message) {
        EXPECT_EQ(message.windowTitle(), "Oops!");
        EXPECT_EQ(support::TextOf(message, "qt_msgbox_label"), "The selected folder is empty!");
      });
      press(window, "cmdAddPath(3)");
    }
    EXPECT_EQ(enabled(window, "cmdAddPath"), "11111");
    goTo(window, "shaders");
    press(window, "cmdAddPath(3)");
    EXPECT_EQ(rows(window, 3), QStringList("<-- Select the Shader file with double clic"));
    auto& target = get<QListWidget>(window, "lstFolders(3)");
    EXPECT_EQ(target.palette().color(QPalette::Text), QColor(255, 0, 0));
    EXPECT_TRUE(target.font().bold());
    for (const auto* name : {"optOPT", "cmdAddPath", "cmdRemovePath"})
      EXPECT_EQ(enabled(window, name), "00000") << name;
    EXPECT_EQ(enabled(window, "lstFolders"), "00010");
    EXPECT_FALSE(get(window, "cmdSave").isEnabled() || get(window, "btnCancel").isEnabled());
    EXPECT_FALSE(get(window, "Dir1").isVisible() || get(window, "Drive1").isVisible());
    auto& files = get<QListWidget>(window, "File1");
    EXPECT_EQ(files.currentItem()->text(), ".A.fs");
    const auto at = files.visualItemRect(files.item(1)).center();
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(files.viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(rows(window, 3), QStringList(QString::fromStdString(AppFolder) + "/shaders\\b.fs*"));
    EXPECT_FALSE(target.font().bold());
    EXPECT_EQ(enabled(window, "cmdAddPath"), "11101");
    EXPECT_EQ(enabled(window, "cmdRemovePath"), "10010");
    EXPECT_TRUE(get(window, "Dir1").isVisible() && !files.isVisible());
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

TEST_F(OptionsFolders, UnreadableDrivePutsTheListBack) {
  const auto home = qgetenv("HOME");
  qputenv("HOME", "/not there");
  startWith("");
  options([](QWidget& window) {
    auto& drives = get<QComboBox>(window, "Drive1");
    auto& tree = get<QTreeWidget>(window, "Dir1");
    const auto before = tree.currentItem()->text(0);
    EXPECT_EQ(before.toStdString(), AppFolder.substr(AppFolder.rfind('/') + 1));
    drives.setCurrentIndex(drives.findText("/not there"));
    EXPECT_EQ(drives.currentText(), "/");
    EXPECT_EQ(tree.currentItem()->text(0), before);
  });
  qputenv("HOME", home);
}

}  // namespace
