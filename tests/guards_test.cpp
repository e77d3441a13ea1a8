// What keeps the failures, faults and delays of a step from what comes after it.
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "base/error_boundary.h"
#include "platform/bounded_call.h"

namespace {

TEST(ErrorBoundary, EndsBothAndTellsOfAFaultThatIsNoFailure) {
  std::string told;
  base::UnexpectedErrorHandler() = [&](const std::string& what) { told += what; };
  EXPECT_FALSE(base::RunGuarded([] { throw base::Failure("a failure"); }));
  EXPECT_FALSE(base::RunGuarded([] { throw std::out_of_range("a fault"); }));
  base::UnexpectedErrorHandler() = nullptr;
  EXPECT_EQ(told, "a fault");
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
