// The edge at which a failure ends: none leaves the procedure that uses it.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/failure.h"

namespace base {

// Told of what reached an edge and is no Failure: a fault of the program, kept from the user all
// the same. Tests install it.
std::function<void(const std::string& what)>& OnFault();
void ReportFault() noexcept;

// Runs `steps`; answers whether they came to their end. What was done before a failure stays done.
template <class Steps>
bool Quietly(Steps&& steps) noexcept {
  try {
    std::forward<Steps>(steps)();
    return true;
  } catch (const Failure&) {
    return false;
  } catch (...) {
    ReportFault();
    return false;
  }
}

}  // namespace base
