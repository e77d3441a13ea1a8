#pragma once

#include <functional>
#include <string>

#include "platform/forms/control.h"
#include "platform/forms/picture.h"

namespace forms {

// One of several choices: the buttons of one container whose names differ only in their index
// exclude each other. Becoming the selected one raises its click, by whomever, and so does the
// user's click on the selected one.
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

  bool clickRaised_ = false;  // by the change of state that the present click made
};

}  // namespace forms
