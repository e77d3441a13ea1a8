// The main window: the list of games, the panel of the selected game, the menus.
#pragma once

#include <future>
#include <string>

#include "core/module1.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/image.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/option_button.h"
#include "startup/startup.h"

namespace ui {

class frmGaming;

class Form1 : public forms::Form {
 public:
  Form1();

  // Waits for the loading and shows the window, or shows a message and ends the program.
  void Form_Load(std::future<startup::Loaded> loading);
  // Fills the list with the games that pass the filter and selects the first one.
  void RefreshGameList();

 private:
  void Form_Unload();
  void AbortWith(const std::string& message);
  // Sets the captions of message box buttons in the current language.
  static void NameAnswers();

  // List and panel.
  void SelectGamesFilter();
  void ShowGameSnapshot(int row);
  void ShowGameIcon(int row);
  void ShowPlayStats();
  void lstGames_Click();
  void optGames_Click(int index);
  void cmdPlay_Click();
  const core::GameEntry& GameOfRow(int row) const;
  const core::GameEntry& SelectedGame() const;
  std::string ToolTipOf(int row) const;
  std::string DescriptionOf(int row) const;

  // Menus and language.
  void ApplyLanguage();
  void mLang_Click(int index);
  void ShowOptions();
  void mConfig_Click();
  void cmdConfGame_Click();
  void mClearNVRAM_Click();
  void mAbout_Click();
  void mExit_Click();

  bool Aborting = false;
  frmGaming* gaming_ = nullptr;  // set while the in-game window is open

  forms::Label lblGameTitle{
      *this, "lblGameTitle", {720, 120, 10095, 495}, "KESTRIVANE UI®", {18, true}};
  forms::Image imgIcon{*this, "imgIcon", {120, 120, 480, 480}, forms::Stretch::No};
  forms::ListBox lstGames{
      *this, "lstGames", {135, 735, 4695, 4860}, forms::Sorting::IgnoringCase, {9.75}};
  forms::Label Label1{*this, "Label1", {135, 5580, 4695, 315}, " "};
  forms::Label lblInfo{*this, "lblInfo", {135, 5640, 4695, 315}, {}, {8.25, false, true}};
  forms::OptionButton optGames[2] = {
      {*this, "optGames(0)", {120, 5900, 1815, 435}, "All games"},
      {*this, "optGames(1)", {1920, 5900, 2175, 435}, "Only available"}};
  forms::CommandButton cmdConfGame{
      *this, "cmdConfGame", {128, 6368, 3720, 375}, "Configure selected title..."};
  forms::Image imgGames{*this, "imgGames", {4935, 735, 5910, 5160}, forms::Stretch::Yes};
  forms::Label lblTP{*this, "lblTP", {4920, 6120, 4095, 495}, {}, {9.75}, forms::Align::Right};
  forms::CommandButton cmdPlay{*this, "cmdPlay", {9255, 6008, 1575, 735}, "PLAY!", {14.25, true}};
  forms::Image imgDefault{*this, "imgDefault", {4080, 6360, 480, 375}, forms::Stretch::Yes};

  forms::MenuItem mFile{*this, "mFile", "&File"};
  forms::MenuItem mLanguage{mFile, "mLanguage", "&Language"};
  forms::MenuItem mLang[3] = {{mLanguage, "mLang(0)", "&English"},
                              {mLanguage, "mLang(1)", "&Portuguese"},
                              {mLanguage, "mLang(2)", "&Spanish"}};
  forms::MenuItem mUIcolor{mFile, "mUIcolor", "&UI Color"};
  forms::MenuItem mBlack{mUIcolor, "mBlack", "&Black"};
  forms::MenuItem mWhite{mUIcolor, "mWhite", "W&hite"};
  forms::MenuItem mWindows{mUIcolor, "mWindows", "&Windows"};
  forms::MenuItem mExit{mFile, "mExit", "&Exit"};
  forms::MenuItem mTools{*this, "mTools", "&Tools"};
  forms::MenuItem mConfig{mTools, "mConfig", "&Options"};
  forms::MenuItem mLinea{mTools, "mLinea", "-"};
  forms::MenuItem mClearNVRAM{mTools, "mClearNVRAM", "&Clear NVRAMs"};
  forms::MenuItem mHelp{*this, "mHelp", "&Help"};
  forms::MenuItem mHomepage{mHelp, "mHomepage", "&Kestrivane UI Homepage"};
  forms::MenuItem mAbout{mHelp, "mAbout", "&About..."};

  forms::Picture icon_;
};

}  // namespace ui
