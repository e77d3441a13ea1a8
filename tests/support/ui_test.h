#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMap>
#include <QMessageBox>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>

#include "support/temp_app.h"
#include "ui/main/form1.h"

namespace support {

// The main window over a fresh AppFolder with an emulator of two games, driven by object names and
// real events. The end of the program is noted and does not happen.
//
// What the steps change is noted: in the windows, the options in force, and the saved file.
class UiTest : public TempApp {
 protected:
  UiTest();
  ~UiTest() override;

  // Loads the main window and waits until it is active.
  void start();
  // The same with a configuration file of these lines, each ended by "|", behind the banner and the
  // heading of all games.
  void startWith(const std::string& lines);

  // Does these steps, each ended by a blank:
  //   cmdSave        a click near the left end, where a check box has its box; a menu item's choice
  //   lstGames@1     a click on a row, "@@1" a double click, "@@" one on a control without rows
  //   hslPPC=End     a key in a control, which gets the focus; "=Esc" one in the window
  //   hslPPC~-120    a turn of the wheel over it
  //   mConfig{...}   steps in the window that this one opens; it is closed if they leave it open
  // A message box has the buttons Yes, No, Cancel and Ok.
  void use(QWidget& window, const QString& steps);
  void use(const QString& steps) { use(window(), steps); }
  // Does what opens a modal window and runs the step in it. If it doesn't come within seconds, the
  // test fails.
  void inModal(const std::function<void(QWidget&)>& step, const std::function<void()>& action);
  // The same in a page of the options of all games.
  void modify(const char* page, const std::function<void(QWidget&)>& step);
  // A key to the active window.
  static void key(const QKeySequence& key);

  // Text in one line, the same in every run and on every system.
  QString plain(QString text) const;
  // Notes what has changed of what a window shows and tells assistive technology.
  void see(const QWidget& window);

  QWidget& window() const { return *form->clientArea()->window(); }
  QListWidget& list() const { return get<QListWidget>(window(), "lstGames"); }
  // What has this name in a window, and the text of a label there.
  template <class T = QWidget>
  static T& get(const QWidget& window, const QString& name) {
    auto* child = window.findChild<T*>(name);
    if (!child) throw std::runtime_error("nothing is called " + name.toStdString());
    return *child;
  }
  static std::string textOf(const QWidget& window, const char* name) {
    return get(window, name).property("text").toString().toStdString();
  }
  // The tool tip, markup and all, that comes up there.
  static std::string tipAt(QWidget& widget, QPoint at);

  static std::string file() { return read("Config/Kestrivane.ini"); }

  std::unique_ptr<ui::Form1> form;
  std::vector<int> ends;  // exit statuses

 private:
  using Lines = QMap<QString, QString>;  // by control
  struct Seen {
    Lines lines;  // as they were last
    QStringList visible;
  };

  void act(QWidget& window, const QString& step);
  void seeState();
  void tell(const QString& place, const Lines& shown);

  const QString app_ = QString::fromStdString(Module1::AppFolder);
  QMap<QString, Seen> seen_;  // by window
};

// What is wrong with the place of a control: whether it or its text is cut off, and what of its
// parent's other controls it lies on. Some are meant to.
QString LayoutFaults(const QWidget& control);

}  // namespace support
