#include "platform/forms/drive_list.h"

#include <QDir>
#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

#include "platform/bounded_call.h"
#include "platform/files.h"
#include "platform/forms/native.h"
#include "platform/mount_points.h"

namespace forms {
namespace {

// How long a chosen drive has to answer.
constexpr std::chrono::seconds kTimeout(1);

// Collects names only. None of these calls waits for a volume.
std::vector<std::string> Drives() {
  std::vector<std::string> drives;
  const auto add = [&](std::string path) {
    if (std::find(drives.begin(), drives.end(), path) == drives.end())
      drives.push_back(std::move(path));
  };
  const auto native = [](const QString& path) {
    return QDir::toNativeSeparators(path).toStdString();
  };
  for (const auto& drive : QDir::drives()) add(native(drive.absolutePath()));
  add(native(QDir::homePath()));
  for (auto& folder : platform::MountPoints()) add(std::move(folder));
  return drives;
}

// The folder "\\machine\share" of a path on another machine.
std::string ShareOf(const std::string& path) {
  return path.substr(0, path.find('\\', path.find('\\', 2) + 1));
}

}  // namespace

DriveList::DriveList(Container& parent, const char* name, const Box& box,
                     bool (*accepts)(std::string_view path))
    : ComboBox(parent, name, box), paths_(Drives()) {
  std::erase_if(paths_, [&](const auto& path) { return !accepts(path); });
  for (const auto& path : paths_) add(path);
  onClick = [this] {
    if (selectedRow() == accepted_) return;
    const auto readDrive = [path = drive()] { platform::SubfolderNames(path); };
    if (!platform::SucceedsWithin(kTimeout, readDrive)) {
      select(accepted_);
      return;
    }
    accepted_ = selectedRow();
    Raise(onChange);
  };
}

std::string DriveList::drive() const { return paths_.at(static_cast<std::size_t>(selectedRow())); }

void DriveList::selectFor(const std::string& folder) {
  const auto holds = [&](const std::string& drive) { return platform::IsWithin(folder, drive); };
  if (folder.starts_with("\\\\") && std::none_of(paths_.begin(), paths_.end(), holds)) {
    paths_.push_back(ShareOf(folder));
    add(paths_.back());
  }
  std::size_t best = 0;
  for (std::size_t row = 0; row < paths_.size(); ++row)
    if (holds(paths_[row]) && (!holds(paths_[best]) || paths_[row].size() >= paths_[best].size()))
      best = row;
  accepted_ = static_cast<int>(best);
  select(accepted_);
}

}  // namespace forms
