#include "platform/forms/command_button.h"

#include <QPushButton>
#include <string>

#include "platform/forms/native.h"

namespace forms {

CommandButton::CommandButton(Container& parent, const char* name, const Box& box,
                             const std::string& caption, const FontStyle& font)
    : Control(new Ringed<QPushButton>(parent.clientArea()), name, box, font) {
  auto* button = static_cast<QPushButton*>(widget());
  QObject::connect(button, &QPushButton::clicked, button, [this] { Raise(onClick); });
  setCaption(caption);
}

void CommandButton::setCaption(const std::string& caption) {
  static_cast<QPushButton*>(widget())->setText(ToQString(caption));
}

}  // namespace forms
