// The edge at which a failure ends: no failure leaves the procedure that uses it.
#pragma once

#include <utility>

namespace base {

// Runs `steps`; answers whether they came to their end. What was done before a failure stays done.
template <class Steps>
bool Quietly(Steps&& steps) noexcept {
  try {
    std::forward<Steps>(steps)();
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace base
