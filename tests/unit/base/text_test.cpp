#include "base/text.h"

#include <gtest/gtest.h>

namespace orvik {
namespace {

TEST(Utf8, RoundTripKeepsEveryKindOfCharacter) {
  const Text text = u"aЯ€\U0001F600\u0000z";
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
}

TEST(Utf8, MalformedBytesBecomeReplacementsOneByOne) {
  EXPECT_EQ(FromUtf8("a\xFF"
                     "b"),
            u"a\uFFFDb");
  EXPECT_EQ(FromUtf8("\xC3"), u"\uFFFD");
  EXPECT_EQ(FromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");            // overlong
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");  // a surrogate
  EXPECT_EQ(FromUtf8("\xF5\x80"), u"\uFFFD\uFFFD");
}

TEST(Utf8, LoneSurrogateBecomesReplacement) {
  const Text lone{u'a', char16_t(0xD800), u'b', char16_t(0xDC00)};
  EXPECT_EQ(ToUtf8(lone),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
}

TEST(LetterCase, RussianLettersWithTheOneOutsideTheRow) {
  EXPECT_EQ(ToLower(u"АБВЯЁABC1"), u"абвяёabc1");
  EXPECT_EQ(ToUpper(u"абвяёabc1"), u"АБВЯЁABC1");
}

TEST(LetterCase, EveryLetterComesBackFromItsCapital) {
  // Characters whose two forms aren't each other's only partner are left out by the mapping.
  for (unsigned c = 1; c < 0x530; ++c) {
    const auto letter = static_cast<char16_t>(c);
    const char16_t small = ToLower(letter);
    if (small != letter) {
      EXPECT_EQ(ToUpper(small), letter) << std::hex << c;
    }
  }
}

TEST(LetterCase, SignsBetweenLettersStay) {
  EXPECT_EQ(ToLower(char16_t(0xD7)), char16_t(0xD7));
  EXPECT_EQ(ToUpper(char16_t(0xF7)), char16_t(0xF7));
  EXPECT_EQ(ToUpper(u'ß'), u'ß');
  EXPECT_EQ(ToUpper(u'ÿ'), u'Ÿ');
}

TEST(LetterCase, EqualityIgnoresIt) {
  EXPECT_TRUE(EqualNoCase(u"Файл.TXT", u"фАЙЛ.txt"));
  EXPECT_FALSE(EqualNoCase(u"a", u"ab"));
  EXPECT_EQ(HashNoCase(u"Ёж"), HashNoCase(u"ёЖ"));
}

TEST(Trim, TakesBlanksOnly) {
  EXPECT_EQ(Trim(u"  a b\t "), u"a b\t");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
}

TEST(Split, AnEmptyTextHasNoPiece) {
  EXPECT_TRUE(Split(u"", u";").empty());
  EXPECT_EQ(Split(u"a;;b;", u";"), (std::vector<TextView>{u"a", u"", u"b", u""}));
  EXPECT_EQ(Split(u"a\r\nb", kCrLf), (std::vector<TextView>{u"a", u"b"}));
}

}  // namespace
}  // namespace orvik
