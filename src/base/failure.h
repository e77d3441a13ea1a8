// A failure that the program means: the system refuses, or a text or value can't be taken.
#pragma once

#include <stdexcept>

namespace base {

struct Failure : std::runtime_error {
  using runtime_error::runtime_error;
};

}  // namespace base
