// The configuration file: after any bytes were read, what is written gives the same text again.
// In between, a game of any name is played.
#include "base/error_boundary.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "config/writable_names.h"
#include "core/bindings.h"
#include "platform/code_page.h"
#include "startup/startup.h"
#include "support.h"

namespace {

using fuzz::Require;

config::Configuration Start() {
  auto start = config::Defaults(Module1::AppFolder);
  // Only a few inputs have default bindings, which keeps the written text short.
  for (auto slot = core::kFirstInputSlot + 4; slot < core::kSlotCount; ++slot)
    start.Profiles[0].Slots[slot].Value = core::kNoBinding;
  return start;
}

// Reads the bytes into the shared state.
void Read(std::string_view bytes) {
  static const auto start = Start();
  auto read = start;
  config::ParseConfigText(platform::DecodeLines(bytes), read);
  Require(read.GameListPref <= 1, "the filter is set");
  for (const auto& profile : read.Profiles) Require(base::IsUtf8(profile.Name), "names are UTF-8");
  config::Adopt(std::move(read));
}

std::string Written() { return platform::EncodeCodePage(config::ConfigText()); }

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  Read(bytes);
  auto& profiles = Module1::Profiles;
  if (profiles.size() > core::kMaxProfiles)
    return Require(!base::RunGuarded([] { config::ConfigText(); }),
                   "too many rows are not written");
  const auto text = platform::DecodeLines(bytes);
  const auto game = text.substr(0, text.find(base::kLineEnd));
  const bool isCounted = config::IsWritableGame(game);
  if (isCounted) Module1::PlayLog[0] = {game, "1", "30"};
  // A header in the input can give a row a name whose written header is read as another name.
  for (auto row = profiles.begin() + 2; row != profiles.end(); ++row)
    if (row->Name == "Global" || row->Name.starts_with("]") ||
        row->Name.find(" ]") != row->Name.npos)
      row->Name = "odd";
  const auto rows = profiles.size();
  const auto written = Written();
  bool isCleared = false;
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    isCleared |= profiles[1].Slots[slot].Value == core::kNoBinding &&
                 profiles[0].Slots[slot].Value != core::kNoBinding;
  Read(written);
  Require(!isCounted || Module1::PlayLog[0].GameId == game, "a play that was counted is kept");
  Require(profiles.size() == rows, "each row is kept");
  const auto rewritten = Written();
  Require(isCleared == (rewritten != written), "only a cleared binding changes the file");
  if (!isCleared) return;
  Read(rewritten);
  Require(Written() == rewritten, "the next write changes nothing");
}
