// The tree and the drives of the folders page.
#include <QTreeWidget>

#include "support/ui_test.h"

namespace {

class OptionsFolders : public support::UiTest {};

TEST_F(OptionsFolders, TakeADriveWithoutAnEntryButNoneThatCantBeRead) {
  if (support::kPosix) GTEST_SKIP() << "drives are folders, which have entries";
  start();
  modify("optOPT(4)", [&](QWidget& window) {
    auto& drives = get<QComboBox>(window, "Drive1");
    for (const auto* drive : {"Y:\\", "X:\\"}) drives.setCurrentIndex(drives.findText(drive));
    EXPECT_EQ(drives.currentText(), "Y:\\");
    EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0), "Y:\\");
  });
}

TEST_F(OptionsFolders, BeginAtTheInnermostDriveThatContainsTheProgram) {
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
      EXPECT_EQ(drives.currentText() == first, drive == alike)
          << "a drive that can't be read is not accepted";
      EXPECT_EQ(get<QTreeWidget>(window, "Dir1").currentItem()->text(0) == "/", drive == parent);
    });
  }
  qputenv("HOME", home);
}

}  // namespace
