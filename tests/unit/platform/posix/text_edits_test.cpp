#include "platform/text_edits.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>

namespace orvik::mdlSupport {
namespace {

// Ends the process as soon as it has computed for a second.
void LimitComputing() {
  const rlimit second = {1, 1};
  setrlimit(RLIMIT_CPU, &second);
}

TEST(ReplaceTextDeathTest, AReplacementThatHoldsThePieceNeverEnds) {
  EXPECT_EXIT(
      {
        LimitComputing();
        ReplaceText(u"%SystemRoot%", u"%SystemRoot%", u"%SystemRoot%");
        std::exit(0);
      },
      testing::KilledBySignal(SIGKILL), "");
}

}  // namespace
}  // namespace orvik::mdlSupport
