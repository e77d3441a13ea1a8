// What steps change outside the window: in files, settings and options that wait for a save.
#include "platform/code_page.h"
#include "support/transcript.h"

namespace support {

namespace fs = std::filesystem;

// Compares with the last step: the lines of the saved file without comments and default bindings,
// with their game in front; the settings store; the names of all files; the options that wait for a
// save.
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
  if (!write) return;
  for (const auto* what : {"waiting", "saved", "setting", "file"}) {
    auto gone = before[what], come = now[what];
    for (const auto& line : now[what]) gone.removeOne(line);
    for (const auto& line : before[what]) come.removeOne(line);
    gone.sort();
    come.sort();
    outJoined(QString(what) + " - ", gone);
    outJoined(QString(what) + " + ", come);
  }
  if (before["saved"] == now["saved"] && bytes != bytes_ && !bytes.empty())
    out("saved in other bytes");
  changes_ << std::exchange(happened, {});
  outChanges();
}

}  // namespace support
