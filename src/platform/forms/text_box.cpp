#include "platform/forms/text_box.h"

#include <QLineEdit>
#include <QValidator>

#include "platform/forms/native.h"

namespace forms {
namespace {

// Drops what is not accepted, whichever way it came in.
class Filter : public QValidator {
 public:
  Filter(QObject* parent, TextBox::Accept accept, int maxChars)
      : QValidator(parent), accept_(accept), maxChars_(maxChars) {}

  State validate(QString& text, int& cursor) const override {
    QString kept;
    for (const auto c : text)
      if (accept_ == TextBox::Accept::Anything || (c >= u'0' && c <= u'9')) kept += c;
    kept.truncate(maxChars_);
    cursor = std::min(cursor, static_cast<int>(kept.size()));
    text = kept;
    return Acceptable;
  }

 private:
  TextBox::Accept accept_;
  int maxChars_;
};

QLineEdit* Native(QWidget* widget) { return static_cast<QLineEdit*>(widget); }

}  // namespace

TextBox::TextBox(Container& parent, const char* name, const Box& box, Accept accept, int maxChars,
                 const FontStyle& font)
    : Control(new QLineEdit(parent.clientArea()), name, box, font) {
  Native(widget())->setAlignment(Qt::AlignCenter);
  Native(widget())->setValidator(new Filter(widget(), accept, maxChars));
}

std::string TextBox::text() const { return Native(widget())->text().toStdString(); }

void TextBox::setText(const std::string& text) {
  const auto* const filter = Native(widget())->validator();
  Native(widget())->setValidator(nullptr);
  Native(widget())->setText(ToQString(text));
  Native(widget())->setValidator(filter);
}

}  // namespace forms
