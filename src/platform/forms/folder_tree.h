#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

class QTreeWidgetItem;

namespace forms {

// The folders below one root, hidden ones included. A folder is read when it is opened. One that
// can't be read is shown as empty.
class FolderTree : public Control {
 public:
  FolderTree(Container& parent, const char* name, const Box& box);

  // The selected folder.
  std::string path() const;
  // Sets the root, and selects and shows `folder`, which is inside it.
  void setPath(const std::string& root, const std::string& folder);

  // Only folders for whose name this returns true are shown. If it is not set, all are.
  std::function<bool(const std::string& name)> accepts;

 private:
  void readFolder(QTreeWidgetItem& item) const;
};

}  // namespace forms
