// What the menus do, and the language of the main window.
#include "base/quietly.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "i18n/message_catalogue.h"
#include "platform/files.h"
#include "ui/main/form1.h"
#include "ui/main/form3.h"
#include "ui/options/form2.h"

namespace ui {

using i18n::Msg;
using namespace Module1;

namespace {

// The menu's order is not that of the languages' numbers.
constexpr unsigned char kLanguageOfItem[] = {0, 2, 1};

}  // namespace

void Form1::mLang_Click(int index) {
  CurrentLanguage = kLanguageOfItem[index];
  ApplyLanguage();
}

void Form1::ApplyLanguage() {
  for (int item = 0; item < 3; ++item)
    mLang[item].setChecked(kLanguageOfItem[item] == CurrentLanguage);
  setTitle(core::MainTitle());
  const std::pair<forms::MenuItem&, unsigned char> items[] = {
      {mFile, 100},       {mLanguage, 101}, {mLang[0], 102},  {mLang[1], 164},
      {mLang[2], 103},    {mUIcolor, 104},  {mBlack, 105},    {mWhite, 106},
      {mWindows, 107},    {mExit, 108},     {mTools, 109},    {mConfig, 110},
      {mClearNVRAM, 111}, {mHelp, 112},     {mHomepage, 113}, {mAbout, 114}};
  for (const auto& [item, number] : items) item.setCaption(Msg(number));
  cmdPlay.setCaption(Msg(115));
  optGames[0].setCaption(Msg(116));
  optGames[1].setCaption(Msg(117));
  cmdConfGame.setCaption(Msg(118));
  imgGames.setAccessibleName(Msg(162));
  imgIcon.setAccessibleName(Msg(163));
  RefreshGameList();
  lstGames.setFocus();
}

void Form1::ShowOptions() {
  Form2 options(*this);
  options.centreOver(*this);
  options.showModal(*this);
}

void Form1::mConfig_Click() {
  OptionScope = core::kGlobalScope;
  ShowOptions();
  if (!OptionsSaved) return;
  core::FindGameArchives();
  RefreshGameList();
  OptionsSaved = false;
}

void Form1::cmdConfGame_Click() {
  OptionScope = static_cast<unsigned char>(lstGames.itemData(lstGames.selectedRow()));
  ShowOptions();
}

void Form1::mClearNVRAM_Click() {
  base::Quietly([] { platform::DeleteFilesEndingIn(AppFolder + "\\NVRAM", ".nv"); });
}

void Form1::mAbout_Click() {
  Form3 about;
  about.centreOver(*this);
  about.showModal(*this);
}

}  // namespace ui
