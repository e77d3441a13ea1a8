#pragma once

#include <chrono>
#include <functional>
#include <thread>
#include <vector>

#include "platform/clock.h"
#include "platform/patience.h"

namespace support {

// Takes the place of the program's clock. Time stands still but for the first sleep; the others
// only rest for a moment, so that a program that is waited for can end.
struct FakeClock {
  FakeClock() {
    platform::TheClock() = {[this] { return now; },
                            [this](std::chrono::milliseconds time) {
                              sleeps.push_back(time.count());
                              if (onSleep) onSleep();
                              if (sleeps.size() == 1) now += firstSleepTakes;
                              std::this_thread::sleep_for(std::chrono::milliseconds(2));
                            }};
  }
  ~FakeClock() { platform::TheClock() = original; }
  FakeClock(const FakeClock&) = delete;
  FakeClock& operator=(const FakeClock&) = delete;

  const platform::Clock original = platform::TheClock();
  platform::Moment now{std::chrono::hours(1000)};
  std::chrono::seconds firstSleepTakes{1};
  std::vector<long long> sleeps;  // milliseconds asked for
  std::function<void()> onSleep;
};

// For its lifetime files are waited for no longer than this.
struct ShortPatience {
  explicit ShortPatience(std::chrono::microseconds patience = std::chrono::milliseconds(20)) {
    platform::FilePatience() = patience;
  }
  ~ShortPatience() { platform::FilePatience() = usual; }

  const std::chrono::microseconds usual = platform::FilePatience();
};

}  // namespace support
