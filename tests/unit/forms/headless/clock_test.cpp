#include "forms/headless/clock.h"

#include <gtest/gtest.h>

#include "forms/headless/run_end.h"

namespace orvik::forms::headless {
namespace {

TEST(Clock, VirtualTimeStandsStillAndJumpsForward) {
  Clock clock(Clock::Pace::kVirtual);
  EXPECT_EQ(clock.Now(), 0);
  clock.AdvanceTo(86400000);
  EXPECT_EQ(clock.Now(), 86400000);
  clock.AdvanceTo(5);
  EXPECT_EQ(clock.Now(), 86400000);
}

TEST(Clock, RealTimeGoesByItself) {
  Clock clock(Clock::Pace::kReal);
  clock.AdvanceTo(30);
  EXPECT_GE(clock.Now(), 30);
  EXPECT_LT(clock.Now(), 20000);
}

TEST(Clock, TheRunEndsAtTheLimit) {
  Clock clock(Clock::Pace::kVirtual, 100);
  clock.AdvanceTo(99);
  EXPECT_NO_THROW(clock.Check());
  try {
    clock.AdvanceTo(5000);
    ADD_FAILURE();
  } catch (const RunEnded& ended) {
    EXPECT_EQ(ended.end, RunEnd::kTime);
  }
  EXPECT_EQ(clock.Now(), 100);
  EXPECT_THROW(clock.Check(), RunEnded);
}

TEST(Clock, WithoutALimitThereIsNothingToWaitFor) {
  Clock clock(Clock::Pace::kVirtual);
  clock.AdvanceToLimit();
  EXPECT_EQ(clock.Now(), 0);
}

}  // namespace
}  // namespace orvik::forms::headless
