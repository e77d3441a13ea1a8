#pragma once

#include <cerrno>
#include <cstring>

#include "base/failure.h"

namespace platform {

// Fails with what the last system call left behind.
inline void Check(bool success) {
  if (!success) throw base::Failure(std::strerror(errno));
}

}  // namespace platform
