#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"
#include "platform/forms/picture.h"

namespace forms {

// One of several choices. Of the buttons in a container whose names differ only in their index, one
// is selected. A button raises its click when the user or the program selects it, and when the user
// clicks it while it is selected.
class OptionButton : public Control {
 public:
  OptionButton(Container& parent, const char* name, const Box& box, const std::string& caption,
               const FontStyle& font = {});
  // A push button with a picture that stays down.
  OptionButton(Container& parent, const char* name, const Box& box, const Picture& picture);

  std::string caption() const;
  void setCaption(const std::string& caption);

  bool selected() const;
  void select();

  std::function<void()> onClick;

 private:
  void joinGroup();

  bool clickRaised_ = false;  // the present mouse click has raised onClick already
};

}  // namespace forms
