#include "launch/play_tracking.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <stdexcept>

#include "base/quietly.h"
#include "base/text.h"
#include "config/user_settings.h"
#include "core/emulator_contract.h"
#include "core/module1.h"
#include "platform/files.h"
#include "platform/process.h"

namespace launch {
namespace {

using namespace Module1;

constexpr long long kLongestUncountedPlay = 20;

// Throws where the sum leaves the 32 bits that the figures are read back in.
int Sum(int figure, long long more) {
  if (more > std::numeric_limits<int>::max() - std::max(figure, 0))
    throw std::overflow_error("figure too large");
  return static_cast<int>(figure + more);
}

// Adds the play to the rows of the game, or to the first free row; false if there is neither.
bool CountPlay(const std::string& game, long long seconds) {
  bool counted = false;
  for (auto& record : PlayLog) {
    if (record.GameId.empty()) {
      if (!counted) record = {game, "1", std::to_string(seconds)};
      return true;
    }
    if (record.GameId != game) continue;
    counted = true;
    // Both figures must be numbers before either changes.
    const auto plays = Sum(base::ToInteger(record.PlayCount), 1);
    const auto total = Sum(base::ToInteger(record.PlaySeconds), seconds);
    record.PlayCount = std::to_string(plays);
    record.PlaySeconds = std::to_string(total);
  }
  return counted;
}

std::string LogText() {
  const auto* const separator = AppFolder.ends_with('\\') || AppFolder.ends_with('/') ? "" : "\\";
  const auto file = AppFolder + separator + std::string(core::kErrorLog);
  const auto text = platform::ReadText(file);
  std::size_t at = 0;
  for (int line = 0; line < core::kErrorLogHeaderLines && at < text.size(); ++line)
    at = text.find(base::kLineEnd, at) + base::kLineEnd.size();
  platform::DeleteFile(file);
  return text.substr(at);
}

}  // namespace

void RunAndWait(const std::string& commandLine, const std::function<void()>& onTick) {
  base::Quietly([&] {
    platform::StartedProcess emulator(commandLine);
    for (bool running = true; running;) {
      running = emulator.ExitStatus() == platform::kStillActive;
      onTick();
      platform::TheClock().sleep(std::chrono::seconds(1));
    }
  });
}

std::string FormatElapsed(platform::Moment start) {
  return base::HoursMinutesSeconds(platform::SecondsSince(start));
}

void UpdatePlayLog(platform::Moment start) {
  base::Quietly([&] {
    const auto seconds = platform::SecondsSince(start);
    if (seconds <= kLongestUncountedPlay) return;
    if (CountPlay(LaunchRequest.RomName, seconds)) config::SaveUserSettings();
  });
}

bool ReadErrorLog() {
  bool failed = false;
  base::Quietly([&] {
    const auto text = LogText();
    if (base::ContainsIgnoringCase(text, core::kGoodEnd)) return;
    ErrorText = base::Trim(text);
    failed = true;
  });
  return failed;
}

}  // namespace launch
