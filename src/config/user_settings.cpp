#include "config/user_settings.h"

#include <string>

#include "base/error_boundary.h"
#include "core/module1.h"
#include "platform/settings_store.h"

namespace config {

void SaveUserSettings() {
  base::RunGuarded([] {
    platform::SettingsStore store("Kestrivane UI");
    store.save("General", "GameListPref", std::to_string(Module1::GameListPref));
    store.save("General", "Language", std::to_string(Module1::CurrentLanguage));
    for (std::size_t entry = 1; entry < Module1::RomPaths.size(); ++entry) {
      const auto digit = std::to_string(entry);
      store.save("Path", "ROMS" + digit, Module1::RomPaths[entry]);
      store.save("Path", "SNAP" + digit, Module1::SnapPaths[entry]);
      store.save("Path", "ICON" + digit, Module1::IconPaths[entry]);
    }
    for (const auto& record : Module1::PlayLog) {
      if (record.GameId.empty()) break;
      store.save("GameTimeLog", record.GameId, record.PlayCount + "," + record.PlaySeconds);
    }
  });
}

}  // namespace config
