// The texts that mark the front-end's own lines in the configuration file. The emulator takes
// these lines for comments.
#pragma once

#include <array>
#include <string_view>

namespace config {

// Stands in the heading of every file that the front-end wrote, and in no other file.
inline constexpr std::string_view kFrontEndMark = "Kestrivane UI®";

// The last heading of a file that the front-end wrote.
inline constexpr std::string_view kLastHeading = "KVL configuration";

inline constexpr std::array<std::string_view, 3> kPathKeys = {
    ";ROMpaths=", ";SNAPpaths=", ";ICONpaths="};
inline constexpr std::string_view kPlayLogKey = ";GameTimeLog=";
inline constexpr std::string_view kInputMethodKey = ";InputMethod=";
inline constexpr std::string_view kListFilterKey = ";GameListPref=";
inline constexpr std::string_view kLanguageKey = ";KVLLanguage=";

}  // namespace config
