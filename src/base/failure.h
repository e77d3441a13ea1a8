// The exception for an expected failure: the system refuses something, or a text or value is
// invalid.
#pragma once

#include <stdexcept>

namespace base {

struct Failure : std::runtime_error {
  using runtime_error::runtime_error;
};

}  // namespace base
