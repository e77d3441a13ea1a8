#include "platform/forms/message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <utility>

#include "platform/forms/native.h"
#include "platform/forms/picture_data.h"
#include "platform/forms/window_system.h"

namespace forms {
namespace {

QMessageBox::StandardButtons ToButtons(Buttons buttons) {
  switch (buttons) {
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon ToIcon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Exclamation:
      return QMessageBox::Warning;
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

AnswerCaptions& Captions() {
  static AnswerCaptions captions{"OK", "&Yes", "&No", "Cancel"};
  return captions;
}

}  // namespace

void NameAnswers(AnswerCaptions captions) { Captions() = std::move(captions); }

Answer MsgBox(const std::string& text, Buttons buttons, BoxIcon icon, const std::string& title) {
  const QPointer<QWidget> owner = QApplication::activeWindow();
  QMessageBox box(ToIcon(icon), ToQString(title), ToQString(text), ToButtons(buttons), owner);
  box.setTextFormat(Qt::PlainText);
  box.setWindowIcon(WindowIcon());
  const auto& [ok, yes, no, cancel] = Captions();
  const std::pair<QMessageBox::StandardButton, const std::string&> captions[] = {
      {QMessageBox::Ok, ok},
      {QMessageBox::Yes, yes},
      {QMessageBox::No, no},
      {QMessageBox::Cancel, cancel}};
  for (const auto& [standard, caption] : captions)
    if (auto* button = box.button(standard)) button->setText(ToQString(caption));
  // Otherwise the desktop's order of the buttons would decide which one Enter presses.
  box.setDefaultButton(buttons == Buttons::Ok ? QMessageBox::Ok : QMessageBox::Yes);
  if (buttons == Buttons::YesNo) box.setEscapeButton(QMessageBox::No);
  const int answer = box.exec();
  // Some window managers activate no window when the active one closes.
  if (owner) owner->activateWindow();
  AwaitFocus();
  switch (answer) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

}  // namespace forms
