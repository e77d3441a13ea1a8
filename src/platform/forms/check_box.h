#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// The values are 0 unticked, 1 ticked, 2 greyed. Each change of the value raises the click, whether
// the user or the program made it.
class CheckBox : public Control {
 public:
  CheckBox(Container& parent, const char* name, const Box& box, const std::string& caption,
           const FontStyle& font = {}, int value = 0);

  std::string caption() const;
  void setCaption(const std::string& caption);
  int value() const;
  // Throws for any value but 0, 1 and 2.
  void setValue(int value);

  std::function<void()> onClick;
};

}  // namespace forms
