// The configuration file: what was read from any bytes, written and read again is what the format
// can hold of it, and the file settles.
#include "config/config_reader.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/quietly.h"
#include "config/config_writer.h"
#include "core/bindings.h"
#include "core/module1.h"
#include "core/profiles.h"
#include "platform/code_page.h"
#include "startup/startup.h"
#include "support.h"

namespace {

using fuzz::Require;
using namespace Module1;

struct State {
  std::vector<core::Profile> profiles = Profiles;
  std::array<std::array<std::string, 5>, 3> paths = {RomPaths, SnapPaths, IconPaths};
  std::array<core::PlayRecord, 41> playLog = PlayLog;
  int filter = GameListPref;
  int language = CurrentLanguage;
};

bool AreSame(const State& a, const State& b) {
  const auto sameRow = [](const core::Profile& x, const core::Profile& y) {
    return x.Name == y.Name && x.InputMethod == y.InputMethod &&
           std::ranges::equal(x.Slots, y.Slots, {}, &core::OptionSlot::Value,
                              &core::OptionSlot::Value);
  };
  const auto samePlay = [](const core::PlayRecord& x, const core::PlayRecord& y) {
    return x.GameId == y.GameId && x.PlayCount == y.PlayCount && x.PlaySeconds == y.PlaySeconds;
  };
  return a.paths == b.paths && a.filter == b.filter && a.language == b.language &&
         std::ranges::equal(a.profiles, b.profiles, sameRow) &&
         std::ranges::equal(a.playLog, b.playLog, samePlay);
}

State Read(std::string_view text) {
  startup::FillSharedState();
  const auto defaults = Profiles[0];
  auto configuration = config::Defaults(AppFolder);
  config::ParseConfigText(text, configuration);
  config::Adopt(std::move(configuration));
  Require(GameListPref <= 1, "the filter is set");
  Require(Profiles.size() >= 2, "the first two rows stay");
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot)
    Require(Profiles[0].Slots[slot].Value == defaults.Slots[slot].Value, "the defaults stay");
  for (const auto& profile : Profiles) Require(fuzz::IsUtf8(profile.Name), "names are UTF-8");
  return {};
}

bool IsCleared(const State& state, core::Slot slot) {
  return state.profiles[1].Slots[slot].Value == core::kNoBinding &&
         state.profiles[0].Slots[slot].Value != core::kNoBinding;
}

// What a write and a read make of a state.
State Expected(State state) {
  auto& global = state.profiles[1];
  global.Name = "Global";
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot) {
    auto& value = global.Slots[slot].Value;
    const auto& standard = state.profiles[0].Slots[slot].Value;
    if (slot < core::kFirstInputSlot) {
      if (value == standard) value.clear();
    } else {
      if (value.empty()) value = standard;
      if (value == core::kNoBinding) value.clear();
    }
  }
  for (auto row = state.profiles.begin() + 2; row < state.profiles.end(); ++row)
    for (core::Slot slot = core::kPerGameSlots; slot < core::kSlotCount; ++slot)
      row->Slots[slot].Value.clear();
  for (auto& list : state.paths) {
    list[4].clear();
    std::fill(std::find(list.begin() + 1, list.end(), ""), list.end(), "");
  }
  const auto end = std::find_if(state.playLog.begin(), state.playLog.end(),
                                [](const auto& record) { return record.GameId.empty(); });
  std::fill(end, state.playLog.end(), core::PlayRecord{});
  return state;
}

// A hand-made header can name a row so that the header written for it reads as another one.
bool HasOddName(const State& state) {
  return std::any_of(state.profiles.begin() + 2, state.profiles.end(), [](const auto& profile) {
    return profile.Name == "Global" || profile.Name.starts_with("]") ||
           profile.Name.find(" ]") != std::string::npos;
  });
}

using Values = std::array<std::string, core::kSlotCount>;

Values ValuesInForce(unsigned char scope) {
  OptionScope = scope;
  Values values;
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot)
    values[slot] = core::EffectiveValue(slot);
  return values;
}

void CompareValuesInForce(const State& before, const State& after) {
  Profiles = before.profiles;
  const auto old = ValuesInForce(core::kGlobalScope);
  GameCatalog[0].RomName = Profiles.back().Name;
  const auto oldOfGame = ValuesInForce(0);
  Profiles = after.profiles;
  const auto now = ValuesInForce(core::kGlobalScope);
  const auto nowOfGame = ValuesInForce(0);
  for (core::Slot slot = 0; slot < core::kSlotCount; ++slot) {
    const bool cleared = slot >= core::kFirstInputSlot && IsCleared(before, slot);
    Require(now[slot] == (cleared ? before.profiles[0].Slots[slot].Value : old[slot]),
            "the global value in force stays");
    if (before.profiles.size() > 2)
      Require(nowOfGame[slot] == (slot < core::kPerGameSlots ? oldOfGame[slot] : now[slot]),
              "the game's value in force stays");
  }
}

}  // namespace

void fuzz::Examine(std::string_view bytes) {
  static const TempApp app;
  auto state = Read(platform::DecodeLines(bytes));
  if (state.profiles.size() > core::kMaxProfiles)
    return Require(!base::Quietly([] { config::ConfigText(); }), "too many rows are not written");
  auto written = config::ConfigText();
  std::string file;
  const auto write = [&] {
    file = platform::EncodeCodePage(written);
    Require(platform::DecodeCodePage(file) == written, "the text comes back");
  };
  for (auto patience = state.profiles.size(); HasOddName(state); --patience) {
    Require(patience > 0, "odd names settle");
    write();
    state = Read(platform::DecodeLines(file));
    written = config::ConfigText();
  }
  write();
  const auto again = Read(platform::DecodeLines(file));
  auto rewritten = config::ConfigText();
  Require(AreSame(again, Expected(state)), "all that was written comes back");
  bool cleared = false;
  for (core::Slot slot = core::kFirstInputSlot; slot < core::kSlotCount; ++slot)
    cleared = cleared || IsCleared(state, slot);
  Require(cleared == (rewritten != written), "only a cleared binding changes the file");
  CompareValuesInForce(state, again);

  written = rewritten;
  write();
  Read(platform::DecodeLines(file));
  Require(config::ConfigText() == rewritten, "the file settles");
}
