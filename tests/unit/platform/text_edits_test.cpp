#include "platform/text_edits.h"

#include <gtest/gtest.h>

namespace orvik::mdlSupport {
namespace {

TEST(QuotePath, AQuoteAtBothEndsUnlessThereIsOne) {
  EXPECT_EQ(QuotePath(u"T:\\a b"), u"\"T:\\a b\"");
  EXPECT_EQ(QuotePath(u"\"T:\\a b"), u"\"T:\\a b\"");
  EXPECT_EQ(QuotePath(u"T:\\a b\""), u"\"T:\\a b\"");
  EXPECT_EQ(QuotePath(u"\"T:\\a b\""), u"\"T:\\a b\"");
}

TEST(QuotePath, OneQuoteServesForBothEnds) {
  EXPECT_EQ(QuotePath(u""), u"\"");
  EXPECT_EQ(QuotePath(u"\""), u"\"");
}

TEST(StripQuotes, OneQuoteFromEachEnd) {
  EXPECT_EQ(StripQuotes(u"\"T:\\a b\""), u"T:\\a b");
  EXPECT_EQ(StripQuotes(u"\"T:\\a"), u"T:\\a");
  EXPECT_EQ(StripQuotes(u"T:\\a\""), u"T:\\a");
  EXPECT_EQ(StripQuotes(u"\"\"x\"\""), u"\"x\"");
  EXPECT_EQ(StripQuotes(u"\"a\" \"b\""), u"a\" \"b");
  EXPECT_EQ(StripQuotes(u"\""), u"");
  EXPECT_EQ(StripQuotes(u""), u"");
}

TEST(FindNoCase, LetterCaseIsIgnoredAlsoInRussian) {
  EXPECT_EQ(FindNoCase(u"C:\\X.EXE", u".exe"), 4U);
  EXPECT_EQ(FindNoCase(u"папка", u"ПКА"), 2U);
  EXPECT_EQ(FindNoCase(u"abab", u"AB", 1), 2U);
  EXPECT_EQ(FindNoCase(u"abc", u"x"), Text::npos);
}

TEST(ReplaceText, EveryOccurrenceExactlyAsWritten) {
  EXPECT_EQ(ReplaceText(u"%SystemRoot%\\a;%SystemRoot%", u"%SystemRoot%", u"C:\\W"),
            u"C:\\W\\a;C:\\W");
  EXPECT_EQ(ReplaceText(u"%systemroot%\\a", u"%SystemRoot%", u"C:\\W"), u"%systemroot%\\a");
  EXPECT_EQ(ReplaceText(u"", u"x", u"y"), u"");
}

TEST(ReplaceText, TheSearchBeginsAtTheFrontAgain) {
  EXPECT_EQ(ReplaceText(u"aabb", u"ab", u""), u"");
  EXPECT_EQ(ReplaceText(u"aaab", u"ab", u"b"), u"b");
}

TEST(CutBehindLast, BehindTheLastOfSeveral) {
  Text text = u"C:\\a.exe\\b.EXE /x";
  CutBehindLast(text, u".exe");
  EXPECT_EQ(text, u"C:\\a.exe\\b.EXE");
  CutBehindLast(text, u".exe");
  EXPECT_EQ(text, u"C:\\a.exe\\b.EXE");
}

TEST(CutBehindLast, WithoutThePieceTheTextStays) {
  Text text = u"explorer";
  CutBehindLast(text, u".exe");
  EXPECT_EQ(text, u"explorer");
}

TEST(CutBehindLast, OccurrencesDoNotOverlap) {
  Text text = u"aaax";
  CutBehindLast(text, u"aa");
  EXPECT_EQ(text, u"aa");
}

}  // namespace
}  // namespace orvik::mdlSupport
