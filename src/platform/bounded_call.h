#pragma once

#include <chrono>
#include <functional>

namespace platform {

// Runs `call` on a thread of its own and waits for at most `limit`. Returns whether it finished in
// that time without an exception. A call that takes longer goes on unwatched, so it must own what
// it uses. Meant for volumes whose server may be off, where a system call can block without end.
bool SucceedsWithin(std::chrono::milliseconds limit, std::function<void()> call);

}  // namespace platform
