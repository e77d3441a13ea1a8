#include "platform/forms/check_box.h"

#include <QCheckBox>
#include <array>
#include <string>

#include "base/failure.h"
#include "platform/forms/native.h"

namespace forms {
namespace {

// The user can only tick and untick; only the program sets the greyed state.
class NativeCheckBox : public Ringed<QCheckBox> {
 public:
  using Ringed::Ringed;

 protected:
  void nextCheckState() override {
    setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
  }
};

constexpr std::array<Qt::CheckState, 3> kStates = {Qt::Unchecked, Qt::Checked,
                                                   Qt::PartiallyChecked};

QCheckBox* Native(QWidget* widget) { return static_cast<QCheckBox*>(widget); }

}  // namespace

CheckBox::CheckBox(Container& parent, const char* name, const Box& box, const std::string& caption,
                   const FontStyle& font, int value)
    : Control(new NativeCheckBox(parent.clientArea()), name, box, font) {
  setCaption(caption);
  setValue(value);
  // Qt 6.7 replaced the signal.
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
  const auto kStateChanged = &QCheckBox::checkStateChanged;
#else
  const auto kStateChanged = &QCheckBox::stateChanged;
#endif
  QObject::connect(Native(widget()), kStateChanged, widget(), [this] { Raise(onClick); });
}

std::string CheckBox::caption() const { return Native(widget())->text().toStdString(); }

void CheckBox::setCaption(const std::string& caption) {
  Native(widget())->setText(ToQString(caption));
}

int CheckBox::value() const {
  const auto state = Native(widget())->checkState();
  return state == Qt::Unchecked ? 0 : state == Qt::Checked ? 1 : 2;
}

void CheckBox::setValue(int value) {
  if (value < 0 || value > 2) throw base::Failure("not a state");
  Native(widget())->setCheckState(kStates[static_cast<std::size_t>(value)]);
}

}  // namespace forms
