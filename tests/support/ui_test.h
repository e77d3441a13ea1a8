#pragma once

#include <QAction>
#include <QListWidget>
#include <functional>
#include <memory>
#include <vector>

#include "support/temp_app.h"
#include "ui/main/form1.h"

namespace support {

// The main window over a fresh AppFolder, driven by object names and real events. The end of the
// program is noted and does not happen.
class UiTest : public TempApp {
 protected:
  UiTest();
  ~UiTest() override;

  // Loads the main window and waits until it is active.
  void start();

  QWidget& window() const { return *form->clientArea()->window(); }
  QWidget& widget(const char* name) const { return get(window(), name); }
  QListWidget& list() const { return dynamic_cast<QListWidget&>(widget("lstGames")); }
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

  // The rows of a list, a star behind those that are selected, each ended by "|".
  static std::string rows(const QListWidget& list);

  // The tool tip, markup and all, that comes up there.
  static std::string tipAt(QWidget& widget, QPoint at);

  // Key and mouse events as the window system sends them.
  static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void click(const char* name) const;
  static QPoint placeOf(const QListWidget& list, int row) {
    return list.visualItemRect(list.item(row)).center();
  }
  static void clickRow(const QListWidget& list, int row, bool twice = false);
  void clickRow(int row, bool twice = false) const { clickRow(list(), row, twice); }

  std::unique_ptr<ui::Form1> form;
  std::vector<int> ends;  // exit statuses
};

// Runs `step` once on the next modal window of this name, and closes it. No name: the next message
// box. If it doesn't come within seconds, the test fails.
class WhenModal : public QObject {
 public:
  WhenModal(const char* name, std::function<void(QWidget&)> step);
  ~WhenModal() override;

  // Does what opens the window. At the end of the statement it must have come.
  void during(const std::function<void()>& action) && { action(); }

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  QString name_;
  std::function<void(QWidget&)> step_;
  int patience_ = 2000;
  bool done_ = false;
};

}  // namespace support
