#include "base/quietly.h"

#include <gtest/gtest.h>

namespace base {

TEST(Quietly, EndsBothAndTellsOfAFaultThatIsNoFailure) {
  std::string told;
  OnFault() = [&](const std::string& what) { told += what; };
  EXPECT_FALSE(Quietly([] { throw Failure("a failure"); }));
  EXPECT_FALSE(Quietly([] { throw std::out_of_range("a fault"); }));
  OnFault() = nullptr;
  EXPECT_EQ(told, "a fault");
}

}  // namespace base
