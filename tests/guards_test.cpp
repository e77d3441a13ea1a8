// Failures, errors and delays must not spread to the caller.
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "base/error_boundary.h"
#include "platform/bounded_call.h"
#include "support/fake_clock.h"

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

TEST(Patience, IsASecondByTheClockHoweverLongTheAttemptsTake) {
  EXPECT_EQ(platform::FilePatience().load(), std::chrono::seconds(1));
  const support::ShortPatience patience(std::chrono::milliseconds(60));
  const auto start = std::chrono::steady_clock::now();
  int attempts = 0;
  EXPECT_FALSE(platform::RetryUntil([&attempts] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return ++attempts > 9;
  }));
  EXPECT_GE(std::chrono::steady_clock::now() - start, platform::FilePatience().load());
}

}  // namespace
