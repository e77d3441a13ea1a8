#pragma once

namespace config {

// Leaves a copy of the preferences in the per-user settings store. Nothing reads it back; a store
// that can't be written is no error.
void SaveUserSettings();

}  // namespace config
