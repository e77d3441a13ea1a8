#pragma once

#include "platform/forms/combo_box.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

// The places at which folder trees begin: drives, or on a system without them the root, the home
// folder and the mounted volumes. A volume is asked only when it is chosen. One that can't be read
// within a second is not accepted: the list goes back to the one before.
class DriveList : public ComboBox {
 public:
  // Offers only what `accepts` takes.
  DriveList(Container& parent, const char* name, const Box& box,
            bool (*accepts)(std::string_view path));

  std::string drive() const;  // the path of the selected one
  // Selects the drive that holds the folder, without an event.
  void selectFor(const std::string& folder);

  std::function<void()> onChange;

 private:
  std::vector<std::string> paths_;
  int accepted_ = -1;
};

}  // namespace forms
