#include "support/transcript.h"

#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <fstream>

namespace support {
namespace {

namespace fs = std::filesystem;

std::vector<QString> LinesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::vector<QString> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(QString::fromStdString(line));
  return lines;
}

// The window's name, followed by its variant if it has several, such as "Form2_of_a_game".
QString KeyOf(const QWidget& window) {
  const auto name = window.objectName();
  const bool isOfGame = name == "Form2" && Module1::OptionScope != core::kGlobalScope;
  return isOfGame ? name + "_of_a_game" : name;
}

// How a window looks by its file in tests/windows: the first line of each control. A variant's file
// only has what differs from the window that it is a variant of.
QMap<QString, Snapshot> UsualLook(const QString& key) {
  if (key.isEmpty()) return {};
  auto usual = UsualLook(key.contains("_of_") ? key.section("_of_", 0, 0) : "");
  static const QRegularExpression form(
      R"(^  ([^:]+):(?: (?!\[|--)(.*?))?(?: \[(.*)\])?(?: --(?: (.*))?)?$)");
  QStringList known;
  for (const auto& line :
       LinesOf(ToPath(TESTS) / "windows" / ToPath((key + ".txt").toStdString()))) {
    const auto found = form.match(line);
    for (const auto& name : found.captured(1).split(", ", Qt::SkipEmptyParts)) {
      if (known.contains(name)) continue;
      known << name;
      auto& control = usual[name];
      control.name = name;
      control.state = found.captured(2);
      if (found.hasCaptured(3)) control.rows = found.captured(3).split(" | ");
      if (found.hasCaptured(4)) control.looks = found.captured(4);
    }
  }
  return usual;
}

// Splits a line into steps: "click a b, press Tab Space in a" has four.
QStringList SingleSteps(const QString& line) {
  static const QStringList several = {"click", "press", "choose", "activate"};
  QStringList steps;
  for (const auto& part : line.split(", ")) {
    const auto words = part.section(" in ", 0, 0).split(' '), place = part.split(" in ").mid(1);
    if (!several.contains(words[0])) steps << part;
    for (const auto& what : several.contains(words[0]) ? words.mid(1) : QStringList())
      steps << (QStringList(words[0] + " " + what) + place).join(" in ");
  }
  return steps;
}

// What changed of a control. For a list with few changed rows, only these.
QStringList ChangesOf(const Snapshot& old, const Snapshot& now) {
  QStringList changes;
  const auto rows = now.rows.size();
  for (qsizetype row = 0; row < rows && rows == old.rows.size(); ++row)
    if (now.rows[row] != old.rows[row]) changes << QString("[%1]: ").arg(row) + now.rows[row];
  const bool hasNewRows = rows != old.rows.size() || changes.size() > 3;
  if (hasNewRows) return {": " + (now.state + " [" + now.rows.join(" | ") + "]").trimmed()};
  if (now.state == old.state) return changes;
  const auto state = !now.state.isEmpty()             ? now.state
                     : old.state.contains("hidden")   ? "shown"
                     : old.state.contains("disabled") ? "enabled"
                                                      : "none";
  return changes << ": " + state;
}

bool TakesFocus(const QWidget& window, const QString& name) {
  const auto* control = window.findChild<QWidget*>(name);
  return control && control->isVisible() && control->isEnabled() &&
         control->focusPolicy() & Qt::ClickFocus;
}

}  // namespace

std::vector<fs::path> FilesOf(const char* folder) {
  const fs::directory_iterator entries(ToPath(TESTS) / folder);
  std::vector<fs::path> files(begin(entries), end(entries));
  std::sort(files.begin(), files.end());
  return files;
}

std::string Transcript::run(const fs::path& transcript) {
  for (const auto& line : LinesOf(transcript)) {
    if (line.startsWith("  "))
      lines_.last().content << line.mid(2);
    else
      lines_.append({line, {}});
  }
  EXPECT_TRUE(!lines_.isEmpty() && lines_[0].text.startsWith("# "))
      << "the first line must say what holds";
  if (transcript.parent_path().filename() == "windows")
    only_ = QString::fromStdString(ToText(transcript.stem()));
  clock_.onSleep = [this] { playASecond(); };
  lookAtFiles(false);
  runUntilClosed(nullptr);
  return text_.toStdString();
}

// Runs steps until the opened window closes; without one, all steps.
void Transcript::runUntilClosed(QWidget* opened) {
  const auto goesOn = [&] {
    return !opened || opened->isVisible() || steps_.value(0).startsWith("still ");
  };
  while ((!steps_.isEmpty() || next_ < lines_.size()) && goesOn()) {
    if (steps_.isEmpty() && !begin(lines_[next_++])) continue;
    clock_.sleeps.clear();
    run(steps_.takeFirst(), opened);
    if (const auto pause = std::exchange(pause_, 0); pause > 0)
      out(QString("the in-game window stays for %1 seconds").arg(pause));
    if (!steps_.isEmpty()) continue;
    auto& shown = opened ? *opened : window();
    waitUntilActive(shown);
    QApplication::processEvents();  // rows are announced after their list
    lookAtAll(shown);
  }
}

// Starts a line. Returns whether it has steps.
bool Transcript::begin(const Line& line) {
  text_ += line.text + "\n";
  steps_ = line.text.startsWith("> ") ? SingleSteps(line.text.mid(2)) : QStringList();
  if (line.text.startsWith("$ ")) {
    for (const auto& below : line.content) text_ += "  " + below + "\n";
    given(line.text.section(' ', 1, 1), line.text.section(' ', 2), line.content);
    lookAtFiles(false);
  } else if (steps_.isEmpty()) {
    EXPECT_TRUE(line.text.startsWith("# "))
        << qPrintable("not a line of a transcript: " + line.text);
  }
  return !steps_.isEmpty();
}

void Transcript::run(QString step, QWidget* opened) {
  step.remove(QRegularExpression("^still "));
  const bool touches = !step.startsWith("hover") && !step.startsWith("wheel");
  const auto target = touches ? step.section(' ', -1).section(':', 0, 0) : QString();
  acted_ = target;
  const auto action = [&] {
    try {
      if (step == "start") {
        last_.clear();
        startLooking("Form1");
        start();
      } else if (const auto shown = act(opened ? *opened : window(), step); !shown.isEmpty()) {
        out(shown);
      }
    } catch (const std::runtime_error& reason) {
      out(QString("THIS CAN'T BE DONE: ") + reason.what());
    }
  };
  whenModal([this](QWidget& modal) { useOpened(modal); }, action);
  acted_ = target;
  // An access key first shows its button pressed, and closes the window later.
  const auto isClosed = [&] { return !opened || !opened->isVisible(); };
  if (step.contains("Alt+") && !QTest::qWaitFor(isClosed)) out("nothing closes");
}

void Transcript::useOpened(QWidget& opened) {
  const auto* box = qobject_cast<QMessageBox*>(&opened);
  if (box) {
    QStringList buttons;
    for (const auto* button : box->findChildren<QPushButton*>())
      buttons << button->text() + (button->isDefault() ? "*" : "");
    out(QString("a box \"%1\" opens: \"%2\" [%3]")
            .arg(box->windowTitle(), box->text(), buttons.join(" | ")));
  } else {
    out(opened.objectName() + " opens");
    startLooking(KeyOf(opened));
    acted_.clear();
    if (steps_.isEmpty()) look(opened);
  }
  if (steps_.isEmpty()) outChanges();
  runUntilClosed(&opened);
  if (!box && !opened.isVisible()) out(opened.objectName() + " closes");
}

void Transcript::given(const QString& what, const QString& value, const QStringList& content) {
  const auto text = content.join("\n").toStdString(), name = value.toStdString();
  if (what == "config")
    writeConfig(text);
  else if (what == "games")
    addGames(name);
  else if (what == "file")
    write(QByteArray::fromPercentEncoding(value.toUtf8()).toStdString(), text);
  else if (what == "picture")
    writePicture(value.section(' ', 0, 0).toStdString(), QColor(value.section(' ', 1)));
  else if (what == "remove")
    fs::remove(path(name));
  else if (what == "version")
    Module1::EmulatorVersion = name;
  else if (what == "play")
    clock_.firstSleepTakes = std::chrono::seconds(value.toInt());
  else
    ADD_FAILURE() << "nothing can be given as " << what.toStdString();
}

// A file of tests/windows describes its window completely, or for a variant only what differs.
void Transcript::startLooking(const QString& key) {
  if (key == only_ && last_.contains(key)) return;
  describeWhole_ = key == only_;
  last_[key] =
      UsualLook(describeWhole_ ? key.contains("_of_") ? key.section("_of_", 0, 0) : "" : key);
}

// Called once in each second of a play. The play is over when its log has been deleted.
void Transcript::playASecond() {
  auto* gaming = QApplication::activeModalWidget();
  if (!gaming) return;
  if (clock_.sleeps.size() == 1) {
    out("frmGaming opens");
    startLooking("frmGaming");
    look(*gaming);
    outChanges();
    WaitForChild();
    logSeen_ = false;
  }
  if (eventsWait_) out("no events are handled");
  eventsWait_ = true;
  QTimer::singleShot(0, &timer_, [this] { eventsWait_ = false; });
  if (clock_.sleeps.back() != 1000) out("the clock is not asked for a second");
  pause_ += logSeen_ && !exists("error.log");
  logSeen_ = logSeen_ || exists("error.log");
  if (next_ == lines_.size() || !lines_[next_].text.startsWith("> during the play, ")) return;
  begin(lines_[next_++]);
  for (steps_.removeFirst(); !steps_.isEmpty();) run(steps_.takeFirst(), gaming);
  lookAtAll(*gaming);
}

void Transcript::lookAtAll(const QWidget& window) {
  if (window.isVisible()) look(window);
  outChanges();
  lookAtFiles(true);
}

// Writes what changed in a window. Controls with the same change are joined in one line. Of the
// window that the file describes, the looks of each control are written at first and when they
// change.
void Transcript::look(const QWidget& window) {
  const auto key = KeyOf(window);
  auto& before = last_[key];
  QStringList order;
  QMap<QString, QStringList> names;
  for (const auto& now : SnapshotsOf(window)) {
    auto old = std::exchange(before[now.name], now);
    old.name = now.name;
    if (now.name == "Focus" && TakesFocus(window, acted_)) old.state = acted_;
    const bool described = key == only_;
    if (described && now.looks != old.looks) {
      order << Whole(now);
    } else if (described ? describeWhole_ : only_.isEmpty()) {
      const auto called = now.looks.section('"', 1, 1);
      auto changes = ChangesOf(old, now);
      if (now.looks.startsWith("List ") && called != old.looks.section('"', 1, 1))
        changes << ": called \"" + called + "\"";
      for (const auto& change : changes) {
        if (!names.contains(change)) order << change;
        names[change] << now.name;
      }
    }
  }
  for (auto& change : order) change.prepend(names[change].join(", "));
  if (key != only_) {
    changes_ << (only_.isEmpty() ? order : QStringList());
  } else {
    outChanges();
    for (const auto& line : order) outJoined("", {line});
  }
  describeWhole_ = false;
}

// Writes the parts, as many in a line as fit.
void Transcript::outJoined(const QString& head, const QStringList& parts) {
  constexpr int kWidth = 98;
  QString line;
  for (const auto& raw : parts) {
    const auto part = Plain(raw);
    if (!line.isEmpty() && (head + line + part).size() > kWidth)
      text_ += "  " + head + std::exchange(line, {}) + "\n";
    line += (line.isEmpty() ? "" : "; ") + part;
  }
  if (!line.isEmpty()) text_ += "  " + head + line + "\n";
}

}  // namespace support
