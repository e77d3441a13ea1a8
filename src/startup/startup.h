// The start of the program up to the point where the main window can be filled.
#pragma once

#include <future>
#include <optional>
#include <string>

#include "config/configuration.h"
#include "core/game_catalogue.h"
#include "i18n/message_catalogue.h"

namespace startup {

struct Loaded {
  config::Configuration configuration;
  core::GameListing listing;
  std::optional<i18n::Message> failure;  // if set, the program shows this message and ends
};

// Starts the steps that need no window: working folders, configuration file, the emulator's
// listing, archives. They run on another thread if the system can start one, and touch no shared
// state. The future never throws.
std::future<Loaded> BeginLoading(std::string appFolder);

// Sets the shared state, except AppFolder, to what it is before anything is loaded.
void FillSharedState();

// Moves what was loaded into the shared state.
void Adopt(Loaded loaded);

// Creates the four working folders that are missing; stops at the first that can't be created.
void EnsureFolders(const std::string& appFolder);

}  // namespace startup
