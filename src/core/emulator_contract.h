// What the front-end knows of the emulator, which is a separate program in AppFolder.
#pragma once

#include <string_view>

namespace core {

inline constexpr std::string_view kEmulatorFile = "Kestrivane.exe";
inline constexpr std::string_view kListingCommand = "Kestrivane.exe -print-games";
inline constexpr std::string_view kPlayCommand = "Kestrivane \"";

// The listing: in the banner, the version stands between this text and one closing character. The
// games follow the separator, with the short name in columns 1 to 14 and the title from column 14
// on. Column 14, mostly a blank, belongs to both.
inline constexpr std::string_view kBanner = "Kestrivane: A Sega Model 3 Arcade Emulator (Version ";
inline constexpr std::string_view kSeparator = "-------         -----";
inline constexpr int kNameColumns = 14;

inline constexpr std::string_view kConfigFile = "Config\\Kestrivane.ini";
inline constexpr std::string_view kErrorLog = "error.log";
inline constexpr int kErrorLogHeaderLines = 7;
inline constexpr std::string_view kGoodEnd = "Program terminated normally.";

}  // namespace core
