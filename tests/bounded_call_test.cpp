#include "platform/bounded_call.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>

#include "base/failure.h"

namespace platform {
namespace {

TEST(BoundedCall, SucceedsOnlyInTimeAndWithoutAnException) {
  const std::chrono::seconds kLong(20);
  EXPECT_TRUE(SucceedsWithin(kLong, [] {}));
  EXPECT_FALSE(SucceedsWithin(kLong, [] { throw base::Failure("no such drive"); }));

  auto server = std::make_shared<std::promise<void>>();
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(SucceedsWithin(std::chrono::milliseconds(50),
                              [server, kLong] { server->get_future().wait_for(kLong); }));
  EXPECT_LT(std::chrono::steady_clock::now() - start, kLong / 2);
  server->set_value();
}

}  // namespace
}  // namespace platform
