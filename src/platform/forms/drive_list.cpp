#include "platform/forms/drive_list.h"

#include <QDir>
#include <QStorageInfo>
#include <algorithm>
#include <string>
#include <utility>

#include "base/error_boundary.h"
#include "platform/files.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

std::vector<std::string> Drives() {
  std::vector<std::string> drives;
  const auto add = [&](const QString& path) {
    auto text = QDir::toNativeSeparators(path).toStdString();
    if (std::find(drives.begin(), drives.end(), text) == drives.end())
      drives.push_back(std::move(text));
  };
  for (const auto& drive : QDir::drives()) add(drive.absolutePath());
  add(QDir::homePath());
  for (const auto& volume : QStorageInfo::mountedVolumes())
    if (volume.isValid() && QFileInfo(volume.rootPath()).isDir()) add(volume.rootPath());
  return drives;
}

// The folder "\\machine\share" that a path on another machine is in.
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
    if (!base::RunGuarded([this] { platform::SubfolderNames(drive()); })) {
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
