// The emulator's games: its listing, and which of their archives are there.
#pragma once

#include <string_view>

#include "core/main_form.h"

namespace core {

// Runs the emulator, fills GameCatalog, finds the archives, and makes the main window visible. A
// missing or silent emulator ends the program with a message; any other failure ends the step
// quietly with the window visible.
void LoadGameCatalog(MainForm& form);

// One line of the listing, without blanks at its ends.
void ParseGameListLine(std::string_view line, MainForm& form);

// Sets GameEntry.Available and GameEntry.RomFolder of every game.
void FindGameArchives();

// The title of the main window: program, emulator, version.
std::string MainTitle();

}  // namespace core
