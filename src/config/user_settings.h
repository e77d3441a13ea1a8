#pragma once

namespace config {

// Copies the preferences to the per-user settings store. Nothing reads them back, so a store that
// can't be written is no error.
void SaveUserSettings();

}  // namespace config
