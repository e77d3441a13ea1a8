// All that is fixed of the emulator, a program of its own that lies in AppFolder.
#pragma once

#include <string_view>

namespace core {

inline constexpr std::string_view kEmulatorFile = "Kestrivane.exe";
inline constexpr std::string_view kListingCommand = "Kestrivane.exe -print-games";
inline constexpr std::string_view kPlayCommand = "Kestrivane \"";

// The listing: the banner carries the version between this text and one closing character; games
// follow the separator, short name in the first 14 columns, title from column 14 on.
inline constexpr std::string_view kBanner = "Kestrivane: A Sega Model 3 Arcade Emulator (Version ";
inline constexpr std::string_view kSeparator = "-------         -----";
inline constexpr int kNameColumns = 14;

inline constexpr std::string_view kConfigFile = "Config\\Kestrivane.ini";
inline constexpr std::string_view kErrorLog = "error.log";
inline constexpr int kErrorLogHeaderLines = 7;
inline constexpr std::string_view kGoodEnd = "Program terminated normally.";

}  // namespace core
