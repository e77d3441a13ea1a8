#include "ui/main/form1.h"

#include <string>
#include <utility>

#include "base/error_boundary.h"
#include "config/user_settings.h"
#include "i18n/message_catalogue.h"
#include "launch/process_capture.h"
#include "platform/forms/application.h"
#include "platform/forms/message_box.h"
#include "ui/main/frm_gaming.h"

namespace ui {
namespace {

constexpr const char* kHomePage = "https://kestrivane-ui.example/";

}  // namespace

Form1::Form1() : Form("Form1", forms::Border::FixedSingle, 10950, 6870) {
  setDefaultButton(cmdPlay);
  Label1.setBackColour(forms::kGrey);
  lblInfo.setTextColour(forms::kWhite);
  imgGames.setBorder(true);
  imgDefault.setVisible(false);
  optGames[0].select();
  Label1.setRole(forms::Role::Decoration);
  imgGames.setRole(forms::Role::Picture);
  imgIcon.setRole(forms::Role::Picture);
  mLang[0].setChecked(true);
  mWindows.setChecked(true);
  mUIcolor.setVisible(false);
  mUIcolor.setEnabled(false);

  onUnload = [this] { Form_Unload(); };
  onEscape = [this] { mExit_Click(); };
  lstGames.onClick = [this] { lstGames_Click(); };
  lstGames.toolTipOf = [this](int row) { return ToolTipOf(row); };
  lstGames.descriptionOf = [this](int row) { return DescriptionOf(row); };
  lstGames.onDblClick = [this] { cmdPlay_Click(); };
  cmdPlay.onClick = [this] { cmdPlay_Click(); };
  cmdConfGame.onClick = [this] { cmdConfGame_Click(); };
  for (int index = 0; index < 2; ++index)
    optGames[index].onClick = [this, index] { optGames_Click(index); };
  for (int index = 0; index < 3; ++index)
    mLang[index].onClick = [this, index] { mLang_Click(index); };
  mConfig.onClick = [this] { mConfig_Click(); };
  mClearNVRAM.onClick = [this] { mClearNVRAM_Click(); };
  mExit.onClick = [this] { mExit_Click(); };
  mHomepage.onClick = [] { launch::OpenUrl(kHomePage); };
  mAbout.onClick = [this] { mAbout_Click(); };
}

void Form1::Form_Load(std::future<startup::Loaded> loading) {
  base::RunGuarded([&] {
    icon_ = forms::Picture::ProgramIcon(imgIcon.box().width);
    imgDefault.setPicture(forms::Picture::DefaultSnapshot());
    prepareToShow();
  });
  auto loaded = loading.get();
  const auto failure = loaded.failure;
  startup::Adopt(std::move(loaded));
  if (failure) return AbortWith(i18n::Msg(*failure));
  base::RunGuarded([&] {
    SelectGamesFilter();
    ApplyLanguage();
  });
  centreOnScreen();
  show();
}

void Form1::Form_Unload() {
  if (!Aborting) {
    if (gaming_) gaming_->close();
    config::SaveUserSettings();
  }
  forms::LeaveEventLoop();
}

void Form1::mExit_Click() { forms::EndProgram()(0); }

void Form1::NameAnswers() {
  using i18n::Message;
  using i18n::Msg;
  forms::NameAnswers({Msg(Message::AnswerOk), Msg(Message::AnswerYes), Msg(Message::AnswerNo),
                      Msg(Message::AnswerCancel)});
}

void Form1::AbortWith(const std::string& message) {
  NameAnswers();
  forms::MsgBox(message, forms::Buttons::Ok, forms::BoxIcon::Critical,
                i18n::Msg(i18n::Message::ErrorTitle));
  Aborting = true;
  forms::EndProgram()(1);
}

}  // namespace ui
