#pragma once

#include "platform/patience.h"

namespace support {

// For its lifetime files are waited for no longer than this.
struct ShortPatience {
  explicit ShortPatience(std::chrono::microseconds patience = std::chrono::milliseconds(20)) {
    platform::FilePatience() = patience;
  }
  ~ShortPatience() { platform::FilePatience() = usual; }

  const std::chrono::microseconds usual = platform::FilePatience();
};

}  // namespace support
