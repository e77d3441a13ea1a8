#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace forms {

// A push button. "&" marks the access key of its caption.
class CommandButton : public Control {
 public:
  CommandButton(Container& parent, const char* name, const Box& box, const std::string& caption,
                const FontStyle& font = {});

  void setCaption(const std::string& caption);

  std::function<void()> onClick;
};

}  // namespace forms
