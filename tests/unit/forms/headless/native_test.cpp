#include "forms/headless/native.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

TEST(Native, TheInterpreterRunsToTheEndOfTheCommandAndWritesElsewhere) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_TRUE(RunInterpreter(u"echo heard"));
  WriteOut("out\n");
  WriteError("err\n");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "out\n");
  const std::string heard = testing::internal::GetCapturedStderr();
  EXPECT_EQ(heard.rfind("heard", 0), 0U) << heard;
  EXPECT_NE(heard.find("err\n"), std::string::npos);
}

TEST(Native, ACommandThatFailsHasRun) { EXPECT_TRUE(RunInterpreter(u"exit 3")); }

TEST(Native, AMissingFileIsNothing) { EXPECT_EQ(ReadAll("no/such/file"), std::nullopt); }

TEST(Native, ArgumentsAreThoseBehindTheName) {
  if (ThisPlatform() == Platform::kWindows) GTEST_SKIP() << "taken from the system";
  char name[] = "orvik-headless", first[] = "--trace", second[] = "";
  char* arguments[] = {name, first, second, nullptr};
  EXPECT_EQ(Arguments(3, arguments), (std::vector<std::string>{"--trace", ""}));
  EXPECT_TRUE(Arguments(1, arguments).empty());
  EXPECT_TRUE(Arguments(0, arguments).empty());
}

}  // namespace
}  // namespace orvik::forms::headless
