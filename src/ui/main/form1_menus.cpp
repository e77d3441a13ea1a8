// The actions of the menus, and the captions in the current language.
#include <string>
#include <utility>

#include "base/error_boundary.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "i18n/message_catalogue.h"
#include "platform/files.h"
#include "ui/main/form1.h"
#include "ui/main/form3.h"
#include "ui/options/form2.h"

namespace ui {

using i18n::Message;
using i18n::Msg;

namespace {

std::string MainTitle() {
  return "Kestrivane UI®  (Kestrivane " + Module1::EmulatorVersion + Msg(Message::Detected);
}

// The number of the language that each item of the menu selects.
constexpr unsigned char kLanguageOfItem[] = {0, 2, 1};

}  // namespace

void Form1::mLang_Click(int index) {
  Module1::CurrentLanguage = kLanguageOfItem[index];
  ApplyLanguage();
}

void Form1::ApplyLanguage() {
  for (int item = 0; item < 3; ++item)
    mLang[item].setChecked(kLanguageOfItem[item] == Module1::CurrentLanguage);
  setTitle(MainTitle());
  NameAnswers();
  const std::pair<forms::MenuItem&, Message> items[] = {{mFile, Message::File},
                                                        {mLanguage, Message::Language},
                                                        {mLang[0], Message::English},
                                                        {mLang[1], Message::Portuguese},
                                                        {mLang[2], Message::Spanish},
                                                        {mUIcolor, Message::UiColor},
                                                        {mBlack, Message::Black},
                                                        {mWhite, Message::White},
                                                        {mWindows, Message::Windows},
                                                        {mExit, Message::Exit},
                                                        {mTools, Message::Tools},
                                                        {mConfig, Message::Options},
                                                        {mClearNVRAM, Message::ClearNvrams},
                                                        {mHelp, Message::Help},
                                                        {mHomepage, Message::Homepage},
                                                        {mAbout, Message::About}};
  for (const auto& [item, message] : items) item.setCaption(Msg(message));
  cmdPlay.setCaption(Msg(Message::Play));
  optGames[0].setCaption(Msg(Message::AllGames));
  optGames[1].setCaption(Msg(Message::OnlyAvailable));
  cmdConfGame.setCaption(Msg(Message::ConfigureTitle));
  imgGames.setAccessibleName(Msg(Message::Snapshots));
  imgIcon.setAccessibleName(Msg(Message::Icons));
  RefreshGameList();
  lstGames.setFocus();
}

void Form1::ShowOptions() {
  Form2 options(*this);
  options.centreOver(*this);
  options.showModal(*this);
}

void Form1::mConfig_Click() {
  Module1::OptionScope = core::kGlobalScope;
  ShowOptions();
  if (!Module1::OptionsSaved) return;
  core::FindGameArchives(Module1::GameCatalog, Module1::RomPaths);
  RefreshGameList();
  Module1::OptionsSaved = false;
}

void Form1::cmdConfGame_Click() {
  Module1::OptionScope = static_cast<unsigned char>(lstGames.itemData(lstGames.selectedRow()));
  ShowOptions();
}

void Form1::mClearNVRAM_Click() {
  base::RunGuarded(
      [] { platform::DeleteFilesEndingIn(platform::Joined(Module1::AppFolder, "NVRAM"), ".nv"); });
}

void Form1::mAbout_Click() {
  Form3 about;
  about.centreOver(*this);
  about.showModal(*this);
}

}  // namespace ui
