#include "platform/forms/text_box.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QValidator>
#include <algorithm>
#include <string>

#include "platform/forms/input_guard.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

// Accepts or rejects what the user added: the text between the cursor and the place where the
// cursor or the selection began before. So it works for typing, pasting and dropping.
class Filter : public QValidator {
 public:
  Filter(QLineEdit* edit, TextBox::Accept accept, int maxChars)
      : QValidator(edit), accept_(accept), maxChars_(maxChars) {
    const auto remember = [this, edit] {
      before_ = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    };
    QObject::connect(edit, &QLineEdit::selectionChanged, this, remember);
    QObject::connect(edit, &QLineEdit::cursorPositionChanged, this, remember);
  }

  // For an invalid text, the toolkit restores both the text and the selection.
  State validate(QString& text, int& cursor) const override {
    const int from = std::min(before_, cursor);
    const auto added = text.mid(from, cursor - from);
    QString kept;
    for (const auto c : added)
      if (accept_ == TextBox::Accept::Anything || (c >= u'0' && c <= u'9')) kept += c;
    kept.truncate(std::max<qsizetype>(maxChars_ - (text.size() - added.size()), 0));
    if (kept.size() == added.size()) return Acceptable;
    if (kept.isEmpty()) return Invalid;
    text.replace(from, added.size(), kept);
    cursor = from + static_cast<int>(kept.size());
    return Acceptable;
  }

 private:
  TextBox::Accept accept_;
  int maxChars_;
  int before_ = 0;
};

// When focused by Tab, selects its text only after the focus was announced. If the move of the
// caret is announced first, screen readers stay silent.
class NativeTextBox : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void focusInEvent(QFocusEvent* event) override {
    const auto reason = event->reason();
    const bool selects = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    QFocusEvent plain(QEvent::FocusIn, selects ? Qt::OtherFocusReason : reason);
    QLineEdit::focusInEvent(&plain);
    if (selects) QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
  }
};

QLineEdit* Native(QWidget* widget) { return static_cast<QLineEdit*>(widget); }

}  // namespace

TextBox::TextBox(Container& parent, const char* name, const Box& box, Accept accept, int maxChars,
                 const FontStyle& font)
    : Control(new NativeTextBox(parent.clientArea()), name, box, font), maxChars_(maxChars) {
  Native(widget())->setAlignment(Qt::AlignCenter);
  Native(widget())->setValidator(new Filter(Native(widget()), accept, maxChars));
  // Assistive technology can change the text without passing the validator and the input guard.
  QObject::connect(Native(widget()), &QLineEdit::textChanged, widget(), [this] {
    if (TakesInput(*widget()))
      accepted_ = text();
    else if (text() != accepted_)
      setText(accepted_);
  });
}

std::string TextBox::text() const { return Native(widget())->text().toStdString(); }

void TextBox::setText(const std::string& text) {
  accepted_ = ToQString(text).left(maxChars_).toStdString();
  const auto* const filter = Native(widget())->validator();
  Native(widget())->setValidator(nullptr);
  Native(widget())->setText(ToQString(accepted_));
  Native(widget())->setValidator(filter);
}

}  // namespace forms
