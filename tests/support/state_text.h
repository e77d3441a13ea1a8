#pragma once

#include "core/module1.h"

namespace support {

// The parts of the shared state that a configuration file can set, as far as they differ from a
// fresh start, each as "name=value ": "1.Vsync=0" is a slot of a row of Profiles, "2:name" the row
// itself.
inline std::string StateText() {
  using namespace Module1;
  std::string text;
  const auto add = [&](const std::string& name, const std::string& value) {
    if (!value.empty() && value != "0" && value != ",,") text += name + "=" + value + " ";
  };
  for (std::size_t row = 1; row < Profiles.size(); ++row) {
    const auto number = std::to_string(row);
    if (row > 1 || !Profiles[row].Name.empty()) text += number + ":" + Profiles[row].Name + " ";
    for (core::Slot slot = 0; slot < core::kSlotCount; ++slot)
      if (const auto& value = Profiles[row].Slots[slot].Value; !value.empty())
        text += number + "." + Profiles[0].Slots[slot].Name + "=" + value + " ";
  }
  for (std::size_t entry = 1; entry < RomPaths.size(); ++entry) {
    add("rom" + std::to_string(entry), RomPaths[entry]);
    add("snap" + std::to_string(entry), SnapPaths[entry]);
    add("icon" + std::to_string(entry), IconPaths[entry]);
  }
  for (std::size_t row = 0; const auto& [game, plays, seconds] : PlayLog)
    add("log" + std::to_string(row++), game + "," + plays + "," + seconds);
  add("input", std::to_string(Profiles[1].InputMethod));
  add("pref", std::to_string(GameListPref));
  add("lang", std::to_string(CurrentLanguage));
  return text;
}

}  // namespace support
