// The clock that measures plays and pauses. A test can replace it.
#pragma once

#include <chrono>
#include <functional>

namespace platform {

// Steady: setting the system's clock does not change it.
using Moment = std::chrono::steady_clock::time_point;

struct Clock {
  std::function<Moment()> now;
  std::function<void(std::chrono::milliseconds)> sleep;
};

Clock& TheClock();

// Whole seconds from `start` to now.
long long SecondsSince(Moment start);

}  // namespace platform
