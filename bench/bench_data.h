// The measured situation: 254 games, 253 of them with options of their own.
#pragma once

#include <string>

#include "core/main_form.h"

namespace bench {

inline constexpr int kGames = 254;

class NoForm : public core::MainForm {
 public:
  void SetTitle(const std::string&) override {}
  void SelectGamesFilter(int) override {}
  void TickLanguage(int) override {}
  void PrepareToShow() override {}
  void RefreshGameList() override {}
  void BecomeVisible() override {}
  void AbortWith(const std::string&, const std::string&) override {}
};

// An empty folder that is gone at the program's end.
std::string NewFolder();

std::string GameName(int game);

// Shared state: the catalogue, and a row of 28 options for each game but one.
void FillState();

}  // namespace bench
