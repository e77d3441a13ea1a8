#include "support.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "base/error_boundary.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The error boundary must not hide an unexpected error.
  base::UnexpectedErrorHandler() = [](auto& what) { fuzz::Require(false, what.c_str()); };
  fuzz::Examine({reinterpret_cast<const char*>(data), size});
  return 0;
}

namespace fuzz {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

}  // namespace fuzz
