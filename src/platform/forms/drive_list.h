#pragma once

#include "platform/forms/combo_box.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

// The drives, or on a system without drives the root, the home folder and the mounted volumes. A
// volume is read only when it is chosen. If it can't be read within a second, the list goes back to
// the one chosen before.
class DriveList : public ComboBox {
 public:
  // Offers only paths that `accepts` accepts.
  DriveList(Container& parent, const char* name, const Box& box,
            bool (*accepts)(std::string_view path));

  std::string drive() const;  // the path of the selected drive
  // Selects the drive that holds the folder, without an event.
  void selectFor(const std::string& folder);

  std::function<void()> onChange;

 private:
  std::vector<std::string> paths_;
  int accepted_ = -1;
};

}  // namespace forms
