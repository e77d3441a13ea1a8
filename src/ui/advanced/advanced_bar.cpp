#include "ui/advanced/advanced_bar.h"

#include <algorithm>
#include <cmath>

#include "base/error_boundary.h"
#include "base/text.h"
#include "core/module1.h"
#include "core/profiles.h"

namespace ui {
namespace {

constexpr int kBarCount = 11;
constexpr int kHalfWidth = 2000;
constexpr int kLine = 255;

}  // namespace

void StageOption(core::Slot option, int value) {
  Module1::StagedOptions[option] = std::to_string(value);
}

AdvancedBar::AdvancedBar(forms::Frame& frame, const AdvancedBarPlan& plan)
    : plan_(plan),
      label_(frame, indexed("label").c_str(), {plan.left, plan.top, plan.width, kLine},
             plan.caption),
      lblValue_(frame, indexed("lblValue").c_str(),
                {plan.left + plan.width - kHalfWidth / 2, plan.top, kHalfWidth / 2, kLine}, {},
                {8.25, true}, forms::Align::Right),
      barraD_(frame, indexed("barraD").c_str(), {plan.left, plan.top + 270, plan.width, 330},
              plan.minimum, plan.maximum, 10, plan.start),
      lblReferencia_(frame, indexed("lblReferencia").c_str(),
                     {plan.left, plan.top + 630, kHalfWidth / 2, kLine},
                     std::to_string(plan.minimum)),
      lblReferenciaEnd_(
          frame, indexed("lblReferencia", kBarCount).c_str(),
          {plan.left + plan.width - kHalfWidth / 2, plan.top + 630, kHalfWidth / 2, kLine},
          std::to_string(plan.maximum), {}, forms::Align::Right) {
  barraD_.setAccessibleName(plan.caption);
  barraD_.onChange = [this] { barraD_Change(); };
  barraD_Change();
}

std::string AdvancedBar::indexed(const char* name, int offset) const {
  return std::string(name) + "(" + std::to_string(plan_.index + offset) + ")";
}

void AdvancedBar::barraD_Change() {
  lblValue_.setCaption(std::to_string(barraD_.value()) + plan_.unit);
  barraD_.setValueText(lblValue_.caption());
}

void AdvancedBar::load() {
  base::RunGuarded([this] {
    const auto number = base::ToNumber(core::EffectiveValue(plan_.option));
    if (number)
      barraD_.setValue(
          static_cast<int>(std::lround(std::clamp<double>(*number, plan_.minimum, plan_.maximum))));
  });
}

void AdvancedBar::stage() { StageOption(plan_.option, barraD_.value()); }

}  // namespace ui
