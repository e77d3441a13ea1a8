#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>
#include <functional>
#include <memory>
#include <stdexcept>

#include "support/temp_app.h"
#include "ui/main/form1.h"

namespace support {

// The main window in a fresh AppFolder with an emulator of two games, driven by object names and
// real events. The end of the program and the opening of a web address are recorded instead of
// done.
class UiTest : public TempApp {
 protected:
  UiTest();
  ~UiTest() override;

  // Loads the main window and waits until it is active.
  void start();
  // Writes a configuration file with these lines after the banner and the heading of all games, and
  // with the default bindings if the lines contain none.
  static void writeConfig(std::string lines);
  static void writePicture(const std::string& name, const QColor& colour, QSize size = {32, 32});

  // Does one step. Returns what the step itself shows, such as a tool tip. "NAME:2" is a list's
  // row.
  //   click, double-click, triple-click, hover, focus NAME    answer BUTTON    choose MENU_ITEM
  //   press KEY [in NAME]    or instead of press: down (without release), hold (as a repetition),
  //   copy (as sent by assistive technology), post (waits until events are handled)
  //   type, paste TEXT in NAME    wheel 120 in NAME    drag, drop BAR      open FOLDER in TREE
  //   activate NAME, select NAME:2, set VALUE in NAME: by assistive technology; close
  QString act(QWidget& window, const QString& step);
  QString act(const QString& step) { return act(window(), step); }
  // Runs `action`, and `step` in the modal window that the action opens. False if none opens.
  bool whenModal(const std::function<void(QWidget&)>& step, const std::function<void()>& action);
  static void waitUntilActive(QWidget& window);
  // Runs the step in a page of the options of all games.
  void modify(const char* page, const std::function<void(QWidget&)>& step);

  QWidget& window() const { return *form->clientArea()->window(); }
  // The object with this name in a window.
  template <class T = QWidget>
  static T& get(const QWidget& window, const QString& name) {
    auto* child = window.findChild<T*>(name);
    if (!child) throw std::runtime_error("nothing is called " + name.toStdString());
    return *child;
  }
  static std::string file() { return read("Config/Kestrivane.ini"); }

  std::unique_ptr<ui::Form1> form;
  QStringList happened;  // outside of the windows: the program's end, a page in the browser

 private:
  void pressKey(const QString& how, const QKeySequence& keys);
  void clickFast(QPoint place, int clicks);
  void activate(QAccessibleInterface* interface);
  QString actOn(QWidget& control, const QString& verb, const QStringList& words);

  bool assists_ = false;
  QTextBrowser browser_;  // takes the addresses that are opened
};

}  // namespace support
