#include "forms/headless/transcript.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

TEST(Transcript, ALineGoesOutAtOnce) {
  std::string out;
  Transcript transcript([&](std::string_view bytes) { out += bytes; });
  transcript.Begin("show").Name("form").String("frmX");
  transcript.End();
  EXPECT_EQ(out, "{\"event\":\"show\",\"form\":\"frmX\"}\n");
}

TEST(Transcript, FrequentLinesGoOutWithTheNextOneInOrder) {
  std::string out;
  int writes = 0;
  Transcript transcript([&](std::string_view bytes) { out += bytes, ++writes; });
  transcript.Begin("change");
  transcript.EndHeldBack();
  EXPECT_EQ(out, "");
  transcript.Begin("end");
  transcript.End();
  EXPECT_EQ(out, "{\"event\":\"change\"}\n{\"event\":\"end\"}\n");
  EXPECT_EQ(writes, 1);
}

TEST(Transcript, HoldsBackNoMoreThanAFairAmount) {
  std::size_t out = 0;
  Transcript transcript([&](std::string_view bytes) { out += bytes.size(); });
  for (int i = 0; i < 10000; ++i) {
    transcript.Begin("change");
    transcript.EndHeldBack();
  }
  EXPECT_GT(out, 100000U);
}

}  // namespace
}  // namespace orvik::forms::headless
