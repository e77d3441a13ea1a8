// The configuration file: after any bytes were read, writing and reading give the same state, as
// far as the format can store it, and a second write changes nothing. In between, a game of any
// name is played.
#include <algorithm>

#include "../tests/support/state_text.h"
#include "base/error_boundary.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/bindings.h"
#include "launch/play_log.h"
#include "platform/clock.h"
#include "platform/code_page.h"
#include "startup/startup.h"
#include "support.h"

namespace {

using config::Configuration;
using fuzz::Require;

// Only inputs before this one have default bindings, which keeps the written text short.
constexpr core::Slot kBoundByDefault = core::kFirstInputSlot + 4;

Configuration Start() {
  startup::FillSharedState();
  auto start = config::Defaults(Module1::AppFolder);
  for (auto slot = kBoundByDefault; slot < core::kSlotCount; ++slot)
    start.Profiles[0].Slots[slot].Value = core::kNoBinding;
  Module1::Profiles = start.Profiles;
  return start;
}

// Reads the bytes into the shared state. Its rows are reused, since creating new ones would take
// most of the time.
void Read(std::string_view bytes) {
  static const auto start = Start();
  Configuration read;
  read.RomPaths = start.RomPaths;
  read.SnapPaths = start.SnapPaths;
  read.IconPaths = start.IconPaths;
  read.Profiles = std::move(Module1::Profiles);
  read.Profiles.resize(2);
  read.Profiles[1] = {};
  config::ParseConfigText(platform::DecodeLines(bytes), read);
  Require(read.GameListPref <= 1, "the filter is set");
  Require(read.Profiles.size() >= 2, "the first two rows stay");
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot)
    Require(read.Profiles[0].Slots[slot].Value == start.Profiles[0].Slots[slot].Value,
            "the defaults stay");
  for (const auto& profile : read.Profiles) Require(base::IsUtf8(profile.Name), "names are UTF-8");
  config::Adopt(std::move(read));
}

std::string Written() { return platform::EncodeCodePage(config::ConfigText()); }

// Plays a game of this name. The play gets a row of its own or none, and no other row changes.
void Play(std::string_view name) {
  platform::TheClock().now = [] { return platform::Moment(std::chrono::hours(1000)); };
  Module1::LaunchRequest.RomName = name;
  const auto before = Module1::PlayLog;
  launch::UpdatePlayLog(platform::TheClock().now() - std::chrono::seconds(30));
  for (std::size_t row = 0; row < before.size(); ++row)
    Require(Module1::PlayLog[row].GameId == before[row].GameId ||
                (Module1::PlayLog[row].GameId == name && before[row].GameId.empty()),
            "each row keeps its game");
}

// Reduces the state to what the format can store, with effective values for all games, and returns
// it as text.
std::string StorableState() {
  using namespace Module1;
  for (auto* list : {&RomPaths, &SnapPaths, &IconPaths})
    std::fill(std::find(list->begin() + 1, list->begin() + 4, ""), list->end(), "");
  std::fill(
      std::find_if(PlayLog.begin(), PlayLog.end(), [](auto& play) { return play.GameId.empty(); }),
      PlayLog.end(), core::PlayRecord());
  Profiles[1].Name.clear();
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot) {
    auto& value = Profiles[1].Slots[slot].Value;
    const bool isNone = slot >= core::kFirstInputSlot && value == core::kNoBinding;
    if (value.empty() || isNone) value = Profiles[0].Slots[slot].Value;
  }
  for (auto row = Profiles.begin() + 2; row != Profiles.end(); ++row)
    for (auto slot = core::kPerGameSlots; slot < core::kSlotCount; ++slot)
      row->Slots[slot].Value.clear();
  return support::StateText();
}

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  Read(bytes);
  if (Module1::Profiles.size() > core::kMaxProfiles)
    return Require(!base::RunGuarded([] { config::ConfigText(); }),
                   "too many rows are not written");
  const auto text = platform::DecodeLines(bytes);
  Play(std::string_view(text).substr(0, text.find(base::kLineEnd)));
  // A header in the input can give a row a name whose written header is read as another name.
  for (auto row = Module1::Profiles.begin() + 2; row != Module1::Profiles.end(); ++row)
    if (row->Name == "Global" || row->Name.starts_with("]") ||
        row->Name.find(" ]") != row->Name.npos)
      row->Name = "odd";
  const auto written = Written();
  bool cleared = false;
  for (auto slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    cleared |= Module1::Profiles[1].Slots[slot].Value == core::kNoBinding &&
               Module1::Profiles[0].Slots[slot].Value != core::kNoBinding;
  const auto state = StorableState();
  Read(written);
  const auto rewritten = Written();
  Require(cleared == (rewritten != written), "only a cleared binding changes the file");
  Require(StorableState() == state, "what the format can store comes back");
  if (!cleared) return;
  Read(rewritten);
  Require(Written() == rewritten, "the next write changes nothing");
}
