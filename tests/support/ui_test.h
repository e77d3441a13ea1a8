#pragma once

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
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
class UiTest : public TempApp {
 protected:
  UiTest();
  ~UiTest() override;

  // Loads the main window and waits until it is active.
  void start();
  // A configuration file of these lines behind the banner and the heading of all games, with the
  // default bindings if the lines hold none.
  static void writeConfig(std::string lines);
  static void writePicture(const std::string& name, const QColor& colour, QSize size = {32, 32});

  // Does one step, as a transcript writes it (CONTRIBUTING.md lists them); what it tells at once,
  // such as a tool tip.
  QString act(QWidget& window, const QString& step);
  QString act(const QString& step) { return act(window(), step); }
  // Does what may open a modal window, and runs the step in it if it does; otherwise false.
  bool whenModal(const std::function<void(QWidget&)>& step, const std::function<void()>& action);
  // The same where it has to open one within seconds.
  void inModal(const std::function<void(QWidget&)>& step, const std::function<void()>& action);
  // The same in a page of the options of all games.
  void modify(const char* page, const std::function<void(QWidget&)>& step);
  // A key to the active window; one that is held repeats itself.
  static void key(const QKeySequence& key, bool held = false);

  QWidget& window() const { return *form->clientArea()->window(); }
  // What has this name in a window.
  template <class T = QWidget>
  static T& get(const QWidget& window, const QString& name) {
    auto* child = window.findChild<T*>(name);
    if (!child) throw std::runtime_error("nothing is called " + name.toStdString());
    return *child;
  }
  // As assistive technology has it, and what it can do to it.
  static QAccessibleInterface* told(QObject* object);
  static void activate(QAccessibleInterface* interface);
  // The tool tip, markup and all, that comes up there.
  static std::string tipAt(QWidget& widget, QPoint at);

  static std::string file() { return read("Config/Kestrivane.ini"); }

  std::unique_ptr<ui::Form1> form;
  std::vector<int> ends;  // exit statuses

 private:
  QString actOn(QWidget& control, const QString& verb, const QStringList& words);
};

}  // namespace support
