#include "platform/forms/file_list.h"

#include <QWidget>

#include "base/quietly.h"
#include "platform/files.h"

namespace forms {

FileList::FileList(Container& parent, const char* name, const Box& box)
    : ListBox(parent, name, box) {
  takeEnter();
}

void FileList::setPath(const std::string& folder) {
  folder_ = folder;
  clear();
  base::Quietly([&] {
    for (const auto& name : platform::FileNames(folder))
      if (!accepts || accepts(folder, name)) add(name);
  });
}

}  // namespace forms
