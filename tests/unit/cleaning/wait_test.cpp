#include "cleaning/wait.h"

#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

using Wait = test::ProgramTest;

TEST_F(Wait, LastsForItsInterval) {
  EXPECT_EQ(WaitWithMessages(1000), 258U);
  EXPECT_EQ(host.system.ticks, 1000U);
  EXPECT_GE(front.yields, 1);
}

TEST_F(Wait, TheWrapOfTheCounterMakesNoDifference) {
  host.system.ticks = 0xFFFFFF00;
  EXPECT_EQ(WaitWithMessages(1000), 258U);
  EXPECT_EQ(host.system.ticks, 0xFFFFFF00U + 1000U);
}

TEST_F(Wait, AnEndThatHasPassedIsOver) {
  // The clock jumps while the message loop runs.
  front.on_yield = [&](int) { host.system.ticks += 5000; };
  EXPECT_EQ(WaitWithMessages(1000), 258U);
  EXPECT_LE(front.yields, 2);
}

}  // namespace
}  // namespace orvik::mdlSupport
