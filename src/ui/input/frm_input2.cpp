#include "ui/input/frm_input2.h"

#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "core/module1.h"
#include "i18n/message_catalogue.h"

namespace ui {
namespace {

using i18n::Message;
using i18n::Msg;

constexpr std::string_view kKeyboardNames =
    "KEY_UP,KEY_DOWN,KEY_LEFT,KEY_RIGHT,KEY_0,KEY_1,KEY_2,KEY_3,KEY_4,KEY_5,KEY_6,KEY_7,"
    "KEY_8,KEY_9,KEY_COLON,KEY_SEMICOLON,KEY_LESS,KEY_EQUALS,KEY_GREATER,KEY_QUESTION,KEY_AT,"
    "KEY_LEFTBRACKET,KEY_BACKSLASH,KEY_RIGHTBRACKET,KEY_CARET,KEY_UNDERSCORE,KEY_BACKQUOTE,"
    "KEY_A,KEY_B,KEY_C,KEY_D,KEY_E,KEY_F,KEY_G,KEY_H,KEY_I,KEY_J,KEY_K,KEY_L,KEY_M,KEY_N,"
    "KEY_O,KEY_P,KEY_Q,KEY_R,KEY_S,KEY_T,KEY_U,KEY_V,KEY_W,KEY_X,KEY_Y,KEY_Z,KEY_DEL,"
    "KEY_KEYPAD0,KEY_KEYPAD1,KEY_KEYPAD2,KEY_KEYPAD3,KEY_KEYPAD4,KEY_KEYPAD5,KEY_KEYPAD6,"
    "KEY_KEYPAD7,KEY_KEYPAD8,KEY_KEYPAD9,KEY_KEYPADPERIOD,KEY_KEYPADDIVIDE,"
    "KEY_KEYPADMULTIPLY,KEY_KEYPADMINUS,KEY_KEYPADPLUS,KEY_KEYPADENTER,KEY_KEYPADEQUALS,"
    "KEY_INSERT,KEY_HOME,KEY_END,KEY_PGUP,KEY_PGDN,KEY_BACKSPACE,KEY_TAB,KEY_CLEAR,"
    "KEY_RETURN,KEY_PAUSE,KEY_ESCAPE,KEY_SPACE,KEY_EXCLAIM,KEY_DBLQUOTE,KEY_HASH,KEY_DOLLAR,"
    "KEY_AMPERSAND,KEY_QUOTE,KEY_LEFTPAREN,KEY_RIGHTPAREN,KEY_ASTERISK,KEY_PLUS,KEY_COMMA,"
    "KEY_MINUS,KEY_PERIOD,KEY_SLASH,KEY_NUMLOCK,KEY_CAPSLOCK,KEY_SCROLLLOCK,KEY_SHIFT,"
    "KEY_RIGHTSHIFT,KEY_LEFTSHIFT,KEY_CTRL,KEY_RIGHTCTRL,KEY_LEFTCTRL,KEY_ALT,KEY_RIGHTALT,"
    "KEY_LEFTALT,KEY_RIGHTMETA,KEY_LEFTMETA,KEY_RIGHTWINDOWS,KEY_LEFTWINDOWS,KEY_ALTGR,"
    "KEY_COMPOSE,KEY_F1,KEY_F2,KEY_F3,KEY_F4,KEY_F5,KEY_F6,KEY_F7,KEY_F8,KEY_F9,KEY_F10,"
    "KEY_F11,KEY_F12,KEY_F13,KEY_F14,KEY_F15";

constexpr std::string_view kMouseNames =
    "MOUSE_XAXIS,MOUSE_YAXIS,MOUSE_LEFT_BUTTON,MOUSE_MIDDLE_BUTTON,MOUSE_RIGHT_BUTTON,"
    "MOUSE_BUTTON1,MOUSE_BUTTON2,MOUSE_BUTTON3,MOUSE_XAXIS_INV,MOUSE_XAXIS_POS,"
    "MOUSE_XAXIS_NEG,MOUSE_RIGHT,MOUSE_LEFT,MOUSE_AXIS1,MOUSE_AXIS1_INV,MOUSE_AXIS1_POS,"
    "MOUSE_AXIS1_NEG,MOUSE_YAXIS_INV,MOUSE_YAXIS_POS,MOUSE_YAXIS_NEG,MOUSE_DOWN,MOUSE_UP,"
    "MOUSE_AXIS2,MOUSE_AXIS2_INV,MOUSE_AXIS2_POS,MOUSE_AXIS2_NEG,MOUSE_ZAXIS,MOUSE_ZAXIS_INV,"
    "MOUSE_ZAXIS_POS,MOUSE_ZAXIS_NEG,MOUSE_WHEEL_UP,MOUSE_WHEEL_DOWN,MOUSE_AXIS3,"
    "MOUSE_AXIS3_INV,MOUSE_AXIS3_POS,MOUSE_AXIS3_NEG,MOUSE_BUTTONX1,MOUSE_BUTTON4,"
    "MOUSE_BUTTONX2,MOUSE_BUTTON5";

constexpr std::string_view kJoystickNames =
    "JOY_UP,JOY_DOWN,JOY_LEFT,JOY_RIGHT,JOY_BUTTON1,JOY_BUTTON2,JOY_BUTTON3,JOY_BUTTON4,"
    "JOY_BUTTON5,JOY_BUTTON6,JOY_BUTTON7,JOY_BUTTON8,JOY_BUTTON9,JOY_BUTTON10,JOY_BUTTON11,"
    "JOY_BUTTON12,JOY_BUTTON13,JOY_BUTTON14,JOY_BUTTON15,JOY_BUTTON16,JOY_BUTTON17,"
    "JOY_BUTTON18,JOY_BUTTON19,JOY_BUTTON20,JOY_BUTTON21,JOY_BUTTON22,JOY_BUTTON23,"
    "JOY_BUTTON24,JOY_BUTTON25,JOY_BUTTON26,JOY_BUTTON27,JOY_BUTTON28,JOY_BUTTON29,"
    "JOY_BUTTON30,JOY_BUTTON31,JOY_BUTTON32,JOY_XAXIS,JOY_XAXIS_INV,JOY_AXIS1,JOY_AXIS1_INV,"
    "JOY_AXIS1_POS,JOY_AXIS1_NEG,JOY_YAXIS,JOY_YAXIS_INV,JOY_AXIS2,JOY_AXIS2_INV,"
    "JOY_AXIS2_POS,JOY_AXIS2_NEG,JOY_ZAXIS,JOY_ZAXIS_INV,JOY_ZAXIS_POS,JOY_ZAXIS_NEG,"
    "JOY_AXIS3,JOY_AXIS3_INV,JOY_AXIS3_POS,JOY_AXIS3_NEG,JOY_RXAXIS,JOY_RXAXIS_INV,"
    "JOY_RXAXIS_POS,JOY_RXAXIS_NEG,JOY_AXIS4,JOY_AXIS4_INV,JOY_AXIS4_POS,JOY_AXIS4_NEG,"
    "JOY_RYAXIS,JOY_RYAXIS_INV,JOY_RYAXIS_POS,JOY_RYAXIS_NEG,JOY_AXIS5,JOY_AXIS5_INV,"
    "JOY_AXIS5_POS,JOY_AXIS5_NEG,JOY_RZAXIS,JOY_RZAXIS_INV,JOY_RZAXIS_POS,JOY_RZAXIS_NEG,"
    "JOY_AXIS6,JOY_AXIS6_INV,JOY_AXIS6_POS,JOY_AXIS6_NEG,JOY_SLIDER1,JOY_SLIDER1_INV,"
    "JOY_SLIDER1_POS,JOY_SLIDER1_NEG,JOY_AXIS7,JOY_AXIS7_INV,JOY_AXIS7_POS,JOY_AXIS7_NEG,"
    "JOY_SLIDER2,JOY_SLIDER2_INV,JOY_SLIDER2_POS,JOY_SLIDER2_NEG,JOY_AXIS8,JOY_AXIS8_INV,"
    "JOY_AXIS8_POS,JOY_AXIS8_NEG,JOY_POV1_UP,JOY_POV1_DOWN,JOY_POV1_LEFT,JOY_POV1_RIGHT,"
    "JOY_POV2_UP,JOY_POV2_DOWN,JOY_POV2_LEFT,JOY_POV2_RIGHT,JOY_POV3_UP,JOY_POV3_DOWN,"
    "JOY_POV3_LEFT,JOY_POV3_RIGHT,JOY_POV4_UP,JOY_POV4_DOWN,JOY_POV4_LEFT,JOY_POV4_RIGHT";

struct Device {
  std::string_view names;
  std::string_view prefix;  // without the "_" behind it
};

constexpr Device kDevices[] = {
    {kKeyboardNames, "KEY"}, {kMouseNames, "MOUSE"}, {kJoystickNames, "JOY"}};
constexpr int kJoystick = 2;

bool HasNumbers(int row) {
  return row == kJoystick || Module1::Profiles[0].InputMethod == core::kRawInput;
}

}  // namespace

frmInput2::frmInput2() : Form("frmInput2", forms::Border::FixedDialog, 6060, 1935) {
  onLoad = [this] { Form_Load(); };
  onEscape = [this] { close(); };
  std::vector<const forms::Control*> order;
  for (int row = 0; row < kRows; ++row) {
    for (const auto* number : {"1", "2"}) cmbHardN[row].add(number);
    cmbHardN[row].setEnabled(row == kJoystick);
    cmdOK[row].setEnabled(false);
    cmbInputs[row].onClick = [this, row] { cmbInputs_Click(row); };
    cmdOK[row].onClick = [this, row] { cmdOK_Click(row); };
    order.insert(order.end(), {&cmbHardN[row], &cmbInputs[row], &cmdOK[row]});
  }
  setTabOrder(order);
}

void frmInput2::Form_Load() {
  Module1::InputChoice.clear();
  Label1.setCaption(Msg(Message::Keyboard));
  setTitle(Msg(Message::ChooserTitle));
  const forms::Label* const labels[] = {&Label1, &Label2, &Label3};
  for (int row = 0; row < kRows; ++row) {
    for (const auto name : base::Split(kDevices[row].names, ","))
      cmbInputs[row].add(std::string(name));
    cmbInputs[row].setAccessibleName(labels[row]->caption());
    cmbHardN[row].setAccessibleName(labels[row]->caption() + " 1/2");
    cmdOK[row].setAccessibleName("OK: " + labels[row]->caption());
    if (!HasNumbers(row)) continue;
    cmbHardN[row].setEnabled(true);
    cmbHardN[row].select(0);
  }
  cmbInputs[0].setFocus();
}

void frmInput2::cmbInputs_Click(int row) {
  if (!cmbInputs[row].text().empty()) cmdOK[row].setEnabled(true);
}

void frmInput2::cmdOK_Click(int row) {
  const std::string prefix(kDevices[row].prefix);
  Module1::InputChoice = cmbInputs[row].text();
  if (HasNumbers(row))
    Module1::InputChoice = base::ReplaceIgnoringCase(Module1::InputChoice, prefix + "_",
                                                     prefix + cmbHardN[row].text() + "_");
  close();
}

}  // namespace ui
