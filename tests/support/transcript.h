#pragma once

#include <QMap>

#include "support/fake_clock.h"
#include "support/snapshot.h"
#include "support/ui_test.h"

namespace support {

// Runs the scenario in a file, which has lines of these kinds:
//   # what must hold
//   $ what is there: config, games, file, picture, remove, version, play SECONDS
//   > steps of the user (see UiTest::act)
// After each line of steps it writes what they changed: in the window, in the files, in the options
// that wait for a save. A window that opens is compared with its file in tests/windows. A line that
// begins with "> during the play, " is done in the next second of a play. A step that begins with
// "still" is done although its window has closed.
class Transcript : public UiTest {
 protected:
  // Runs the file's steps. Returns what the file should be: the steps with what they changed.
  std::string run(const std::filesystem::path& transcript);

  // Called for each window after each step.
  virtual void look(const QWidget& window);

 private:
  struct Line {
    QString text;
    QStringList content;  // the indented lines below
  };

  void runUntilClosed(QWidget* opened);
  bool begin(const Line& line);
  void run(QString step, QWidget* opened);
  void useOpened(QWidget& opened);
  void given(const QString& what, const QString& value, const QStringList& content);
  void startLooking(const QString& key);
  void playASecond();
  void lookAtAll(const QWidget& window);
  void lookAtFiles(bool write);
  void out(const QString& text) { changes_ << text; }
  void outJoined(const QString& head, const QStringList& parts);
  void outChanges() { outJoined("", std::exchange(changes_, {})); }

  FakeClock clock_;
  QList<Line> lines_;
  qsizetype next_ = 0;
  QStringList steps_;    // of the current line, still to be done
  QString text_;         // the result so far
  QStringList changes_;  // not written to the result yet
  QString only_;         // the window that the file describes
  QString acted_;        // the control that the last step was done to
  bool describeWhole_ = false;
  QMap<QString, QMap<QString, Snapshot>> last_;  // by window and control
  QMap<QString, QStringList> files_;             // what the last step left
  std::string bytes_;
  QObject timer_;
  bool eventsWait_ = false;  // since the last second of a play
  bool logSeen_ = false;
  int pause_ = 0;  // seconds after a play
};

// All files of a folder under tests.
std::vector<std::filesystem::path> FilesOf(const char* folder);

}  // namespace support
