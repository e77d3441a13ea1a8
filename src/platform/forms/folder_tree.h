#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

class QTreeWidgetItem;

namespace forms {

// The folders below one root, hidden ones included. They are read as they are opened; one that
// can't be read shows as empty.
class FolderTree : public Control {
 public:
  FolderTree(Container& parent, const char* name, const Box& box);

  // The selected folder.
  std::string path() const;
  // Puts another root in place, and selects and shows `folder`, which lies in it.
  void setPath(const std::string& root, const std::string& folder);

  // Shows only folders whose name it accepts; all where none is set.
  std::function<bool(const std::string& name)> accepts;

 private:
  void readFolder(QTreeWidgetItem& item) const;
};

}  // namespace forms
