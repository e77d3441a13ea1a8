// The error boundary. Two things run inside one: every event handler, so that no exception leaves
// it, and a procedure that goes on after a failure. Other functions throw a Failure, as their
// headers say.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/failure.h"

namespace base {

// Called with the text of an exception that reached a boundary and is not a Failure. Such an
// exception is a bug; the user is not told. Without a handler, one line goes to standard error.
// Tests install a handler.
std::function<void(const std::string& what)>& UnexpectedErrorHandler();

// Hands the exception in flight to the handler.
void ReportUnexpectedError() noexcept;

// Runs `steps` and returns whether they finished. What they did before an exception stays done.
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
