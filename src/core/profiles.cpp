#include "core/profiles.h"

#include "base/failure.h"
#include "base/text.h"
#include "core/option_catalogue.h"

namespace core {

using namespace Module1;

void ResetInputsToDefaults(std::vector<Profile>& profiles) {
  for (Slot slot = kFirstInputSlot; slot < kSlotCount; ++slot)
    profiles[1].Slots[slot].Value = profiles[0].Slots[slot].Value;
}

std::vector<std::size_t> RowsOfGame(const std::string& romName) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 2; row < Profiles.size(); ++row)
    if (Profiles[row].Name == romName) rows.push_back(row);
  return rows;
}

std::string EffectiveValue(Slot slot) {
  const auto& standard = Profiles[0].Slots[slot].Value;
  const auto& global = Profiles[1].Slots[slot].Value;
  EffectiveValues[slot] = global.empty() ? standard : global;
  auto value = EffectiveValues[slot];
  if (OptionScope == kGlobalScope) return value;
  if (OptionScope >= GameCatalog.size()) throw base::Failure("no such game");
  for (const auto row : RowsOfGame(GameCatalog[OptionScope].RomName))
    if (const auto& own = Profiles[row].Slots[slot].Value; !own.empty()) value = own;
  return value;
}

std::string ValueInForce(std::string_view option) { return EffectiveValue(OptionIndex(option)); }

int NumberInForce(std::string_view option) { return base::ToInteger(ValueInForce(option)); }

}  // namespace core
