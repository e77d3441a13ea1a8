#include "core/option_catalogue.h"

#include <array>
#include <string>

#include "base/text.h"

namespace core {
namespace {

struct Option {
  std::string_view name;
  unsigned char kind;  // as OptionSlot.Kind
  std::string_view value;
};

constexpr std::array<Option, kSlotCount> kOptions = {{
    {"XResolution", 3, "496"},
    {"YResolution", 3, "384"},
    {"Throttle", 3, "1"},
    {"ShowFrameRate", 3, "0"},
    {"FullScreen", 3, "0"},
    {"WideScreen", 3, "0"},
    {"FragmentShader", 3, ""},
    {"VertexShader", 3, ""},
    {"SoundVolume", 3, "100"},
    {"EmulateSound", 3, "1"},
    {"MusicVolume", 3, "100"},
    {"EmulateDSB", 3, "1"},
    {"FlipStereo", 3, "0"},
    {"Balance", 3, "0"},
    {"MultiThreaded", 3, "1"},
    {"PowerPCFrequency", 3, "50"},
    {"ForceFeedback", 3, "0"},
    {"DirectInputConstForceMax", 3, "0"},
    {"DirectInputFrictionMax", 3, "0"},
    {"DirectInputSelfCenterMax", 3, "0"},
    {"DirectInputVibrateMax", 3, "0"},
    {"XInputConstForceMax", 3, "0"},
    {"XInputVibrateMax", 3, "0"},
    {"XInputConstForceThreshold", 3, "0"},
    {"InputKeySensitivity", 3, "25"},
    {"InputKeyDecaySpeed", 3, "50"},
    {"InputMouseXDeadZone", 3, "0"},
    {"InputMouseYDeadZone", 3, "0"},
    {"Crosshairs", 3, "0"},
    {"Vsync", 3, "1"},
    {"InputStart1", 0, R"("KEY_1,JOY1_BUTTON9")"},
    {"InputStart2", 1, R"("KEY_2,JOY2_BUTTON9")"},
    {"InputCoin1", 0, R"("KEY_3,JOY1_BUTTON10")"},
    {"InputCoin2", 1, R"("KEY_4,JOY2_BUTTON10")"},
    {"InputServiceA", 0, R"("KEY_5")"},
    {"InputServiceB", 1, R"("KEY_7")"},
    {"InputTestA", 0, R"("KEY_6")"},
    {"InputTestB", 1, R"("KEY_8")"},
    {"InputJoyDown", 0, R"("KEY_DOWN,JOY1_DOWN")"},
    {"InputJoyDown2", 1, R"("JOY2_DOWN")"},
    {"InputJoyLeft", 0, R"("KEY_LEFT,JOY1_LEFT")"},
    {"InputJoyLeft2", 1, R"("JOY2_LEFT")"},
    {"InputJoyRight", 0, R"("KEY_RIGHT,JOY1_RIGHT")"},
    {"InputJoyRight2", 1, R"("JOY2_RIGHT")"},
    {"InputJoyUp", 0, R"("KEY_UP,JOY1_UP")"},
    {"InputJoyUp2", 1, R"("JOY2_UP")"},
    {"InputEscape", 0, R"("KEY_F,JOY1_BUTTON4")"},
    {"InputEscape2", 1, R"("JOY2_BUTTON4")"},
    {"InputGuard", 0, R"("KEY_D,JOY1_BUTTON3")"},
    {"InputGuard2", 1, R"("JOY2_BUTTON3")"},
    {"InputKick", 0, R"("KEY_S,JOY1_BUTTON2")"},
    {"InputKick2", 1, R"("JOY2_BUTTON2")"},
    {"InputPunch", 0, R"("KEY_A,JOY1_BUTTON1")"},
    {"InputPunch2", 1, R"("JOY2_BUTTON1")"},
    {"InputBeat", 0, R"("KEY_S,JOY1_BUTTON2")"},
    {"InputCharge", 0, R"("KEY_D,JOY1_BUTTON3")"},
    {"InputJump", 0, R"("KEY_F,JOY1_BUTTON4")"},
    {"InputShift", 0, R"("KEY_A,JOY1_BUTTON1")"},
    {"InputLongPass", 0, R"("KEY_S,JOY1_BUTTON2")"},
    {"InputLongPass2", 1, R"("JOY2_BUTTON2")"},
    {"InputShortPass", 0, R"("KEY_A,JOY1_BUTTON1")"},
    {"InputShortPass2", 1, R"("JOY2_BUTTON1")"},
    {"InputShoot", 0, R"("KEY_D,JOY1_BUTTON3")"},
    {"InputShoot2", 1, R"("JOY2_BUTTON3")"},
    {"InputSteering", 0, R"("JOY1_XAXIS")"},
    {"InputSteeringLeft", 0, R"("KEY_LEFT")"},
    {"InputSteeringRight", 0, R"("KEY_RIGHT")"},
    {"InputBrake", 0, R"("KEY_DOWN,JOY1_DOWN")"},
    {"InputAccelerator", 0, R"("KEY_UP,JOY1_UP")"},
    {"InputGearShift1", 0, R"("KEY_Q,JOY1_BUTTON5")"},
    {"InputGearShift2", 0, R"("KEY_W,JOY1_BUTTON6")"},
    {"InputGearShift3", 0, R"("KEY_E,JOY1_BUTTON7")"},
    {"InputGearShift4", 0, R"("KEY_R,JOY1_BUTTON8")"},
    {"InputGearShiftN", 0, R"("KEY_T")"},
    {"InputGearShiftDown", 0, R"("NONE")"},
    {"InputGearShiftUp", 0, R"("NONE")"},
    {"InputVR1", 0, R"("KEY_A,JOY1_BUTTON1")"},
    {"InputVR2", 0, R"("KEY_S,JOY1_BUTTON2")"},
    {"InputVR3", 0, R"("KEY_D,JOY1_BUTTON3")"},
    {"InputVR4", 0, R"("KEY_F,JOY1_BUTTON4")"},
    {"InputViewChange", 0, R"("KEY_A,JOY1_BUTTON1")"},
    {"InputHandBrake", 0, R"("KEY_S,JOY1_BUTTON2")"},
    {"InputTwinJoyCrouch", 0, R"("KEY_R,JOY1_BUTTON2")"},
    {"InputTwinJoyForward", 0, R"("KEY_UP,JOY1_YAXIS_NEG")"},
    {"InputTwinJoyJump", 0, R"("KEY_E,JOY1_BUTTON1")"},
    {"InputTwinJoyReverse", 0, R"("KEY_DOWN,JOY1_YAXIS_POS")"},
    {"InputTwinJoyStrafeLeft", 0, R"("KEY_LEFT,JOY1_XAXIS_NEG")"},
    {"InputTwinJoyStrafeRight", 0, R"("KEY_RIGHT,JOY1_XAXIS_POS")"},
    {"InputTwinJoyTurnLeft", 0, R"("KEY_Q,JOY1_RXAXIS_NEG")"},
    {"InputTwinJoyTurnRight", 0, R"("KEY_W,JOY1_RXAXIS_POS")"},
    {"InputTwinJoyDown1", 0, R"("NONE")"},
    {"InputTwinJoyDown2", 1, R"("NONE")"},
    {"InputTwinJoyLeft1", 0, R"("NONE")"},
    {"InputTwinJoyLeft2", 1, R"("NONE")"},
    {"InputTwinJoyRight1", 0, R"("NONE")"},
    {"InputTwinJoyRight2", 1, R"("NONE")"},
    {"InputTwinJoyUp1", 0, R"("NONE")"},
    {"InputTwinJoyUp2", 1, R"("NONE")"},
    {"InputTwinJoyShot1", 0, R"("KEY_A,JOY1_BUTTON5")"},
    {"InputTwinJoyShot2", 1, R"("KEY_S,JOY1_BUTTON6")"},
    {"InputTwinJoyTurbo1", 0, R"("KEY_Z,JOY1_BUTTON7")"},
    {"InputTwinJoyTurbo2", 1, R"("KEY_X,JOY1_BUTTON8")"},
    {"InputAnalogJoyDown", 0, R"("KEY_DOWN")"},
    {"InputAnalogJoyLeft", 0, R"("KEY_LEFT")"},
    {"InputAnalogJoyRight", 0, R"("KEY_RIGHT")"},
    {"InputAnalogJoyUp", 0, R"("KEY_UP")"},
    {"InputAnalogJoyX", 0, R"("JOY_XAXIS,MOUSE_XAXIS")"},
    {"InputAnalogJoyY", 0, R"("JOY_YAXIS,MOUSE_YAXIS")"},
    {"InputAnalogJoyTrigger", 0, R"("KEY_A,JOY_BUTTON1,MOUSE_LEFT_BUTTON")"},
    {"InputAnalogJoyEvent", 0, R"("KEY_S,JOY_BUTTON2,MOUSE_RIGHT_BUTTON")"},
    {"InputGunDown", 0, R"("KEY_DOWN")"},
    {"InputGunDown2", 1, R"("NONE")"},
    {"InputGunLeft", 0, R"("KEY_LEFT")"},
    {"InputGunLeft2", 1, R"("NONE")"},
    {"InputGunRight", 0, R"("KEY_RIGHT")"},
    {"InputGunRight2", 1, R"("NONE")"},
    {"InputGunUp", 0, R"("KEY_UP")"},
    {"InputGunUp2", 1, R"("NONE")"},
    {"InputGunX", 0, R"("MOUSE_XAXIS,JOY1_XAXIS")"},
    {"InputGunX2", 1, R"("JOY2_XAXIS")"},
    {"InputGunY", 0, R"("MOUSE_YAXIS,JOY1_YAXIS")"},
    {"InputGunY2", 1, R"("JOY2_YAXIS")"},
    {"InputOffscreen", 0, R"("KEY_S,JOY1_BUTTON2,MOUSE_RIGHT_BUTTON")"},
    {"InputOffscreen2", 1, R"("JOY2_BUTTON2")"},
    {"InputTrigger", 0, R"("KEY_A,JOY1_BUTTON1,MOUSE_LEFT_BUTTON")"},
    {"InputTrigger2", 1, R"("JOY2_BUTTON1")"},
    {"InputAutoTrigger", 0, "0"},
    {"InputAutoTrigger2", 1, "0"},
}};

static_assert(kOptions[option::Throttle].name == "Throttle");
static_assert(kOptions[option::FlipStereo].name == "FlipStereo");
static_assert(kOptions[option::XInputVibrateMax].name == "XInputVibrateMax");
static_assert(kOptions[option::Vsync].name == "Vsync");
static_assert(option::Vsync + 1 == kFirstInputSlot);

}  // namespace

Profile DefaultProfile() {
  Profile profile;
  profile.Name = "Default";
  for (Slot slot = 0; slot < kSlotCount; ++slot) {
    const auto& [name, kind, value] = kOptions[slot];
    profile.Slots[slot] = {kind, std::string(value), std::string(name)};
  }
  return profile;
}

Slot OptionIndex(std::string_view name) {
  for (Slot slot = 0; slot < kSlotCount; ++slot)
    if (base::EqualIgnoringCase(kOptions[slot].name, name)) return slot;
  return -1;
}

}  // namespace core
