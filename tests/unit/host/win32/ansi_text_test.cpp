#include "host/win32/ansi_text.h"

#include <gtest/gtest.h>

#include "host/file_system.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {
namespace {

TEST(AnsiText, RunsOnTheRussianPages) {
  // All that follows is about them; scripts/wine-run sees to it.
  ASSERT_EQ(GetACP(), 1251u);
  ASSERT_EQ(GetOEMCP(), 866u);
}

TEST(AnsiText, LettersOfThePageTravelBothWays) {
  EXPECT_EQ(ToAnsi(u"Жук Ё a"), "\xC6\xF3\xEA \xA8 a");
  EXPECT_EQ(FromAnsi("\xC6\xF3\xEA \xA8 a"), u"Жук Ё a");
  EXPECT_EQ(ToAnsi(u""), "");
  EXPECT_EQ(FromAnsi(""), u"");
}

TEST(AnsiText, MissingCharacterIsAQuestionMarkAndNoneThatLooksLikeIt) {
  EXPECT_EQ(ToAnsi(u"caf\u00E9"), "caf?");
  EXPECT_EQ(ToAnsi(u"\uFF21\u221E"), "??");
  EXPECT_EQ(ThroughAnsi(L"na\u00EFve-Ж"), u"na?ve-Ж");
}

TEST(AnsiText, WideTextsLoseNothing) {
  EXPECT_EQ(FromWide(ToWide(u"caf\u00E9 \u4E2D")), u"caf\u00E9 \u4E2D");
}

TEST(AnsiPath, RefusesWhatNoOperationTakes) {
  EXPECT_EQ(AnsiPath(u"C:\\a b"), "C:\\a b");
  EXPECT_FALSE(AnsiPath(u""));
  EXPECT_FALSE(AnsiPath(u"C:\\a?"));
  EXPECT_FALSE(AnsiPath(u"C:\\*"));
  EXPECT_FALSE(AnsiPath(u"C:\\caf\u00E9"));
  EXPECT_FALSE(AnsiPath(Text(u"C:\\a\0b", 6)));
}

TEST(AnsiPath, AColonIsADrives) {
  EXPECT_TRUE(AnsiPath(u"c:"));
  EXPECT_TRUE(AnsiPath(u"T:a"));
  for (const Text path : {u":", u"1:\\x", u"C:\\f:stream", u"f:\\f:", u"ab:", u"C::", u"Ж:\\x"}) {
    EXPECT_FALSE(AnsiPath(path)) << ToUtf8(path);
  }
}

TEST(AnsiPath, TakesTheLongestPathAndNoLonger) {
  EXPECT_TRUE(AnsiPath(Text(kLongestPath, u'a')));
  EXPECT_FALSE(AnsiPath(Text(kLongestPath + 1, u'a')));
}

}  // namespace
}  // namespace orvik::host::win32
