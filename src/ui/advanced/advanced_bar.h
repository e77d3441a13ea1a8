#pragma once

#include <string>

#include "core/module1.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/scroll_bar.h"

namespace ui {

// Which option a bar stands for, and where it stands.
struct AdvancedBarPlan {
  int index;  // of barraD
  int frame;
  int left, top, width;  // twips
  const char* caption;
  core::Slot option;
  int minimum, maximum, start;
  const char* unit;  // behind the value
};

// A scroll bar with its caption, its value and the ends of its range.
class AdvancedBar {
 public:
  AdvancedBar(forms::Frame& frame, const AdvancedBarPlan& plan);

  int frame() const { return plan_.frame; }
  // From the option's value in force: the nearest end for a value outside the range; unchanged for
  // a text that is no number.
  void load();
  // Leaves the bar's value for the next save.
  void stage();

 private:
  void barraD_Change();
  std::string indexed(const char* name, int offset = 0) const;

  AdvancedBarPlan plan_;
  forms::Label label_, lblValue_;
  forms::ScrollBar barraD_;
  forms::Label lblReferencia_, lblReferenciaEnd_;
};

// Leaves a value for the next save.
void StageOption(core::Slot option, int value);

}  // namespace ui
