#pragma once

#include <QMap>

#include "support/fake_clock.h"
#include "support/snapshot.h"
#include "support/ui_test.h"

namespace support {

// Runs a scenario that is written down in a file, line by line:
//   # what must hold
//   $ what is there before the program does anything
//   > steps of the person at the screen
// and writes behind each step what it changed: in the window, in the files, of the options that
// wait for a save. A window that opens is compared with tests/windows, which holds how each one
// looks.
class Transcript : public UiTest {
 protected:
  // The file as it is now: its steps, and what they do today.
  std::string run(const std::filesystem::path& file);

  // Called for each window after each step.
  virtual void look(const QWidget& window);

 private:
  struct Line {
    QString text;
    QStringList content;  // what stands indented below
  };

  void runUntilClosed(QWidget* opened);
  void run(const Line& line, QWidget* opened);
  void useOpened(QWidget& opened);
  void given(const QString& what, const QString& value, const QStringList& content);
  void startLooking(const QString& key);
  void lookAtPlay();
  void lookAtFiles(bool write);
  void out(const QString& line) { text_ += "  " + Plain(line) + "\n"; }
  void outJoined(const QString& head, const QStringList& parts);

  FakeClock clock_;
  QList<Line> lines_;
  qsizetype next_ = 0;
  QString text_;   // written so far
  QString only_;   // the window that the file describes
  QString acted_;  // the control that the last step was done to
  bool describeWhole_ = false;
  QMap<QString, QMap<QString, Snapshot>> last_;  // by window and control
  QMap<QString, QStringList> files_;             // what the last step left
  std::string bytes_;
};

// All files of a folder under tests.
std::vector<std::filesystem::path> FilesOf(const char* folder);

}  // namespace support
