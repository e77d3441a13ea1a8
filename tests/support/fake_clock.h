#pragma once

#include <chrono>
#include <functional>
#include <thread>
#include <vector>

#include "platform/clock.h"
#include "platform/patience.h"

namespace support {

// Replaces the program's clock. Only the first sleep advances the time. Each sleep lets 2 ms of
// real time pass, so that a program that is waited for can end.
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
  std::vector<long long> sleeps;  // the requested times in milliseconds
  std::function<void()> onSleep;
};

// Shortens FilePatience while it exists.
struct ShortPatience {
  explicit ShortPatience(std::chrono::microseconds patience = std::chrono::milliseconds(20)) {
    platform::FilePatience() = patience;
  }
  ~ShortPatience() { platform::FilePatience() = usual; }

  const std::chrono::microseconds usual = platform::FilePatience();
};

}  // namespace support
