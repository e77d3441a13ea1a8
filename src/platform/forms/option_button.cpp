#include "platform/forms/option_button.h"

#include <QButtonGroup>
#include <QIcon>
#include <QKeyEvent>
#include <QRadioButton>
#include <QToolButton>
#include <algorithm>
#include <string>

#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"

namespace forms {
namespace {

QAbstractButton* Native(QWidget* widget) { return static_cast<QAbstractButton*>(widget); }

// Arrow keys choose the neighbour. The toolkit would first click it and then focus it, and so
// undo a change of focus that the click's event made.
template <class Native>
class Choice : public Ringed<Native> {
 public:
  using Ringed<Native>::Ringed;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const auto key = event->key();
    const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
    if (!forward && key != Qt::Key_Left && key != Qt::Key_Up)
      return Ringed<Native>::keyPressEvent(event);
    auto others = this->group()->buttons();
    if (!forward) std::reverse(others.begin(), others.end());
    const auto canBeChosen = [](const QAbstractButton* button) {
      return button->isVisible() && button->isEnabled();
    };
    const auto self = std::find(others.begin(), others.end(), this);
    const auto next = std::find_if(self + 1, others.end(), canBeChosen);
    if (next == others.end()) return;
    (*next)->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    (*next)->click();
  }
};

class PictureButton : public Choice<QToolButton> {
 public:
  using Choice::Choice;

 protected:
  void paintEvent(QPaintEvent* event) override {
    Choice::paintEvent(event);
    if (isChecked()) PaintChosenMark(*this);
  }
};

QToolButton* NewPictureButton(QWidget* parent, const Picture& picture) {
  constexpr int kIconPixels = 32;
  auto* button = new PictureButton(parent);
  button->setIcon(IconOf(picture));
  button->setIconSize(QSize(kIconPixels, kIconPixels));
  button->setCheckable(true);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

OptionButton::OptionButton(Container& parent, const char* name, const Box& box,
                           const std::string& caption, const FontStyle& font)
    : Control(new Choice<QRadioButton>(parent.clientArea()), name, box, font) {
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
  QObject::connect(button, &QAbstractButton::pressed, button, [this] { clickRaised_ = false; });
  QObject::connect(button, &QAbstractButton::toggled, button, [this](bool selected) {
    clickRaised_ = selected;
    if (selected) Raise(onClick);
  });
  QObject::connect(button, &QAbstractButton::clicked, button, [this] {
    if (!clickRaised_) Raise(onClick);
  });
}

std::string OptionButton::caption() const { return Native(widget())->text().toStdString(); }

void OptionButton::setCaption(const std::string& caption) {
  Native(widget())->setText(ToQString(caption));
}

bool OptionButton::selected() const { return Native(widget())->isChecked(); }

void OptionButton::select() { Native(widget())->setChecked(true); }

}  // namespace forms
