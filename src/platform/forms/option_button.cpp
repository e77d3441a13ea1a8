#include "platform/forms/option_button.h"

#include <QButtonGroup>
#include <QIcon>
#include <QRadioButton>
#include <QToolButton>

#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"

namespace forms {
namespace {

QAbstractButton* Native(QWidget* widget) { return static_cast<QAbstractButton*>(widget); }

QToolButton* NewPictureButton(QWidget* parent, const Picture& picture) {
  constexpr int kIconPixels = 32;
  auto* button = new QToolButton(parent);
  button->setIcon(IconOf(picture));
  button->setIconSize(QSize(kIconPixels, kIconPixels));
  button->setCheckable(true);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

OptionButton::OptionButton(Container& parent, const char* name, const Box& box,
                           const std::string& caption, const FontStyle& font)
    : Control(new QRadioButton(parent.clientArea()), name, box, font) {
  setCaption(caption);
  joinGroup();
}

OptionButton::OptionButton(Container& parent, const char* name, const Box& box,
                           const Picture& picture)
    : Control(NewPictureButton(parent.clientArea(), picture), name, box, {}) {
  joinGroup();
}

void OptionButton::joinGroup() {
  auto* button = Native(widget());
  const auto groupName = button->objectName().section('(', 0, 0);
  auto* group =
      button->parentWidget()->findChild<QButtonGroup*>(groupName, Qt::FindDirectChildrenOnly);
  if (!group) {
    group = new QButtonGroup(button->parentWidget());
    group->setObjectName(groupName);
  }
  group->addButton(button);
  QObject::connect(button, &QAbstractButton::toggled, button, [this](bool selected) {
    if (selected) Raise(onClick);
  });
}

std::string OptionButton::caption() const { return Native(widget())->text().toStdString(); }

void OptionButton::setCaption(const std::string& caption) {
  Native(widget())->setText(ToQString(caption));
}

bool OptionButton::selected() const { return Native(widget())->isChecked(); }

void OptionButton::select() { Native(widget())->setChecked(true); }

}  // namespace forms
