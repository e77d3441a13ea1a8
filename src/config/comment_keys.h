// What begins the front-end's own lines in the configuration file, which are comments to the
// emulator.
#pragma once

#include <array>
#include <string_view>

namespace config {

// A file of ours says it in its head, and no other does.
inline constexpr std::string_view kFrontEndMark = "Kestrivane UI®";

// The last heading of a file of ours.
inline constexpr std::string_view kLastHeading = "KVL configuration";

inline constexpr std::array<std::string_view, 3> kPathKeys = {
    ";ROMpaths=", ";SNAPpaths=", ";ICONpaths="};
inline constexpr std::string_view kPlayLogKey = ";GameTimeLog=";
inline constexpr std::string_view kInputMethodKey = ";InputMethod=";
inline constexpr std::string_view kListFilterKey = ";GameListPref=";
inline constexpr std::string_view kLanguageKey = ";KVLLanguage=";

}  // namespace config
