// All state that lives as long as the program, as plain variables.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace core {

inline constexpr std::size_t kSlotCount = 128;
inline constexpr std::size_t kGeneralSlotCount = 30;
inline constexpr std::size_t kFirstInputSlot = 30;
inline constexpr std::size_t kPerGameSlots = 28;  // the first ones can differ for a game
inline constexpr std::size_t kCrosshairsSlot = 28;
inline constexpr unsigned char kGlobalScope = 254;
inline constexpr unsigned char kFilterBeingSet = 9;  // in GameListPref
inline constexpr unsigned char kRawInput = 2;        // in Profile.InputMethod
inline constexpr std::size_t kSearchedFolders = 4;   // of each list of folders
inline constexpr std::size_t kMaxGames = 254;
inline constexpr std::size_t kMaxProfiles = 255;

struct GameEntry {
  std::string Title;
  std::string RomName;
  bool Available = false;
  unsigned char RomFolder = 0;  // index in RomPaths of a folder that holds the archive
};

struct PlayRecord {
  std::string GameId;  // empty: no row from here on
  std::string PlayCount;
  std::string PlaySeconds;
};

struct OptionSlot {
  unsigned char Kind = 0;  // 0 input of player 1, 1 input of player 2, 3 general; row 0 only
  std::string Value;       // as the configuration file spells it; empty: not set here
  std::string Name;        // row 0 only
};

struct Profile {
  Profile() {}  // NOLINT: written out, it spares zeroing the large row before it is filled
  std::string Name;
  std::array<OptionSlot, kSlotCount> Slots;
  unsigned char InputMethod = 0;  // 0 DirectInput, 1 XInput, 2 Raw Input
};

struct Resolution {
  short Width = 0;
  short Height = 0;
};

struct LaunchOrder {
  std::string CommandLine;
  std::string RomName;
};

}  // namespace core

namespace Module1 {

inline std::string AppFolder;
inline std::array<std::string, 5> RomPaths, SnapPaths, IconPaths;
inline std::string EmulatorVersion;
inline unsigned char GameListPref = 0;     // 0 all games, 1 only available; 9 while it is being set
inline unsigned char CurrentLanguage = 0;  // 0 English, 1 Spanish, 2 Portuguese
inline std::vector<core::GameEntry> GameCatalog;
inline std::array<core::Resolution, 21> ResolutionList;
inline bool GameListHeaderSeen = false;
inline std::vector<core::Profile> Profiles;  // 0 Default, 1 Global, then one row a game
inline core::LaunchOrder LaunchRequest;
inline std::string InputChoice;
inline std::array<core::PlayRecord, 41> PlayLog;
inline std::string ErrorText;
inline unsigned char OptionScope = 0;  // 254 the global options, else a row of GameCatalog
inline bool OptionsSaved = false;
inline unsigned char AdvancedInputSystem = 0;
inline std::array<std::string, core::kSlotCount> EffectiveValues;
inline std::array<std::string, core::kGeneralSlotCount> StagedOptions;

// Puts every variable but AppFolder back to its start value: tables of two empty rows, all else
// empty, zero or false.
void ResetSharedState();

}  // namespace Module1
