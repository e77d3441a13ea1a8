#include "config/user_settings.h"

#include <string>

#include "base/quietly.h"
#include "core/module1.h"
#include "platform/settings_store.h"

namespace config {

void SaveUserSettings() {
  using namespace Module1;
  base::Quietly([] {
    platform::SettingsStore store("Kestrivane UI");
    store.save("General", "GameListPref", std::to_string(GameListPref));
    store.save("General", "Language", std::to_string(CurrentLanguage));
    for (std::size_t entry = 1; entry < RomPaths.size(); ++entry) {
      const auto digit = std::to_string(entry);
      store.save("Path", "ROMS" + digit, RomPaths[entry]);
      store.save("Path", "SNAP" + digit, SnapPaths[entry]);
      store.save("Path", "ICON" + digit, IconPaths[entry]);
    }
    for (const auto& record : PlayLog) {
      if (record.GameId.empty()) break;
      store.save("GameTimeLog", record.GameId, record.PlayCount + "," + record.PlaySeconds);
    }
  });
}

}  // namespace config
