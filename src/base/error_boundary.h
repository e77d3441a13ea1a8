// The boundary that no exception crosses: every event, and every procedure that may fail, runs its
// steps inside one.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/failure.h"

namespace base {

// Called with the text of an exception that reached a boundary and is no Failure: a bug, which the
// user is not bothered with. Without a handler the text becomes one line on standard error. Tests
// install a handler.
std::function<void(const std::string& what)>& UnexpectedErrorHandler();

// Hands the exception in flight to the handler.
void ReportUnexpectedError() noexcept;

// Runs `steps` and returns whether they finished. Steps that were done before an exception stay
// done.
template <class Steps>
bool RunGuarded(Steps&& steps) noexcept {
  try {
    std::forward<Steps>(steps)();
    return true;
  } catch (const Failure&) {
    return false;
  } catch (...) {
    ReportUnexpectedError();
    return false;
  }
}

}  // namespace base
