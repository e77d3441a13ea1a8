// Waiting for a file that another program keeps, or for a disk that is away for a moment. It runs
// no events and asks no clock that the play loop or a test replaces, so that any thread may wait.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>

namespace platform {

// How long a file is waited for: a second. Tests make it shorter.
std::atomic<std::chrono::microseconds>& FilePatience();

// Makes an `attempt` until it succeeds or the patience is used up, but twice at least. Whether it
// succeeded; what the last attempt left in the system's error variable is still there.
bool RetryUntil(const std::function<bool()>& attempt);

}  // namespace platform
