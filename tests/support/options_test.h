#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include "base/text.h"
#include "core/module1.h"
#include "platform/code_page.h"
#include "support/ui_test.h"

namespace support {

// The options dialog over a configuration file of the test's own, driven like the main window.
class OptionsTest : public UiTest {
 protected:
  OptionsTest() { addGames("a b"); }

  // An emulator that lacks nothing, and a file of these lines, each ended by "|", behind the banner
  // and the heading of all games.
  void startWith(const std::string& lines) {
    write("Config/Kestrivane.ini",
          base::ReplaceIgnoringCase(";*** Kestrivane UI\xae|[ Global ]|" + lines, "|", "\r\n"));
    start();
    Module1::EmulatorVersion = "0.3a";
  }

  // Runs the step in the open dialog; it is closed afterwards if it still stands.
  void options(std::function<void(QWidget&)> step) {
    const WhenModal modal("Form2", std::move(step));
    item("mConfig").trigger();
  }
  void gameOptions(int row, std::function<void(QWidget&)> step) {
    const WhenModal modal("Form2", std::move(step));
    clickRow(row);
    click("cmdConfGame");
  }

  // A click near the left end, where a check box has its box.
  static void press(const QWidget& window, const std::string& name) {
    auto& control = get(window, name);
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(9, control.height() / 2));
  }
  static void page(const QWidget& window, int index) {
    press(window, "optOPT(" + std::to_string(index) + ")");
  }
  static void type(const QWidget& window, const std::string& name, Qt::Key key, int times = 1) {
    for (; times > 0; --times) QTest::keyClick(&get(window, name), key);
  }
  static void answer(const QWidget& box, QMessageBox::StandardButton button) {
    dynamic_cast<const QMessageBox&>(box).button(button)->click();
  }
  static void save(const QWidget& window) { press(window, "cmdSave"); }

  static bool fileHas(const std::string& line) {
    return read("Config/Kestrivane.ini").find(line + "\r\n") != std::string::npos;
  }
  // The saved file as startWith takes it, without the bindings.
  static std::string saved() {
    std::string text;
    const auto file = platform::DecodeCodePage(read("Config/Kestrivane.ini"));
    for (const auto line : base::Split(file, base::kLineEnd))
      if (!line.empty() && !line.starts_with(";*") && line != "[ Global ]" &&
          (!line.starts_with("Input") || line.starts_with("InputKey") ||
           line.starts_with("InputMouse")))
        text += std::string(line) + "|";
    return text;
  }
};

}  // namespace support
