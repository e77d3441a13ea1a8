#include "config/configuration.h"

#include <utility>

#include "core/option_catalogue.h"
#include "platform/files.h"

namespace config {

Configuration Defaults(const std::string& appFolder) {
  Configuration configuration;
  configuration.RomPaths[0] = platform::Joined(appFolder, "roms");
  configuration.SnapPaths[0] = platform::Joined(appFolder, "snaps");
  configuration.IconPaths[0] = platform::Joined(appFolder, "icons");
  // Rows are large. Reserving room for all of them avoids moving them when the table grows.
  configuration.Profiles.reserve(core::kMaxProfiles);
  configuration.Profiles[0] = core::DefaultProfile();
  return configuration;
}

void Adopt(Configuration configuration) {
  Module1::RomPaths = std::move(configuration.RomPaths);
  Module1::SnapPaths = std::move(configuration.SnapPaths);
  Module1::IconPaths = std::move(configuration.IconPaths);
  Module1::Profiles = std::move(configuration.Profiles);
  Module1::PlayLog = std::move(configuration.PlayLog);
  Module1::GameListPref = configuration.GameListPref;
  Module1::CurrentLanguage = configuration.CurrentLanguage;
  Module1::KnownConfigFile = std::move(configuration.KnownConfigFile);
  Module1::ConfigFileHasMoreRows = configuration.ConfigFileHasMoreRows;
}

}  // namespace config
