// The contents of the configuration file. The fields have the names of the shared variables that
// they go to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/module1.h"

namespace config {

struct Configuration {
  core::FolderList RomPaths, SnapPaths, IconPaths;
  std::vector<core::Profile> Profiles = std::vector<core::Profile>(2);
  core::PlayRecords PlayLog;
  unsigned char GameListPref = 0;
  unsigned char CurrentLanguage = 0;
  std::optional<std::string> KnownConfigFile;
  bool ConfigFileHasMoreRows = false;
};

// The configuration without a file. The Global row is empty; it has no default bindings yet.
Configuration Defaults(const std::string& appFolder);

// Moves all of it into the shared state.
void Adopt(Configuration configuration);

}  // namespace config
