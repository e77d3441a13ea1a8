#pragma once

#include <string>

#include "platform/forms/control.h"

namespace forms {

// A box of many lines with a vertical scroll bar, to read and copy from.
class TextView : public Control {
 public:
  TextView(Container& parent, const char* name, const Box& box, const FontStyle& font = {});

  void setText(const std::string& text);
};

}  // namespace forms
