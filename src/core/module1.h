// The state that the layers share, as plain variables.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace core {

using Slot = int;  // the number of an option

inline constexpr Slot kSlotCount = 128;
// The slots of the general options, named as the options are. The slots of the inputs follow.
namespace option {
enum : Slot {
  XResolution,
  YResolution,
  Throttle,
  ShowFrameRate,
  FullScreen,
  WideScreen,
  FragmentShader,
  VertexShader,
  SoundVolume,
  EmulateSound,
  MusicVolume,
  EmulateDSB,
  FlipStereo,
  Balance,
  MultiThreaded,
  PowerPCFrequency,
  ForceFeedback,
  DirectInputConstForceMax,
  DirectInputFrictionMax,
  DirectInputSelfCenterMax,
  DirectInputVibrateMax,
  XInputConstForceMax,
  XInputVibrateMax,
  XInputConstForceThreshold,
  InputKeySensitivity,
  InputKeyDecaySpeed,
  InputMouseXDeadZone,
  InputMouseYDeadZone,
  Crosshairs,
  Vsync,
};
}  // namespace option

inline constexpr Slot kGeneralSlotCount = 30;
inline constexpr Slot kFirstInputSlot = kGeneralSlotCount;
// The configuration file keeps a game's own values for the slots before this one only.
inline constexpr Slot kPerGameSlots = option::Crosshairs;
// frmFF edits the slots from this one to the last before kPerGameSlots.
inline constexpr Slot kFirstAdvancedSlot = option::ForceFeedback;
inline constexpr unsigned char kGlobalScope = 254;
inline constexpr unsigned char kFilterBeingSet = 9;  // a value of GameListPref
inline constexpr unsigned char kRawInput = 2;        // a value of Profile.InputMethod
inline constexpr std::size_t kSearchedFolders = 4;  // of a FolderList: the built-in one, the user's
inline constexpr std::size_t kMaxGames = 254;
inline constexpr std::size_t kSpareGameRows = 2;  // empty ones at the end of GameCatalog
inline constexpr std::size_t kMaxProfiles = 255;

// Entry 0 is the built-in folder; an empty entry ends the list.
using FolderList = std::array<std::string, 5>;

struct GameEntry {
  std::string Title;
  std::string RomName;
  bool Available = false;
  unsigned char RomFolder = 0;  // index in RomPaths of a folder that holds the archive
};

struct PlayRecord {
  std::string GameId;  // the first empty one ends the table
  std::string PlayCount;
  std::string PlaySeconds;
};

using PlayRecords = std::array<PlayRecord, 41>;

struct OptionSlot {
  unsigned char Kind = 0;  // 0 input of player 1, 1 of player 2, 3 general (2 is free); row 0 only
  std::string Value;       // as in the configuration file; empty if this profile does not set it
  std::string Name;        // row 0 only
};

struct Profile {
  std::string Name;
  std::array<OptionSlot, kSlotCount> Slots;
  unsigned char InputMethod = 0;  // 0 DirectInput, 1 XInput, 2 Raw Input
};

struct Resolution {
  int Width = 0;
  int Height = 0;
};

struct LaunchOrder {
  std::string CommandLine;
  std::string RomName;
};

}  // namespace core

namespace Module1 {

inline std::string AppFolder;
inline core::FolderList RomPaths, SnapPaths, IconPaths;
inline std::string EmulatorVersion;
inline unsigned char GameListPref = 0;     // 0 all games, 1 only available; 9 while it is being set
inline unsigned char CurrentLanguage = 0;  // 0 English, 1 Spanish, 2 Portuguese
inline std::vector<core::GameEntry> GameCatalog;
// The last entry, 0 by 0, ends the list.
inline constexpr std::array<core::Resolution, 21> ResolutionList = {{
    {496, 384},   {640, 480},   {800, 600},   {1024, 768},  {1152, 864},
    {1280, 720},  {1280, 768},  {1280, 800},  {1280, 960},  {1280, 1024},
    {1360, 768},  {1366, 768},  {1600, 900},  {1600, 1024}, {1600, 1200},
    {1680, 1050}, {1920, 1080}, {1920, 1200}, {1920, 1440}, {2048, 1536},
}};
inline std::vector<core::Profile> Profiles;  // 0 Default, 1 Global, then one row a game
inline core::LaunchOrder LaunchRequest;
inline std::string InputChoice;
inline core::PlayRecords PlayLog;
// The bytes of the configuration file that this run read in full or wrote last. A save first
// copies a file with other bytes.
inline std::optional<std::string> KnownConfigFile;
inline bool ConfigFileHasMoreRows = false;  // more than Profiles can hold; then nothing is saved
inline std::string ErrorText;
inline unsigned char OptionScope = 0;  // 254 the global options, else a row of GameCatalog
inline bool OptionsSaved = false;
inline unsigned char AdvancedInputSystem = 0;
// Of general options the global values, which a save compares with; of inputs and Crosshairs what
// is shown and edited.
inline std::array<std::string, core::kSlotCount> EffectiveValues;
inline std::array<std::string, core::kGeneralSlotCount> StagedOptions;

// Sets every variable but AppFolder to its start value: GameCatalog and Profiles have two empty
// rows, all else is empty, zero or false.
void ResetSharedState();

}  // namespace Module1
