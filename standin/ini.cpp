#include "ini.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "text.h"

namespace standin {

namespace fs = std::filesystem;

namespace {

const std::vector<Option> kDefaults = {
    {"XResolution", "496"},
    {"YResolution", "384"},
    {"Throttle", "1"},
    {"ShowFrameRate", "0"},
    {"FullScreen", "0"},
    {"WideScreen", "0"},
    {"FragmentShader", ""},
    {"VertexShader", ""},
    {"SoundVolume", "100"},
    {"EmulateSound", "1"},
    {"MusicVolume", "100"},
    {"EmulateDSB", "1"},
    {"FlipStereo", "0"},
    {"Balance", "0"},
    {"MultiThreaded", "1"},
    {"PowerPCFrequency", "50"},
    {"ForceFeedback", "0"},
    {"DirectInputConstForceMax", "0"},
    {"DirectInputFrictionMax", "0"},
    {"DirectInputSelfCenterMax", "0"},
    {"DirectInputVibrateMax", "0"},
    {"XInputConstForceMax", "0"},
    {"XInputVibrateMax", "0"},
    {"XInputConstForceThreshold", "0"},
    {"InputKeySensitivity", "25"},
    {"InputKeyDecaySpeed", "50"},
    {"InputMouseXDeadZone", "0"},
    {"InputMouseYDeadZone", "0"},
    {"Crosshairs", "0"},
    {"Vsync", "1"},
};

// The folder's entry of that name in any letter case, the exact name preferred; empty if none.
fs::path FindEntry(const fs::path& folder, std::string_view name) {
  std::error_code error;
  if (fs::exists(folder / name, error)) return folder / name;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (SameName(entry.path().filename().string(), name)) return entry.path();
  }
  return {};
}

// Replaces options by the values of a section. Lines before the first header are global.
void Overlay(std::vector<Option>& options, const std::vector<std::string>& lines,
             std::string_view section) {
  bool inside = SameName(section, "Global");
  for (const std::string& line : lines) {
    const std::string_view body = Trim(std::string_view(line).substr(0, line.find(';')));
    if (body.starts_with('[') && body.ends_with(']')) {
      inside = SameName(Trim(body.substr(1, body.size() - 2)), section);
    } else if (inside && !body.empty()) {
      const KeyValue set = SplitKeyValue(body);
      const auto option = std::ranges::find_if(
          options, [&set](const Option& o) { return SameName(o.name, set.key); });
      if (option != options.end()) option->value = set.value;
    }
  }
}

}  // namespace

std::vector<Option> OptionsInForce(std::string_view game) {
  std::vector<Option> options = kDefaults;
  const fs::path folder = FindEntry(".", "Config");
  if (folder.empty()) return options;
  const auto lines = ReadLines(FindEntry(folder, "Kestrivane.ini"), 4 << 20);
  Overlay(options, lines, "Global");
  Overlay(options, lines, game);
  return options;
}

}  // namespace standin
