#include "support/process_app.h"

namespace {

class Process : public support::ProcessApp {};

TEST_F(Process, CaptureTakesMuchOutputAndDoesNotWaitForAGrandchild) {
  const auto start = std::chrono::steady_clock::now();
  for (const std::string fault : {"flood", "killed", "grandchild"}) {
    addEmulator(fault);
    const auto output = capture("kestrivane.exe -print-games");
    EXPECT_EQ(output.size() > 4194304, fault == "flood") << fault;
    EXPECT_TRUE(output.ends_with("Nimblewick's Parade\r\n")) << fault;
    EXPECT_TRUE(fault != "flood" || run("Kestrivane -print-games") == 0) << "held up by output";
  }
  addEmulator("deluge");
  EXPECT_EQ(capture("kestrivane.exe -print-games").size(), 16U << 20U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));
}

}  // namespace
