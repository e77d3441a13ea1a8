#include "ui/main/frm_gaming.h"

#include <chrono>
#include <utility>

#include "core/emulator_contract.h"
#include "core/module1.h"
#include "i18n/message_catalogue.h"
#include "launch/error_log.h"
#include "launch/play_log.h"
#include "launch/run_loop.h"
#include "platform/files.h"
#include "platform/forms/application.h"
#include "ui/main/form4.h"

namespace ui {
namespace {

using i18n::Message;
using i18n::Msg;

constexpr int kGoodEndSeconds = 3;

}  // namespace

frmGaming::frmGaming(forms::Form& main, const std::string& title, const forms::Picture& icon)
    : Form("frmGaming", forms::Border::None, 5955, 4290), main_(main) {
  setTitle(title);
  lblGameTitle.setCaption(title);
  imgIcon.setPicture(icon);
  setColours(forms::kWhite, forms::kBlack);
  lblGameTitle.setWordWrap(true);
  imgIcon.setRole(forms::Role::Picture);
  imgIcon.setAccessibleName(Msg(Message::Icons));
  lblInfo.setBorder(true);
  Label2.setWordWrap(true);
  Label2.setBackColour(forms::kBlack);
  Label2.setTextColour(forms::kWhite);
  setCloseRefused(true);
  onActivate = [this] { Form_Activate(); };
}

std::string frmGaming::KeysText() const {
  constexpr std::pair<Message, const char*> kKeys[] = {
      {Message::KeyReset, ":  ALT + R "},         {Message::KeyPause, ":  ALT + P "},
      {Message::KeyState, ":  F5 / F6 / F7 "},    {Message::KeyMusicVolume, ":  F9 / F10 "},
      {Message::KeySoundVolume, ":  F11 / F12 "}, {Message::KeyCrosshairs, ":  ALT + I "},
      {Message::KeyFrameLimit, ":  ALT + T "}};
  std::string text;
  for (const auto& [message, key] : kKeys)
    text += (text.empty() ? "" : "\r\n") + Msg(message) + key;
  return text;
}

void frmGaming::Form_Activate() {
  Label1.setCaption(Msg(Message::GamingTime));
  Label2.setCaption(Msg(Message::InGameKeys));
  lblInfo.setCaption(KeysText());
  StartTime = platform::TheClock().now();
  launch::RunAndWait(Module1::LaunchRequest.CommandLine, [this] {
    lblTime.setCaption(launch::FormatElapsed(StartTime));
    AnnounceTime();
    forms::DoEvents();
  });
  launch::UpdatePlayLog(StartTime);
  auto log = platform::Joined(Module1::AppFolder, core::kErrorLog);
  if (platform::FileExists(log)) {
    if (launch::ReadErrorLog())
      ShowReport();
    else
      PauseAfterGoodEnd();
  }
  forms::DoEvents();
  setCloseRefused(false);
  close();
}

// Keeps the window open and repaints it once a second.
void frmGaming::PauseAfterGoodEnd() {
  for (int second = 0; second < kGoodEndSeconds; ++second) {
    forms::DoEvents();
    platform::TheClock().sleep(std::chrono::seconds(1));
  }
}

// Has screen readers speak the time at the start and once a minute. Every second would be too
// often.
void frmGaming::AnnounceTime() {
  const auto minute = platform::SecondsSince(StartTime) / 60;
  if (minute == announcedMinute_) return;
  announcedMinute_ = minute;
  setDescription(Label1.caption() + " " + lblTime.caption());
  if (minute == 0) return;
  Label1.announce();
  lblTime.announce();
}

void frmGaming::ShowReport() {
  forms::DoEvents();
  Form4 report;
  report.centreOver(main_);
  report.showModal(*this);
  main_.repaint();
  repaint();
}

}  // namespace ui
