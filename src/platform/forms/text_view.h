#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

// A read-only text of many lines with a vertical scroll bar. The user can select and copy it.
class TextView : public Control {
 public:
  TextView(Container& parent, const char* name, const Box& box, const FontStyle& font = {});

  void setText(const std::string& text);
};

}  // namespace forms
