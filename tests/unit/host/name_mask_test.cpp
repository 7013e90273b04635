#include "host/name_mask.h"

#include <gtest/gtest.h>

namespace orvik::host {
namespace {

TEST(NameMask, PlainNameFitsItselfWithoutCase) {
  EXPECT_TRUE(FitsMask(u"Note.TXT", u"note.txt"));
  EXPECT_TRUE(FitsMask(u"Ёлка.txt", u"ёЛКА.TXT"));
  EXPECT_FALSE(FitsMask(u"note.txt", u"note.tx"));
  EXPECT_FALSE(FitsMask(u"note.tx", u"note.txt"));
}

TEST(NameMask, StarIsAnyRun) {
  EXPECT_TRUE(FitsMask(u"anything", u"*"));
  EXPECT_TRUE(FitsMask(u"a.txt", u"*.txt"));
  EXPECT_TRUE(FitsMask(u".txt", u"*.txt"));
  EXPECT_TRUE(FitsMask(u"a.b.txt", u"*.txt"));
  EXPECT_FALSE(FitsMask(u"a.txt2", u"*.txt"));
  EXPECT_TRUE(FitsMask(u"abcabc", u"a*c"));
  EXPECT_TRUE(FitsMask(u"ac", u"a*c"));
  EXPECT_FALSE(FitsMask(u"acd", u"a*c"));
  EXPECT_TRUE(FitsMask(u"report-2.log", u"*-*.l*"));
}

TEST(NameMask, ThreeLetterExtensionMeansThreeLetters) {
  EXPECT_FALSE(FitsMask(u"page.html", u"*.htm"));
  EXPECT_TRUE(FitsMask(u"page.htm", u"*.htm"));
}

TEST(NameMask, QuestionMarkIsExactlyOneCharacter) {
  EXPECT_TRUE(FitsMask(u"ab", u"a?"));
  EXPECT_FALSE(FitsMask(u"a", u"a?"));
  EXPECT_FALSE(FitsMask(u"abc", u"a?"));
  EXPECT_TRUE(FitsMask(u"a.b", u"a?b"));
  EXPECT_FALSE(FitsMask(u"a.tx", u"?.t??"));
  EXPECT_TRUE(FitsMask(u"a.txt", u"?.t??"));
  EXPECT_TRUE(FitsMask(u"x", u"*?"));
  EXPECT_FALSE(FitsMask(u"", u"*?"));
}

TEST(NameMask, StarDotStarIsEverything) {
  EXPECT_TRUE(FitsMask(u"readme", u"*.*"));
  EXPECT_TRUE(FitsMask(u"a.b.c", u"*.*"));
  EXPECT_TRUE(FitsMask(u"..", u"*.*"));
}

TEST(NameMask, ClosingDotStarAlsoFitsNamesThatAreOverThere) {
  EXPECT_TRUE(FitsMask(u"name", u"name.*"));
  EXPECT_TRUE(FitsMask(u"name.txt", u"name.*"));
  EXPECT_TRUE(FitsMask(u"name.", u"name.*"));
  EXPECT_FALSE(FitsMask(u"names", u"name.*"));
  EXPECT_FALSE(FitsMask(u"names.txt", u"name.*"));
  EXPECT_TRUE(FitsMask(u"names", u"n*s.*"));
  EXPECT_TRUE(FitsMask(u"my.name", u"my.name.*"));
  EXPECT_FALSE(FitsMask(u"my.name", u"m*e?.*"));
  EXPECT_FALSE(FitsMask(u"name", u".*"));
  EXPECT_TRUE(FitsMask(u".name", u".*"));
}

TEST(NameMask, ClosingDotFitsNamesWithoutDot) {
  EXPECT_TRUE(FitsMask(u"makefile", u"*."));
  EXPECT_FALSE(FitsMask(u"makefile.in", u"*."));
  EXPECT_TRUE(FitsMask(u"makefile", u"make*."));
  EXPECT_TRUE(FitsMask(u"make", u"make."));
  EXPECT_FALSE(FitsMask(u"maker", u"make."));
}

TEST(NameMask, EmptyMaskFitsNothing) {
  EXPECT_FALSE(FitsMask(u"a", u""));
  EXPECT_FALSE(FitsMask(u"", u""));
}

TEST(NameMask, ManyStarsStayCheap) {
  const Text name(250, u'a');
  Text mask;
  for (int i = 0; i < 60; ++i) mask += u"*a";
  EXPECT_TRUE(FitsMask(name, mask));
  EXPECT_FALSE(FitsMask(name, mask + u"*b"));
}

}  // namespace
}  // namespace orvik::host
