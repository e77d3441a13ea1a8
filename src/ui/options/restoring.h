#pragma once

namespace ui {

// Asks whether defaults are really wanted.
bool AskForDefaults();

}  // namespace ui
