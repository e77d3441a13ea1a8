#include "startup/startup.h"

#include <utility>

#include "base/error_boundary.h"
#include "config/config_reader.h"
#include "core/emulator_contract.h"
#include "core/option_catalogue.h"
#include "launch/process_capture.h"
#include "platform/files.h"

namespace startup {
namespace {

struct WorkingFolder {
  const char* tested;
  const char* created;
};

constexpr WorkingFolder kWorkingFolders[] = {
    {"roms", "ROMs"}, {"snaps", "Snaps"}, {"icons", "Icons"}, {"config", "Config"}};

// Deletes the report of an earlier run. One that can't be deleted stays.
void DeleteStrayErrorLog(const std::string& appFolder) {
  base::RunGuarded([&] {
    auto log = platform::Joined(appFolder, core::kErrorLog);
    if (platform::FileExists(log)) platform::DeleteFile(log);
  });
}

// Runs the emulator and finds the archives of its games. Sets loaded.failure if the emulator is
// missing or lists nothing. Throws on any other failure.
void LoadGameCatalog(const std::string& appFolder, Loaded& loaded) {
  auto emulator = platform::Joined(appFolder, core::kEmulatorFile);
  if (!platform::FileExists(emulator)) {
    loaded.failure = i18n::Message::EmulatorMissing;
    return;
  }
  auto listing = core::ParseGameListing(
      launch::ShellExecuteCapture(platform::Joined(appFolder, core::kListingCommand), false));
  if (!listing) {
    loaded.failure = i18n::Message::EmulatorSilent;
    return;
  }
  loaded.listing = std::move(*listing);
  DeleteStrayErrorLog(appFolder);
  core::FindGameArchives(loaded.listing.GameCatalog, loaded.configuration.RomPaths);
}

Loaded Load(const std::string& appFolder) {
  Loaded loaded;
  base::RunGuarded([&] {
    loaded.configuration.Profiles[0] = core::DefaultProfile();
    EnsureFolders(appFolder);
    loaded.configuration = config::LoadConfigFile(appFolder);
    LoadGameCatalog(appFolder, loaded);
  });
  return loaded;
}

}  // namespace

void EnsureFolders(const std::string& appFolder) {
  base::RunGuarded([&] {
    for (const auto& folder : kWorkingFolders)
      if (!platform::IsFolder(platform::Joined(appFolder, folder.tested)))
        platform::MakeFolder(platform::Joined(appFolder, folder.created));
  });
}

std::future<Loaded> BeginLoading(std::string appFolder) {
  return std::async(std::launch::async | std::launch::deferred, Load, std::move(appFolder));
}

void FillSharedState() {
  Module1::ResetSharedState();
  config::Adopt(config::Defaults(Module1::AppFolder));
}

void Adopt(Loaded loaded) {
  config::Adopt(std::move(loaded.configuration));
  Module1::EmulatorVersion = std::move(loaded.listing.EmulatorVersion);
  Module1::GameCatalog = std::move(loaded.listing.GameCatalog);
}

}  // namespace startup
