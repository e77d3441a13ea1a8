#include "platform/forms/text_view.h"

#include <QPlainTextEdit>
#include <string>

#include "platform/forms/native.h"

namespace forms {

TextView::TextView(Container& parent, const char* name, const Box& box, const FontStyle& font)
    : Control(new QPlainTextEdit(parent.clientArea()), name, box, font) {
  auto* edit = static_cast<QPlainTextEdit*>(widget());
  edit->setReadOnly(true);
  edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  edit->setTabChangesFocus(true);
  SetTakesEnter(*edit);
}

// The toolkit's time for a line grows with the square of its length, so very long lines are split.
void TextView::setText(const std::string& text) {
  constexpr qsizetype kLongestLine = 4000;  // characters
  QString shown;
  for (auto line : ToQString(text).tokenize(u'\n')) {
    for (; line.size() > kLongestLine; line = line.mid(kLongestLine))
      shown += line.first(kLongestLine).toString() + u'\n';
    shown += line.toString() + u'\n';
  }
  shown.chop(1);
  static_cast<QPlainTextEdit*>(widget())->setPlainText(shown);
}

}  // namespace forms
