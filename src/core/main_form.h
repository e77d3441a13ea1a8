// What the start-up steps need of the main window.
#pragma once

#include <string>

namespace core {

class MainForm {
 public:
  MainForm() = default;
  virtual ~MainForm() = default;
  MainForm(const MainForm&) = delete;
  MainForm& operator=(const MainForm&) = delete;

  virtual void SetTitle(const std::string& title) = 0;
  // Selects optGames(index).
  virtual void SelectGamesFilter(int index) = 0;
  // Ticks mLang(index) alone; -1 ticks none.
  virtual void TickLanguage(int index) = 0;
  // Does ahead what takes time when the window is shown.
  virtual void PrepareToShow() = 0;
  virtual void RefreshGameList() = 0;
  virtual void BecomeVisible() = 0;
  // Shows a critical box and ends the program without the unload step.
  virtual void AbortWith(const std::string& message, const std::string& title) = 0;
};

}  // namespace core
