#include "platform/patience.h"

#include <algorithm>
#include <thread>

namespace platform {

std::atomic<std::chrono::microseconds>& FilePatience() {
  static std::atomic<std::chrono::microseconds> patience(std::chrono::seconds(1));
  return patience;
}

bool RetryUntil(const std::function<bool()>& attempt) {
  constexpr std::chrono::microseconds kPause(5000);
  using Clock = std::chrono::steady_clock;
  const auto patience = FilePatience().load();
  const auto end = Clock::now() + patience;
  for (bool isLast = false; !attempt(); isLast = Clock::now() >= end) {
    if (isLast) return false;
    std::this_thread::sleep_for(std::min(kPause, patience));
  }
  return true;
}

}  // namespace platform
