#pragma once

#include <string>

#include "core/module1.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/scroll_bar.h"

namespace ui {

// The option that a bar edits, and the place of the bar.
struct AdvancedBarPlan {
  int index;  // in the control array barraD
  int frame;
  int left, top, width;  // twips
  const char* caption;
  core::Slot option;
  int minimum, maximum, start;
  const char* unit;  // shown after the value
};

// A scroll bar with its caption, its value and the ends of its range.
class AdvancedBar {
 public:
  AdvancedBar(forms::Frame& frame, const AdvancedBarPlan& plan);

  int frame() const { return plan_.frame; }
  // Shows the option's effective value, or the nearest end of the range for a value outside it. The
  // bar stays where it is if the value is no number.
  void load();
  // Stages the bar's value for the next save.
  void stage();

 private:
  void barraD_Change();
  std::string indexed(const char* name, int offset = 0) const;

  AdvancedBarPlan plan_;
  forms::Label label_, lblValue_;
  forms::ScrollBar barraD_;
  forms::Label lblReferencia_, lblReferenciaEnd_;
};

// Sets the option's entry of StagedOptions, which the next save stores.
void StageOption(core::Slot option, int value);

}  // namespace ui
