#include "platform/forms/text_view.h"

#include <QPlainTextEdit>

#include "platform/forms/native.h"

namespace forms {

TextView::TextView(Container& parent, const char* name, const Box& box, const FontStyle& font)
    : Control(new QPlainTextEdit(parent.clientArea()), name, box, font) {
  auto* edit = static_cast<QPlainTextEdit*>(widget());
  edit->setReadOnly(true);
  edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  edit->setTabChangesFocus(true);
  edit->setProperty("takesEnter", true);
}

void TextView::setText(const std::string& text) {
  static_cast<QPlainTextEdit*>(widget())->setPlainText(ToQString(text));
}

}  // namespace forms
