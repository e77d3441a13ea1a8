// What plays and pauses are measured by; a test puts its own in place.
#pragma once

#include <chrono>
#include <functional>

namespace platform {

// Steady: a change of the system's clock does not move it.
using Moment = std::chrono::steady_clock::time_point;

struct Clock {
  std::function<Moment()> now;
  std::function<void(std::chrono::milliseconds)> sleep;
};

Clock& TheClock();

// Whole seconds from `start` to now.
long long SecondsSince(Moment start);

}  // namespace platform
