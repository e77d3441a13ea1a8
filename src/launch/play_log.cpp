#include "launch/play_log.h"

#include <algorithm>
#include <limits>
#include <string>

#include "base/error_boundary.h"
#include "base/failure.h"
#include "base/text.h"
#include "config/user_settings.h"
#include "config/writable_names.h"
#include "core/module1.h"

namespace launch {
namespace {

constexpr long long kLongestUncountedPlay = 20;

// Throws if the sum exceeds the 32 bits in which the figures are read back.
int Sum(int figure, long long more) {
  if (more > std::numeric_limits<int>::max() - std::max(figure, 0))
    throw base::Failure("figure too large");
  return static_cast<int>(figure + more);
}

// Adds the play to the rows of the game, or else to the first free row. Returns false if there is
// no free row, or if the configuration file can't hold a record for this game.
bool CountPlay(const std::string& game, long long seconds) {
  bool counted = false;
  for (auto& record : Module1::PlayLog) {
    if (record.GameId.empty()) {
      if (counted) return true;
      if (!config::IsWritableGame(game)) return false;
      record = {game, "1", std::to_string(seconds)};
      return true;
    }
    if (record.GameId != game) continue;
    counted = true;
    // Both figures are converted before either changes, since the conversion may throw.
    const auto plays = Sum(base::ToInteger(record.PlayCount), 1);
    const auto total = Sum(base::ToInteger(record.PlaySeconds), seconds);
    record.PlayCount = std::to_string(plays);
    record.PlaySeconds = std::to_string(total);
  }
  return counted;
}

}  // namespace

void UpdatePlayLog(platform::Moment start) {
  base::RunGuarded([&] {
    const auto seconds = platform::SecondsSince(start);
    if (seconds <= kLongestUncountedPlay) return;
    if (CountPlay(Module1::LaunchRequest.RomName, seconds)) config::SaveUserSettings();
  });
}

}  // namespace launch
