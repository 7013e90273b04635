#include "platform/xor_text.h"

#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

class XorTextTest : public test::ProgramTest {
 protected:
  // The bytes of a text after its content was scrambled.
  std::string Scrambled(std::string_view bytes, TextView key) {
    const CodePage& page = host.system.AnsiPage();
    Text text = page.Decode(bytes);
    XorText(text, key);
    return page.Encode(text);
  }
};

// As the format is told, a character at a time, with positions from 1.
std::string Told(std::string text, std::string key) {
  const std::size_t n = text.size();
  std::size_t m = key.size();
  if (n == 0 || m == 0) return text;
  if (n < m) m = n;
  for (std::size_t i = 1; i <= n; ++i) text[i - 1] ^= key[(i % m + 1) - 1];
  return text;
}

TEST_F(XorTextTest, TheKeyBeginsWithItsSecondCharacterAndTakesTheFirstLast) {
  EXPECT_EQ(Scrambled(std::string(7, '\0'), u"abc"), "bcabcab");
}

TEST_F(XorTextTest, OneCharacterServesAllPositions) {
  EXPECT_EQ(Scrambled(std::string(3, '\0'), u"k"), "kkk");
  EXPECT_EQ(Scrambled(std::string(1, '\0'), u"k"), "k");
}

TEST_F(XorTextTest, OfALongerKeyOnlyAsMuchAsTheTextCounts) {
  EXPECT_EQ(Scrambled(std::string(2, '\0'), u"xyz"), "yx");
  EXPECT_EQ(Scrambled("ab", u"xyz"), Scrambled("ab", u"xyQ and more"));
  EXPECT_EQ(Scrambled("a", u"xyz"), std::string(1, 'a' ^ 'x'));
}

TEST_F(XorTextTest, WithoutAKeyOrATextNothingHappens) {
  EXPECT_EQ(Scrambled("abc", u""), "abc");
  EXPECT_EQ(Scrambled("", u"key"), "");
}

TEST_F(XorTextTest, ACharacterEqualToItsKeyBecomesZeroAndTheRestGoesOn) {
  EXPECT_EQ(Scrambled("aab", u"a"), std::string("\0\0\3", 3));
}

TEST_F(XorTextTest, CodesAreThoseOfTheAnsiPage) {
  // Ё is A8, я is FF; № is B9.
  EXPECT_EQ(Scrambled(std::string(2, '\0'), u"Ёя"), "\xFF\xA8");
  Text text = u"№";
  XorText(text, u"\u0001");
  EXPECT_EQ(text, u"ё");
}

TEST_F(XorTextTest, ACharacterOutsideOfThePageCountsAsAQuestionMark) {
  EXPECT_EQ(Scrambled(std::string(1, '\0'), u"\u3042"), "?");
}

TEST_F(XorTextTest, TwiceGivesEveryByteBack) {
  std::string all;
  for (int i = 0; i < 256; ++i) all.push_back(static_cast<char>(i));
  for (const int page : {1251, 1252, 866}) {
    host.system.ansi_page = page;
    EXPECT_NE(Scrambled(all, u"ключ"), all);
    EXPECT_EQ(Scrambled(Scrambled(all, u"ключ"), u"ключ"), all) << page;
  }
}

TEST_F(XorTextTest, LongTextsAndKeysOfAllLengths) {
  std::string text(20'000, '\0');
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char>(i * i >> 3);
  for (const std::size_t length :
       {1U, 2U, 3U, 7U, 100U, 4095U, 4096U, 4097U, 9999U, 19'999U, 20'000U, 20'001U, 50'000U}) {
    std::string key(length, '\0');
    for (std::size_t i = 0; i < length; ++i) key[i] = static_cast<char>(1 + i * 7 % 127);
    EXPECT_EQ(Scrambled(text, FromUtf8(key)), Told(text, key)) << length;
  }
}

}  // namespace
}  // namespace orvik::mdlMain
