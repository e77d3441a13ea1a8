#include "platform/forms/combo_box.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <string>

#include "base/failure.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

// Ignores the wheel unless the box has the focus, so that scrolling past it changes nothing.
class NativeComboBox : public Ringed<QComboBox> {
 public:
  explicit NativeComboBox(QWidget* parent) : Ringed(parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus())
      QComboBox::wheelEvent(event);
    else
      event->ignore();
  }
};

QComboBox* Native(QWidget* widget) { return static_cast<QComboBox*>(widget); }

}  // namespace

ComboBox::ComboBox(Container& parent, const char* name, const Box& box, const FontStyle& font)
    : Control(new NativeComboBox(parent.clientArea()), name, box, font) {
  // Shows a list with a scroll bar below the box instead of a menu as high as the screen.
  Native(widget())->setStyleSheet(QStringLiteral("combobox-popup: 0"));
  Native(widget())->setMaxVisibleItems(15);
  QObject::connect(Native(widget()), &QComboBox::currentIndexChanged, widget(), [this](int row) {
    if (row >= 0) Raise(onClick);
  });
}

void ComboBox::add(const std::string& text) {
  const QSignalBlocker quiet(widget());
  const int selected = selectedRow();
  Native(widget())->addItem(ToQString(text));
  Native(widget())->setCurrentIndex(selected);
}

int ComboBox::count() const { return Native(widget())->count(); }

std::string ComboBox::text() const { return Native(widget())->currentText().toStdString(); }

int ComboBox::selectedRow() const { return Native(widget())->currentIndex(); }

void ComboBox::select(int row) {
  if (row < 0 || row >= count()) throw base::Failure("no such row");
  Native(widget())->setCurrentIndex(row);
}

bool ComboBox::selectText(const std::string& text) {
  const int row =
      Native(widget())->findText(ToQString(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (row >= 0) select(row);
  return row >= 0;
}

}  // namespace forms
