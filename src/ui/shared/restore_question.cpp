#include "ui/shared/restore_question.h"

#include "i18n/message_catalogue.h"
#include "platform/forms/message_box.h"

namespace ui {

bool AskForDefaults(const forms::Form& asking) {
  using i18n::Message;
  using i18n::Msg;
  return forms::MsgBox(Msg(Message::RestoreQuestion), forms::Buttons::YesNo,
                       forms::BoxIcon::Question,
                       Msg(Message::Confirmation)) == forms::Answer::Yes &&
         asking.visible();
}

}  // namespace ui
