#pragma once

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <functional>
#include <memory>
#include <vector>

#include "core/module1.h"
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
  // The same with a configuration file of these lines, each ended by "|", behind the banner and the
  // heading of all games.
  void startWith(const std::string& lines);

  QWidget& window() const { return *form->clientArea()->window(); }
  QWidget& widget(const char* name) const { return get(window(), name); }
  QListWidget& list() const { return get<QListWidget>(window(), "lstGames"); }
  QAction& item(const std::string& name) const { return get<QAction>(window(), name); }
  std::string caption(const char* name) const { return textOf(window(), name); }

  // What has this name in a window, and the text of a label, button or text box there.
  template <class T = QWidget>
  static T& get(const QWidget& window, const std::string& name) {
    auto* child = window.findChild<T*>(QString::fromStdString(name));
    if (!child) throw std::runtime_error("nothing is called " + name);
    return *child;
  }
  static std::string textOf(const QWidget& window, const std::string& name);
  static std::string indexed(const char* name, int index);

  // The rows of a list, a star behind those that are selected, each ended by "|".
  static std::string rows(const QListWidget& list);

  // The tool tip, markup and all, that comes up there.
  static std::string tipAt(QWidget& widget, QPoint at);

  // Key and mouse events as the window system sends them.
  static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void click(const char* name) const { QTest::mouseClick(&widget(name), Qt::LeftButton); }
  static void clickRow(const QListWidget& list, int row, bool twice = false);
  void clickRow(int row, bool twice = false) const { clickRow(list(), row, twice); }
  // Clicks near the left end of controls, where a check box has its box, and keys in them: such as
  // "chkMulti hslPPC=End".
  static void use(const QWidget& window, const QString& controls);
  // Does what opens a modal window of this name, "" for a message box, and runs the step in it; it
  // is closed afterwards if it still stands. If it doesn't come within seconds, the test fails.
  static void inModal(const char* name, const std::function<void(QWidget&)>& step,
                      const std::function<void()>& action);
  static void answer(QMessageBox::StandardButton button, const std::function<void()>& action);

  // The same in the options dialog of all games or of one.
  void options(const std::function<void(QWidget&)>& step);
  void gameOptions(int row, const std::function<void(QWidget&)>& step);
  static void save(const QWidget& options) { use(options, "cmdSave"); }

  static std::string file() { return read("Config/Kestrivane.ini"); }
  // The saved file as startWith takes it, without the bindings.
  static std::string saved();

  std::unique_ptr<ui::Form1> form;
  std::vector<int> ends;  // exit statuses
};

// Of what a window shows, nothing lies on something else unless it is meant to, all is inside its
// parent, and no text is cut off.
void ExpectLaidOut(const QWidget& window);

}  // namespace support
