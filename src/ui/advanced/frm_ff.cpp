#include "ui/advanced/frm_ff.h"

#include <array>

#include "base/error_boundary.h"
#include "core/module1.h"
#include "core/profiles.h"

namespace ui {
namespace {

constexpr int kForcePage = 0;
constexpr int kKeyMouseFrame = 2;
constexpr const char* kDescriptionText =
    "Percentages represent the maximum strength for each effect. A setting of 0 disables them "
    "entirely.        Values above 100% may clip or distort the effect.";

constexpr int kLeft = 240, kMiddle = 3960, kHalf = 3480, kWhole = 7200;
constexpr const char* kPercent = " %";

// In the order in which the Tab key visits them: by rows, from the left.
constexpr std::array<AdvancedBarPlan, 11> kBars = {{
    {0, 0, kLeft, 870, kHalf, "Constant force:", core::option::DirectInputConstForceMax, 0, 200, 0,
     kPercent},
    {1, 0, kMiddle, 870, kHalf, "Self centering:", core::option::DirectInputSelfCenterMax, 0, 200,
     0, kPercent},
    {2, 0, kLeft, 2070, kHalf, "Friction:", core::option::DirectInputFrictionMax, 0, 200, 0,
     kPercent},
    {3, 0, kMiddle, 2070, kHalf, "Vibrate:", core::option::DirectInputVibrateMax, 0, 200, 0,
     kPercent},
    {7, 1, kLeft, 870, kWhole, "Constant force threshold:", core::option::XInputConstForceThreshold,
     0, 200, 0, kPercent},
    {6, 1, kLeft, 2070, kHalf, "Constant force:", core::option::XInputConstForceMax, 0, 200, 0,
     kPercent},
    {5, 1, kMiddle, 2070, kHalf, "Vibrate:", core::option::XInputVibrateMax, 0, 200, 0, kPercent},
    {10, 2, kLeft, 720, kHalf, "Sensitivity:", core::option::InputKeySensitivity, 1, 100, 25, ""},
    {9, 2, kMiddle, 720, kHalf, "Decay speed:", core::option::InputKeyDecaySpeed, 1, 200, 50, ""},
    {8, 2, kLeft, 2640, kHalf, "X deadzone:", core::option::InputMouseXDeadZone, 0, 99, 0,
     kPercent},
    {4, 2, kMiddle, 2640, kHalf, "Y deadzone:", core::option::InputMouseYDeadZone, 0, 99, 0,
     kPercent},
}};

}  // namespace

frmFF::frmFF() : Form("frmFF", forms::Border::FixedTool, 7965, 4950) {
  setTitle("   Advanced options");
  setDefaultButton(cmdSave);
  optADV[0].select();
  optADV[2].setEnabled(false);
  constexpr const char* kToolTips[kPages] = {"Force Feedback", "Key & Mouse", "Joystick"};
  for (int page = 0; page < kPages; ++page) {
    optADV[page].setToolTip(kToolTips[page]);
    optADV[page].setAccessibleName(kToolTips[page]);
    optADV[page].onClick = [this, page] { optADV_Click(page); };
  }
  for (int index = 0; index < kFrames; ++index) {
    frame[index].setVisible(false);
    frame[index].setAccessibleName(kToolTips[index == 0 ? 0 : index - 1]);
  }
  for (auto& description : lblDesc) {
    description.setCaption(kDescriptionText);
    description.setWordWrap(true);
  }
  for (const auto& plan : kBars)
    bars_.push_back(std::make_unique<AdvancedBar>(frame[plan.frame], plan));
  onLoad = [this] { Form_Load(); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  btnCancel.onClick = [this] { close(); };
}

int frmFF::ForceFrame() { return Module1::AdvancedInputSystem == 0 ? 0 : 1; }

void frmFF::Form_Load() {
  ShowFrame(Module1::AdvancedInputSystem);
  joystick_.load();
  base::RunGuarded(
      [this] { chkFF[ForceFrame()].setValue(core::EffectiveNumber(core::option::ForceFeedback)); });
  for (const auto& bar : bars_)
    if (bar->frame() == ForceFrame() || bar->frame() == kKeyMouseFrame) bar->load();
  optADV[0].setFocus();
}

void frmFF::ShowFrame(int index) {
  for (int page = 0; page < kFrames; ++page) frame[page].setVisible(page == index);
}

void frmFF::optADV_Click(int index) {
  ShowFrame(index == kForcePage ? Module1::AdvancedInputSystem : index + 1);
}

void frmFF::cmdSave_Click() {
  StageOption(core::option::ForceFeedback, chkFF[ForceFrame()].value());
  for (const auto& bar : bars_)
    if (bar->frame() == ForceFrame() || bar->frame() == kKeyMouseFrame) bar->stage();
  close();
}

}  // namespace ui
