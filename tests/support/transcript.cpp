#include "support/transcript.h"

#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <fstream>

#include "platform/code_page.h"

namespace support {
namespace {

namespace fs = std::filesystem;

std::vector<QString> LinesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::vector<QString> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(QString::fromStdString(line));
  return lines;
}

// Of a window that is one of several variants, such as "Form2_of_a_game".
QString KeyOf(const QWidget& window) {
  const auto name = window.objectName();
  const bool isOfGame = name == "Form2" && Module1::OptionScope != core::kGlobalScope;
  return isOfGame ? name + "_of_a_game" : name;
}

// What tests/windows tells of a window: the first line of each control, over those of the window
// that it is a variant of.
QMap<QString, Snapshot> UsualLook(const QString& key) {
  if (key.isEmpty()) return {};
  auto usual = UsualLook(key.contains("_of_") ? key.section("_of_", 0, 0) : "");
  static const QRegularExpression form(R"(^  (\S+):(?: (?!\[)(.*?))?(?: \[(.*)\])? --(?: (.*))?$)");
  QStringList known;
  for (const auto& line :
       LinesOf(ToPath(TESTS) / "windows" / ToPath((key + ".txt").toStdString()))) {
    const auto found = form.match(line);
    const auto name = found.captured(1), rows = found.captured(3);
    if (!found.hasMatch() || known.contains(name)) continue;
    known << name;
    usual[name] = {name, found.captured(2),
                   found.hasCaptured(3) ? rows.split(" | ") : QStringList(), found.captured(4)};
  }
  return usual;
}

// "click a b, press Tab Space in a" are four steps.
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

// What a control has come to. Of a list with few new rows only these.
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

}  // namespace

std::vector<fs::path> FilesOf(const char* folder) {
  const fs::directory_iterator entries(ToPath(TESTS) / folder);
  std::vector<fs::path> files(begin(entries), end(entries));
  std::sort(files.begin(), files.end());
  return files;
}

std::string Transcript::run(const fs::path& file) {
  for (const auto& line : LinesOf(file)) {
    if (line.startsWith("  "))
      lines_.last().content << line.mid(2);
    else
      lines_.append({line, {}});
  }
  EXPECT_TRUE(!lines_.isEmpty() && lines_[0].text.startsWith("# "))
      << "a headline tells what must hold";
  if (file.parent_path().filename() == "windows")
    only_ = QString::fromStdString(ToText(file.stem()));
  clock_.onSleep = [this] { lookAtPlay(); };
  runUntilClosed(nullptr);
  return text_.toStdString();
}

// The main window stays.
void Transcript::runUntilClosed(QWidget* opened) {
  while (next_ < lines_.size() && (!opened || opened->isVisible())) run(lines_[next_++], opened);
}

void Transcript::run(const Line& line, QWidget* opened) {
  text_ += line.text + "\n";
  if (line.text.startsWith("$ ")) {
    for (const auto& below : line.content) text_ += "  " + below + "\n";
    return given(line.text.section(' ', 1, 1), line.text.section(' ', 2), line.content);
  }
  if (!line.text.startsWith("> ")) {
    EXPECT_TRUE(line.text.startsWith("# ")) << qPrintable("no line of a transcript: " + line.text);
    return;
  }
  clock_.sleeps.clear();
  for (const auto& step : SingleSteps(line.text.mid(2))) {
    const auto target = step.section(' ', -1).section(':', 0, 0);
    acted_ = target;
    const auto action = [&] {
      try {
        if (step == "start") {
          last_.clear();
          startLooking("Form1");
          start();
        } else if (const auto told = act(opened ? *opened : window(), step); !told.isEmpty()) {
          out(told);
        }
      } catch (const std::runtime_error& reason) {
        out(QString("THIS CAN'T BE DONE: ") + reason.what());
      }
    };
    if (step == "start") lookAtFiles(false);
    whenModal([this](QWidget& modal) { useOpened(modal); }, action);
    acted_ = target;
    // The button of an access key is seen to go down first.
    const auto isClosed = [&] { return !opened || !opened->isVisible(); };
    if (step.contains("Alt+") && !QTest::qWaitFor(isClosed)) out("nothing closes");
  }
  auto& after = opened ? *opened : window();
  if (after.isVisible()) look(after);
  lookAtFiles(true);
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
    look(opened);
  }
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
    write(name, text);
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

// A window that the file is about is described whole, or as far as it departs from what it is a
// variant of.
void Transcript::startLooking(const QString& key) {
  if (key == only_ && last_.contains(key)) return;
  describeWhole_ = key == only_;
  last_[key] =
      UsualLook(describeWhole_ ? key.contains("_of_") ? key.section("_of_", 0, 0) : "" : key);
}

// The in-game window goes by itself.
void Transcript::lookAtPlay() {
  const auto* gaming = QApplication::activeModalWidget();
  if (clock_.sleeps.size() != 1 || !gaming) return;
  out("frmGaming opens");
  startLooking("frmGaming");
  look(*gaming);
}

// Controls that have come to the same stand together. Of the window that the file describes, what
// does not change by its use is told at first, and when it changes.
void Transcript::look(const QWidget& window) {
  const auto key = KeyOf(window);
  auto& before = last_[key];
  QStringList order;
  QMap<QString, QStringList> names;
  for (const auto& now : SnapshotsOf(window)) {
    auto old = std::exchange(before[now.name], now);
    old.name = now.name;
    if (key == only_ && (describeWhole_ ? Whole(now) != Whole(old) : now.looks != old.looks))
      out(Whole(now));
    if (!only_.isEmpty() || (now.name == "Focus" && now.state == acted_)) continue;
    for (const auto& change : ChangesOf(old, now)) {
      if (!names.contains(change)) order << change;
      names[change] << now.name;
    }
  }
  for (auto& change : order) change.prepend(names[change].join(", "));
  outJoined("", order);
  describeWhole_ = false;
}

// The saved file without its comments and the default bindings, each line behind the game that it
// is of; the settings store; the names of all other files; the options that no save has written
// yet.
void Transcript::lookAtFiles(bool write) {
  QMap<QString, QStringList> now;
  const auto& defaults = Module1::Profiles[0].Slots;
  QString section;
  const auto bytes = std::exchange(bytes_, file());
  for (const auto& line : QString::fromStdString(platform::DecodeCodePage(bytes_)).split("\r\n")) {
    if (line.startsWith("[ ")) section = line == "[ Global ]" ? "" : line + " ";
    const auto isDefault = [&](const core::OptionSlot& slot) {
      return line.toStdString() == slot.Name + " = " + slot.Value;
    };
    if (!line.isEmpty() && !line.startsWith(";*") && line != "[ Global ]" &&
        std::none_of(defaults.begin() + core::kFirstInputSlot, defaults.end(), isDefault))
      now["saved"] << (line.startsWith(';') || line.startsWith("[ ") ? line : section + line);
  }
  for (const auto& line : QString::fromStdString(settings()).split('\n'))
    if (line.contains('=') && !line.endsWith('=') && !line.endsWith("=0")) now["setting"] << line;
  for (const auto& entry : fs::recursive_directory_iterator(path("")))
    if (entry.is_regular_file())
      now["file"] << QString::fromStdString(ToText(entry.path().lexically_relative(path(""))));
  for (core::Slot slot = 0; slot < core::kPerGameSlots; ++slot) {
    const auto& value = Module1::StagedOptions[slot];
    const auto line = QString::fromStdString(defaults[slot].Name + " = " + value);
    if (!value.empty() && value != defaults[slot].Value && now["saved"].filter(line).isEmpty())
      now["waiting"] << line;
  }
  const auto before = std::exchange(files_, now);
  for (const auto* what : {"waiting", "saved", "setting", "file"}) {
    auto gone = before[what], come = now[what];
    for (const auto& line : now[what]) gone.removeOne(line);
    for (const auto& line : before[what]) come.removeOne(line);
    gone.sort();
    come.sort();
    if (write) outJoined(QString(what) + " - ", gone);
    if (write) outJoined(QString(what) + " + ", come);
  }
  if (write && before["saved"] == now["saved"] && bytes != bytes_ && !bytes.empty())
    out("saved in other bytes");
  for (const auto status : std::exchange(ends, {}))
    out("the program ends with " + QString::number(status));
}

// As many in a line as it takes.
void Transcript::outJoined(const QString& head, const QStringList& parts) {
  constexpr int kWidth = 98;
  QString line;
  for (const auto& part : parts) {
    if (!line.isEmpty() && Plain(head + line + part).size() > kWidth)
      out(head + std::exchange(line, {}));
    line += (line.isEmpty() ? "" : "; ") + part;
  }
  if (!line.isEmpty()) out(head + line);
}

}  // namespace support
