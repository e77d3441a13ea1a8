#include "platform/forms/file_list.h"

#include <QWidget>
#include <string>

#include "base/error_boundary.h"
#include "platform/files.h"

namespace forms {

FileList::FileList(Container& parent, const char* name, const Box& box)
    : ListBox(parent, name, box) {
  takeEnter();
}

void FileList::setPath(const std::string& folder) {
  folder_ = folder;
  clear();
  firstChoice_ = -1;
  base::RunGuarded([&] {
    for (const auto& name : platform::FileNames(folder)) {
      const int row = add(name);
      if (canBeChosen && !canBeChosen(folder, name))
        disable(row);
      else if (firstChoice_ < 0)
        firstChoice_ = row;
    }
  });
}

void FileList::selectFirst() {
  if (firstChoice_ >= 0) select(firstChoice_);
}

}  // namespace forms
