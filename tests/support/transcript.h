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
// and writes behind each line of steps what they changed: in the window, in the files, of the
// options that wait for a save. A window that opens is compared with tests/windows, which holds how
// each one looks. A line that begins with "> during the play, " takes place in the next second of a
// play.
class Transcript : public UiTest {
 protected:
  // The file as it is now: its steps, and what they do today.
  std::string run(const std::filesystem::path& transcript);

  // Called for each window after each step.
  virtual void look(const QWidget& window);

 private:
  struct Line {
    QString text;
    QStringList content;  // what stands indented below
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
  void out(const QString& text) { said_ << text; }
  void outJoined(const QString& head, const QStringList& parts);
  void outSaid() { outJoined("", std::exchange(said_, {})); }

  FakeClock clock_;
  QList<Line> lines_;
  qsizetype next_ = 0;
  QStringList steps_;  // of the line in hand, still to be done
  QString text_;       // written so far
  QStringList said_;   // to be written
  QString only_;       // the window that the file describes
  QString acted_;      // the control that the last step was done to
  bool describeWhole_ = false;
  QMap<QString, QMap<QString, Snapshot>> last_;  // by window and control
  QMap<QString, QStringList> files_;             // what the last step left
  std::string bytes_;
  QObject timer_;
  bool eventsWait_ = false;  // of the last second of a play
  bool logSeen_ = false;
  int pause_ = 0;  // seconds behind a play
};

// All files of a folder under tests.
std::vector<std::filesystem::path> FilesOf(const char* folder);

}  // namespace support
