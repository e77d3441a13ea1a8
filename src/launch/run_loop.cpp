#include "launch/run_loop.h"

#include <chrono>

#include "base/error_boundary.h"
#include "base/text.h"
#include "platform/process.h"

namespace launch {

void RunAndWait(const std::string& commandLine, const std::function<void()>& onTick) {
  base::RunGuarded([&] {
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

}  // namespace launch
