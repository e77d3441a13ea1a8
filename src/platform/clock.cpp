#include "platform/clock.h"

#include <thread>

namespace platform {

Clock& TheClock() {
  static Clock clock{[] { return std::chrono::steady_clock::now(); },
                     [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }};
  return clock;
}

long long SecondsSince(Moment start) {
  return std::chrono::duration_cast<std::chrono::seconds>(TheClock().now() - start).count();
}

}  // namespace platform
