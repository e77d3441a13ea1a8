#include "core/module1.h"

namespace Module1 {

void ResetSharedState() {
  for (auto* paths : {&RomPaths, &SnapPaths, &IconPaths}) paths->fill({});
  EmulatorVersion.clear();
  GameListPref = 0;
  CurrentLanguage = 0;
  GameCatalog.assign(core::kSpareGameRows, {});
  Profiles.assign(2, {});
  LaunchRequest = {};
  InputChoice.clear();
  PlayLog.fill({});
  KnownConfigFile.reset();
  ConfigFileHasMoreRows = false;
  ErrorText.clear();
  OptionScope = 0;
  OptionsSaved = false;
  AdvancedInputSystem = 0;
  EffectiveValues.fill({});
  StagedOptions.fill({});
}

}  // namespace Module1
