#include "config/writable_names.h"

#include <algorithm>

#include "base/text.h"
#include "config/comment_keys.h"
#include "config/config_reader.h"

namespace config {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20; }

}  // namespace

bool IsWritableName(std::string_view name) {
  return name.find('\\') == std::string_view::npos && IsWritablePath(name);
}

bool IsWritablePath(std::string_view path) {
  const auto isSeparator = [](char c) { return IsControl(c) || c == '*' || c == '"'; };
  const auto isInPath = [&](std::string_view key) { return base::ContainsIgnoringCase(path, key); };
  // In a path that begins with a slash, a backslash is part of a name, but it would be read back
  // as a separator.
  return base::IsUtf8(path) && std::ranges::none_of(path, isSeparator) &&
         std::ranges::none_of(kPathKeys, isInPath) &&
         !(path.starts_with('/') && path.find('\\') != std::string_view::npos);
}

bool IsWritableValue(std::string_view path) {
  return path.find_first_of(";=") == std::string_view::npos &&
         path.find("[ ") == std::string_view::npos &&
         !base::ContainsIgnoringCase(path, kFrontEndMark);
}

bool IsWritableGame(const std::string& romName) {
  if (romName.empty() || std::ranges::any_of(romName, IsControl)) return false;
  Configuration read;
  read.Profiles.resize(2);
  const auto result =
      ParseConfigText("[ " + romName + " ]\r\n;GameTimeLog=" + romName + ",1,2\r\n", read);
  const auto& play = read.PlayLog[0];
  return result.complete && !result.markSeen && read.Profiles.size() == 3 &&
         read.Profiles[2].Name == romName && play.GameId == romName && play.PlayCount == "1" &&
         play.PlaySeconds == "2" && read.PlayLog[1].GameId.empty();
}

}  // namespace config
