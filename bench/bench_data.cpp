#include "bench_data.h"

#include <filesystem>
#include <functional>

#include "core/module1.h"
#include "startup/startup.h"

namespace bench {

std::string NewFolder() {
  struct Folders {
    std::filesystem::path top = std::filesystem::temp_directory_path() /
                                ("kestrivane-bench-" + std::to_string(std::hash<void*>()(this)));
    int count = 0;
    ~Folders() { std::filesystem::remove_all(top); }
  };
  static Folders folders;
  const auto folder = folders.top / std::to_string(folders.count++);
  std::filesystem::create_directories(folder);
  return folder.string();
}

std::string GameName(int game) { return "game" + std::to_string(1000 + game); }

void FillState() {
  using namespace Module1;
  startup::FillSharedState();
  for (int game = 0; game < kGames; ++game) {
    auto& entry = GameCatalog[GameCatalog.size() - 2];
    entry.RomName = GameName(game);
    // Titles are not in alphabetical order, as in a real listing.
    entry.Title = "Title " + std::to_string((game * 7919) % 1000) + " of the game";
    GameCatalog.emplace_back();
    if (game == 0) continue;
    auto& profile = Profiles.emplace_back();
    profile.Name = entry.RomName;
    for (core::Slot slot = 0; slot < core::kPerGameSlots; ++slot)
      profile.Slots[slot].Value = std::to_string(slot + static_cast<std::size_t>(game));
  }
}

std::future<startup::Loaded> Loaded() {
  std::promise<startup::Loaded> done;
  startup::Loaded loaded;
  loaded.configuration = config::Defaults(Module1::AppFolder);
  loaded.configuration.Profiles = Module1::Profiles;
  loaded.listing.GameCatalog = Module1::GameCatalog;
  done.set_value(std::move(loaded));
  return done.get_future();
}

}  // namespace bench
