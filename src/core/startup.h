// The steps of the program's start that need no window.
#pragma once

namespace core {

// Shared state from nothing: tables sized, built-in folders, defaults, resolutions.
void FillSharedState();

// Creates the four working folders that are missing; stops quietly at the first that can't be.
void EnsureFolders();

}  // namespace core
