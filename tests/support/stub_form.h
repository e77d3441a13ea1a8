#pragma once

#include <string>

#include "core/main_form.h"
#include "core/module1.h"

namespace support {

// Stands in for the main window and notes what is asked of it, in order.
class StubForm : public core::MainForm {
 public:
  void SetTitle(const std::string& title) override { calls += "title(" + title + ") "; }
  void SelectGamesFilter(int index) override {
    calls +=
        "filter(" + std::to_string(index) + " at " + std::to_string(Module1::GameListPref) + ") ";
  }
  void TickLanguage(int index) override { calls += "tick(" + std::to_string(index) + ") "; }
  void PrepareToShow() override {}
  void RefreshGameList() override { calls += "refresh "; }
  void BecomeVisible() override { calls += "visible "; }
  void AbortWith(const std::string& message, const std::string& title) override {
    calls += "abort(" + message + "|" + title + ") ";
  }

  std::string calls;
};

}  // namespace support
