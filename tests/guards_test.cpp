// Failures, errors and delays must not spread to the caller.
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "base/error_boundary.h"
#include "platform/bounded_call.h"

namespace {

TEST(ErrorBoundary, CatchesAllExceptionsAndReportsThoseThatAreNoFailures) {
  std::string reported;
  base::UnexpectedErrorHandler() = [&](const std::string& what) { reported += what; };
  EXPECT_FALSE(base::RunGuarded([] { throw base::Failure("a failure"); }));
  EXPECT_FALSE(base::RunGuarded([] { throw std::out_of_range("a bug"); }));
  base::UnexpectedErrorHandler() = nullptr;
  EXPECT_EQ(reported, "a bug");
}

TEST(BoundedCall, SucceedsOnlyInTimeAndWithoutAnException) {
  const std::chrono::seconds kLong(20);
  EXPECT_TRUE(platform::SucceedsWithin(kLong, [] {}));
  EXPECT_FALSE(platform::SucceedsWithin(kLong, [] { throw base::Failure("no such drive"); }));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(platform::SucceedsWithin(std::chrono::milliseconds(50),
                                        [kLong] { std::this_thread::sleep_for(kLong); }));
  EXPECT_LT(std::chrono::steady_clock::now() - start, kLong / 2);
}

}  // namespace
