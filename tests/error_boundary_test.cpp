#include "base/error_boundary.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace base {

TEST(ErrorBoundary, EndsBothAndTellsOfAFaultThatIsNoFailure) {
  std::string told;
  UnexpectedErrorHandler() = [&](const std::string& what) { told += what; };
  EXPECT_FALSE(RunGuarded([] { throw Failure("a failure"); }));
  EXPECT_FALSE(RunGuarded([] { throw std::out_of_range("a fault"); }));
  UnexpectedErrorHandler() = nullptr;
  EXPECT_EQ(told, "a fault");
}

}  // namespace base
