#include "ui/advanced/joystick_page.h"

#include <array>
#include <string>

namespace ui {
namespace {

struct Setting {
  const char* name;
  const char* range;  // minimum / maximum (default)
};

constexpr std::array<Setting, 5> kSettings = {{{"DeadZone", "0 / 99 (0)"},
                                               {"Saturation", "0 / 200 (100)"},
                                               {"MinVal", "-32768 / 32768 (-32768)"},
                                               {"MaxVal", "-32768 / 32768 (32768)"},
                                               {"OffVal", "-32768 / 32768 (0)"}}};
constexpr int kAxisList = 1;
constexpr int kSettingList = 2;
constexpr int kMaxValueChars = 6;

}  // namespace

JoystickPage::JoystickPage(forms::Frame& frame)
    : lblJoy_{{frame, "lblJoy(0)", {240, 330, 1500, 255}, "Device:"},
              {frame, "lblJoy(1)", {1890, 330, 1500, 255}, "Axis type:"},
              {frame, "lblJoy(2)", {3540, 330, 1800, 255}, "Setting type:"}},
      cmbJoy_{{frame, "cmbJoy(0)", {240, 600, 1500, 345}},
              {frame, "cmbJoy(1)", {1890, 600, 1500, 345}},
              {frame, "cmbJoy(2)", {3540, 600, 1800, 345}}},
      lblValue_(frame, "lblJoy(3)", {5490, 330, 900, 255}, "Value:"),
      tbxValue_(frame, "tbxValue", {5490, 600, 900, 345}, forms::TextBox::Accept::Anything,
                kMaxValueChars),
      lblValueX_(frame, "lblValueX", {3540, 990, 3900, 255}),
      cmdAdd_(frame, "cmdAdd", {6540, 600, 390, 345}, "+"),
      cmdDel_(frame, "cmdDel", {7020, 600, 390, 345}, "-"),
      lst_(frame, "lst", {240, 1320, 7200, 2700}) {
  tbxValue_.setText("99");
  cmdDel_.setEnabled(false);
  for (const auto* device : {"", "1", "2"}) cmbJoy_[0].add(device);
  for (const auto* axis : {"X", "Y", "Z", "RX", "RY", "RZ"}) cmbJoy_[kAxisList].add(axis);
  for (const auto& setting : kSettings) cmbJoy_[kSettingList].add(setting.name);
  for (int list = 0; list < kLists; ++list) {
    cmbJoy_[list].onClick = [this, list] { cmbJoy_Click(list); };
    cmbJoy_[list].setAccessibleName(lblJoy_[list].caption());
  }
  tbxValue_.setAccessibleName(lblValue_.caption());
  lst_.setAccessibleName("Joystick settings");
  cmdAdd_.onClick = [this] { cmdAdd_Click(); };
  cmdDel_.onClick = [this] { cmdDel_Click(); };
}

void JoystickPage::load() {
  cmbJoy_[kAxisList].select(0);
  cmbJoy_[kSettingList].select(0);
}

void JoystickPage::cmbJoy_Click(int index) {
  if (index != kSettingList) return;
  const auto setting = static_cast<std::size_t>(cmbJoy_[kSettingList].selectedRow());
  lblValueX_.setCaption(kSettings.at(setting).range);
}

void JoystickPage::cmdAdd_Click() {
  const int row = lst_.add("InputJoy" + cmbJoy_[0].text() + cmbJoy_[kAxisList].text() +
                           cmbJoy_[kSettingList].text() + " = " + tbxValue_.text());
  cmdDel_.setEnabled(true);
  lst_.select(row);
  lst_.setFocus();
}

void JoystickPage::cmdDel_Click() {
  lst_.remove(lst_.selectedRow());
  if (lst_.count() == 0) {
    cmdDel_.setEnabled(false);
    cmbJoy_[0].setFocus();
    return;
  }
  lst_.select(0);
  lst_.setFocus();
}

}  // namespace ui
