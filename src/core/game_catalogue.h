// The emulator's games: its listing, and which of their archives are there.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/main_form.h"

namespace core {

// Runs the emulator, fills GameCatalog, finds the archives, and makes the main window visible. A
// missing or silent emulator ends the program with a message; any other failure ends the step
// quietly with the window visible.
void LoadGameCatalog(MainForm& form);

// One line of the listing, without blanks at its ends.
void ParseGameListLine(std::string_view line, MainForm& form);

// Sets GameEntry.Available and GameEntry.RomFolder of every game. Folders may be large: `meanwhile`
// is done while the system lists them.
void FindGameArchives(const std::function<void()>& meanwhile = {});

// The title of the main window: program, emulator, version.
std::string MainTitle();

}  // namespace core
