#include "core/profiles.h"

#include "base/failure.h"
#include "base/text.h"

namespace core {

void ResetInputsToDefaults(std::vector<Profile>& profiles) {
  for (Slot slot = kFirstInputSlot; slot < kSlotCount; ++slot)
    profiles[1].Slots[slot].Value = profiles[0].Slots[slot].Value;
}

std::vector<std::size_t> RowsOfGame(const std::string& romName) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 2; row < Module1::Profiles.size(); ++row)
    if (Module1::Profiles[row].Name == romName) rows.push_back(row);
  return rows;
}

void RecordGlobalValue(Slot slot) {
  const auto& standard = Module1::Profiles[0].Slots[slot].Value;
  const auto& global = Module1::Profiles[1].Slots[slot].Value;
  Module1::EffectiveValues[slot] = global.empty() ? standard : global;
}

std::string EffectiveValue(Slot slot) {
  RecordGlobalValue(slot);
  auto value = Module1::EffectiveValues[slot];
  if (Module1::OptionScope == kGlobalScope) return value;
  if (Module1::OptionScope >= Module1::GameCatalog.size()) throw base::Failure("no such game");
  // Of several sections of a game, the last with this option counts.
  for (const auto row : RowsOfGame(Module1::GameCatalog[Module1::OptionScope].RomName))
    if (const auto& own = Module1::Profiles[row].Slots[slot].Value; !own.empty()) value = own;
  return value;
}

int EffectiveNumber(Slot slot) { return base::ToInteger(EffectiveValue(slot)); }

}  // namespace core
