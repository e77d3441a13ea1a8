#pragma once

#include <cerrno>
#include <cstring>

#include "base/failure.h"

namespace platform {

// Throws a Failure with the text of errno if `success` is false.
inline void Check(bool success) {
  if (!success) throw base::Failure(std::strerror(errno));
}

}  // namespace platform
