// The whole road of a start, from the program's folder to what the main window shows.
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
  std::optional<i18n::Message> failure;  // with which the program ends instead of starting
};

// Begins with the steps that need no window: the working folders, the configuration file, the
// emulator's listing, the archives. Another thread does them where the system has one to spare; it
// touches no shared state. No failure leaves it.
std::future<Loaded> BeginLoading(std::string appFolder);

// The shared state as it is when nothing was loaded yet; AppFolder stays.
void FillSharedState();

// Moves what was loaded into the shared state.
void Adopt(Loaded loaded);

// Creates the four working folders that are missing; stops at the first that can't be created.
void EnsureFolders(const std::string& appFolder);

}  // namespace startup
