#include "core/option_catalogue.h"

#include <stdexcept>
#include <string>

#include "base/text.h"
#include "core/module1.h"

namespace core {
namespace {

// One row an option, in slot order: name, kind, value. Rows end in "*"; the value may hold commas.
constexpr std::string_view kDefaultTable =
    R"(XResolution,3,496*)"
    R"(YResolution,3,384*)"
    R"(Throttle,3,1*)"
    R"(ShowFrameRate,3,0*)"
    R"(FullScreen,3,0*)"
    R"(WideScreen,3,0*)"
    R"(FragmentShader,3,*)"
    R"(VertexShader,3,*)"
    R"(SoundVolume,3,100*)"
    R"(EmulateSound,3,1*)"
    R"(MusicVolume,3,100*)"
    R"(EmulateDSB,3,1*)"
    R"(FlipStereo,3,0*)"
    R"(Balance,3,0*)"
    R"(MultiThreaded,3,1*)"
    R"(PowerPCFrequency,3,50*)"
    R"(ForceFeedback,3,0*)"
    R"(DirectInputConstForceMax,3,0*)"
    R"(DirectInputFrictionMax,3,0*)"
    R"(DirectInputSelfCenterMax,3,0*)"
    R"(DirectInputVibrateMax,3,0*)"
    R"(XInputConstForceMax,3,0*)"
    R"(XInputVibrateMax,3,0*)"
    R"(XInputConstForceThreshold,3,0*)"
    R"(InputKeySensitivity,3,25*)"
    R"(InputKeyDecaySpeed,3,50*)"
    R"(InputMouseXDeadZone,3,0*)"
    R"(InputMouseYDeadZone,3,0*)"
    R"(Crosshairs,3,0*)"
    R"(Vsync,3,1*)"
    R"(InputStart1,0,"KEY_1,JOY1_BUTTON9"*)"
    R"(InputStart2,1,"KEY_2,JOY2_BUTTON9"*)"
    R"(InputCoin1,0,"KEY_3,JOY1_BUTTON10"*)"
    R"(InputCoin2,1,"KEY_4,JOY2_BUTTON10"*)"
    R"(InputServiceA,0,"KEY_5"*)"
    R"(InputServiceB,1,"KEY_7"*)"
    R"(InputTestA,0,"KEY_6"*)"
    R"(InputTestB,1,"KEY_8"*)"
    R"(InputJoyDown,0,"KEY_DOWN,JOY1_DOWN"*)"
    R"(InputJoyDown2,1,"JOY2_DOWN"*)"
    R"(InputJoyLeft,0,"KEY_LEFT,JOY1_LEFT"*)"
    R"(InputJoyLeft2,1,"JOY2_LEFT"*)"
    R"(InputJoyRight,0,"KEY_RIGHT,JOY1_RIGHT"*)"
    R"(InputJoyRight2,1,"JOY2_RIGHT"*)"
    R"(InputJoyUp,0,"KEY_UP,JOY1_UP"*)"
    R"(InputJoyUp2,1,"JOY2_UP"*)"
    R"(InputEscape,0,"KEY_F,JOY1_BUTTON4"*)"
    R"(InputEscape2,1,"JOY2_BUTTON4"*)"
    R"(InputGuard,0,"KEY_D,JOY1_BUTTON3"*)"
    R"(InputGuard2,1,"JOY2_BUTTON3"*)"
    R"(InputKick,0,"KEY_S,JOY1_BUTTON2"*)"
    R"(InputKick2,1,"JOY2_BUTTON2"*)"
    R"(InputPunch,0,"KEY_A,JOY1_BUTTON1"*)"
    R"(InputPunch2,1,"JOY2_BUTTON1"*)"
    R"(InputBeat,0,"KEY_S,JOY1_BUTTON2"*)"
    R"(InputCharge,0,"KEY_D,JOY1_BUTTON3"*)"
    R"(InputJump,0,"KEY_F,JOY1_BUTTON4"*)"
    R"(InputShift,0,"KEY_A,JOY1_BUTTON1"*)"
    R"(InputLongPass,0,"KEY_S,JOY1_BUTTON2"*)"
    R"(InputLongPass2,1,"JOY2_BUTTON2"*)"
    R"(InputShortPass,0,"KEY_A,JOY1_BUTTON1"*)"
    R"(InputShortPass2,1,"JOY2_BUTTON1"*)"
    R"(InputShoot,0,"KEY_D,JOY1_BUTTON3"*)"
    R"(InputShoot2,1,"JOY2_BUTTON3"*)"
    R"(InputSteering,0,"JOY1_XAXIS"*)"
    R"(InputSteeringLeft,0,"KEY_LEFT"*)"
    R"(InputSteeringRight,0,"KEY_RIGHT"*)"
    R"(InputBrake,0,"KEY_DOWN,JOY1_DOWN"*)"
    R"(InputAccelerator,0,"KEY_UP,JOY1_UP"*)"
    R"(InputGearShift1,0,"KEY_Q,JOY1_BUTTON5"*)"
    R"(InputGearShift2,0,"KEY_W,JOY1_BUTTON6"*)"
    R"(InputGearShift3,0,"KEY_E,JOY1_BUTTON7"*)"
    R"(InputGearShift4,0,"KEY_R,JOY1_BUTTON8"*)"
    R"(InputGearShiftN,0,"KEY_T"*)"
    R"(InputGearShiftDown,0,"NONE"*)"
    R"(InputGearShiftUp,0,"NONE"*)"
    R"(InputVR1,0,"KEY_A,JOY1_BUTTON1"*)"
    R"(InputVR2,0,"KEY_S,JOY1_BUTTON2"*)"
    R"(InputVR3,0,"KEY_D,JOY1_BUTTON3"*)"
    R"(InputVR4,0,"KEY_F,JOY1_BUTTON4"*)"
    R"(InputViewChange,0,"KEY_A,JOY1_BUTTON1"*)"
    R"(InputHandBrake,0,"KEY_S,JOY1_BUTTON2"*)"
    R"(InputTwinJoyCrouch,0,"KEY_R,JOY1_BUTTON2"*)"
    R"(InputTwinJoyForward,0,"KEY_UP,JOY1_YAXIS_NEG"*)"
    R"(InputTwinJoyJump,0,"KEY_E,JOY1_BUTTON1"*)"
    R"(InputTwinJoyReverse,0,"KEY_DOWN,JOY1_YAXIS_POS"*)"
    R"(InputTwinJoyStrafeLeft,0,"KEY_LEFT,JOY1_XAXIS_NEG"*)"
    R"(InputTwinJoyStrafeRight,0,"KEY_RIGHT,JOY1_XAXIS_POS"*)"
    R"(InputTwinJoyTurnLeft,0,"KEY_Q,JOY1_RXAXIS_NEG"*)"
    R"(InputTwinJoyTurnRight,0,"KEY_W,JOY1_RXAXIS_POS"*)"
    R"(InputTwinJoyDown1,0,"NONE"*)"
    R"(InputTwinJoyDown2,1,"NONE"*)"
    R"(InputTwinJoyLeft1,0,"NONE"*)"
    R"(InputTwinJoyLeft2,1,"NONE"*)"
    R"(InputTwinJoyRight1,0,"NONE"*)"
    R"(InputTwinJoyRight2,1,"NONE"*)"
    R"(InputTwinJoyUp1,0,"NONE"*)"
    R"(InputTwinJoyUp2,1,"NONE"*)"
    R"(InputTwinJoyShot1,0,"KEY_A,JOY1_BUTTON5"*)"
    R"(InputTwinJoyShot2,1,"KEY_S,JOY1_BUTTON6"*)"
    R"(InputTwinJoyTurbo1,0,"KEY_Z,JOY1_BUTTON7"*)"
    R"(InputTwinJoyTurbo2,1,"KEY_X,JOY1_BUTTON8"*)"
    R"(InputAnalogJoyDown,0,"KEY_DOWN"*)"
    R"(InputAnalogJoyLeft,0,"KEY_LEFT"*)"
    R"(InputAnalogJoyRight,0,"KEY_RIGHT"*)"
    R"(InputAnalogJoyUp,0,"KEY_UP"*)"
    R"(InputAnalogJoyX,0,"JOY_XAXIS,MOUSE_XAXIS"*)"
    R"(InputAnalogJoyY,0,"JOY_YAXIS,MOUSE_YAXIS"*)"
    R"(InputAnalogJoyTrigger,0,"KEY_A,JOY_BUTTON1,MOUSE_LEFT_BUTTON"*)"
    R"(InputAnalogJoyEvent,0,"KEY_S,JOY_BUTTON2,MOUSE_RIGHT_BUTTON"*)"
    R"(InputGunDown,0,"KEY_DOWN"*)"
    R"(InputGunDown2,1,"NONE"*)"
    R"(InputGunLeft,0,"KEY_LEFT"*)"
    R"(InputGunLeft2,1,"NONE"*)"
    R"(InputGunRight,0,"KEY_RIGHT"*)"
    R"(InputGunRight2,1,"NONE"*)"
    R"(InputGunUp,0,"KEY_UP"*)"
    R"(InputGunUp2,1,"NONE"*)"
    R"(InputGunX,0,"MOUSE_XAXIS,JOY1_XAXIS"*)"
    R"(InputGunX2,1,"JOY2_XAXIS"*)"
    R"(InputGunY,0,"MOUSE_YAXIS,JOY1_YAXIS"*)"
    R"(InputGunY2,1,"JOY2_YAXIS"*)"
    R"(InputOffscreen,0,"KEY_S,JOY1_BUTTON2,MOUSE_RIGHT_BUTTON"*)"
    R"(InputOffscreen2,1,"JOY2_BUTTON2"*)"
    R"(InputTrigger,0,"KEY_A,JOY1_BUTTON1,MOUSE_LEFT_BUTTON"*)"
    R"(InputTrigger2,1,"JOY2_BUTTON1"*)"
    R"(InputAutoTrigger,0,0*)"
    R"(InputAutoTrigger2,1,0)";

}  // namespace

void FillDefaultProfile() {
  using namespace Module1;
  Profiles[0].Name = "Default";
  const auto rows = base::Split(kDefaultTable, "*");
  for (std::size_t slot = 0; slot < kSlotCount; ++slot) {
    const auto row = rows.at(slot);
    const auto kindAt = row.find(',') + 1;
    const auto valueAt = row.find(',', kindAt) + 1;
    auto& option = Profiles[0].Slots[slot];
    option.Name = row.substr(0, kindAt - 1);
    option.Kind = base::ToByte(row.substr(kindAt, valueAt - kindAt - 1));
    option.Value = row.substr(valueAt);
  }
}

int OptionIndex(std::string_view name) {
  // Files and forms mostly ask in slot order, so the search begins behind the last find.
  static std::size_t next = 0;
  const auto& slots = Module1::Profiles[0].Slots;
  for (std::size_t step = 0; step < kSlotCount; ++step) {
    const auto slot = (next + step) % kSlotCount;
    if (!base::EqualIgnoringCase(slots[slot].Name, name)) continue;
    next = slot + 1;
    return static_cast<int>(slot);
  }
  return -1;
}

void ResetInputsToDefaults() {
  using namespace Module1;
  for (std::size_t slot = kFirstInputSlot; slot < kSlotCount; ++slot)
    Profiles[1].Slots[slot].Value = Profiles[0].Slots[slot].Value;
}

std::string EffectiveValue(unsigned char slot) {
  using namespace Module1;
  std::string value;
  const auto overlay = [&](const Profile& profile) {
    if (const auto& own = profile.Slots.at(slot).Value; !own.empty()) value = own;
  };
  overlay(Profiles[0]);
  overlay(Profiles[1]);
  EffectiveValues.at(slot) = value;
  if (OptionScope == kGlobalScope) return value;
  for (std::size_t row = 2; row < Profiles.size(); ++row)
    if (Profiles[row].Name == GameCatalog.at(OptionScope).RomName) overlay(Profiles[row]);
  return value;
}

}  // namespace core
