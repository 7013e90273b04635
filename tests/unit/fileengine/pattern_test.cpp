#include "fileengine/pattern.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace orvik::mdlSupport {
namespace {

TEST(Like, WholeTextMustBeConsumed) {
  EXPECT_TRUE(Like(u"abc", u"abc"));
  EXPECT_FALSE(Like(u"abcd", u"abc"));
  EXPECT_FALSE(Like(u"ab", u"abc"));
  EXPECT_TRUE(Like(u"", u""));
  EXPECT_TRUE(Like(u"", u"*"));
  EXPECT_FALSE(Like(u"", u"?"));
}

TEST(Like, RunsAndSingles) {
  EXPECT_TRUE(Like(u"from:C:\\a", u"from:*"));
  EXPECT_TRUE(Like(u"from:", u"from:*"));
  EXPECT_TRUE(Like(u"aXbYbZc", u"a*b*c"));
  EXPECT_FALSE(Like(u"aXbYbZ", u"a*b*c"));
  EXPECT_TRUE(Like(u"ab", u"a?"));
  EXPECT_FALSE(Like(u"a", u"a?"));
}

TEST(Like, ManyRunsStayFast) { EXPECT_FALSE(Like(Text(5000, u'a'), u"*a*a*a*a*a*a*a*a*b")); }

TEST(Like, LetterCaseIsExact) {
  EXPECT_TRUE(Like(u"a.exe", u"*.exe"));
  EXPECT_FALSE(Like(u"A.EXE", u"*.exe"));
  EXPECT_FALSE(Like(u"я", u"Я"));
}

TEST(Like, DigitsAndLists) {
  EXPECT_TRUE(Like(u"b7x", u"[a-c]#?"));
  EXPECT_FALSE(Like(u"B7x", u"[a-c]#?"));
  EXPECT_FALSE(Like(u"b7", u"[a-c]#?"));
  EXPECT_TRUE(Like(u"d", u"[!a-c]"));
  EXPECT_FALSE(Like(u"b", u"[!a-c]"));
  EXPECT_FALSE(Like(u"", u"[!a-c]"));
}

TEST(Like, SignsInsideAList) {
  EXPECT_TRUE(Like(u"*", u"[*]"));
  EXPECT_FALSE(Like(u"a", u"[*]"));
  EXPECT_TRUE(Like(u"[", u"[[]"));
  EXPECT_TRUE(Like(u"#", u"[?#]"));
  EXPECT_TRUE(Like(u"!", u"[a!]"));
  EXPECT_TRUE(Like(u"]", u"]"));
}

TEST(Like, HyphenAtEitherEndStandsForItself) {
  EXPECT_TRUE(Like(u"-", u"[-a]"));
  EXPECT_TRUE(Like(u"-", u"[a-]"));
  EXPECT_TRUE(Like(u"a", u"[a-]"));
  EXPECT_FALSE(Like(u"-", u"[!-a]"));
  EXPECT_TRUE(Like(u"b", u"[!-a]"));
}

TEST(Like, EmptyListConsumesNothing) {
  EXPECT_TRUE(Like(u"ab", u"a[]b"));
  EXPECT_FALSE(Like(u"axb", u"a[]b"));
}

TEST(Like, MalformedPatternIsAFailure) {
  EXPECT_THROW(Like(u"a", u"[a"), Failure);
  EXPECT_THROW(Like(u"a", u"x[a"), Failure);
  EXPECT_THROW(Like(u"a", u"[c-a]"), Failure);
}

}  // namespace
}  // namespace orvik::mdlSupport
