// Waits for a file that another program has locked, or for a disk that does not answer for a
// moment. It runs no events and does not use platform/clock, so that any thread may wait.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>

namespace platform {

// The longest wait for a file: one second. Tests shorten it.
std::atomic<std::chrono::microseconds>& FilePatience();

// Calls `attempt` until it returns true or FilePatience has passed, twice at least. Returns whether
// it succeeded. The system's error code is still that of the last attempt.
bool RetryUntil(const std::function<bool()>& attempt);

}  // namespace platform
