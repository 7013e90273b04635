#include "forms/headless/script_words.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

Text OneText(const std::string& line) {
  std::string reason;
  const auto words = CutWords(line, reason);
  EXPECT_TRUE(words) << reason;
  if (!words || words->size() != 1 || !(*words)[0].quoted) {
    ADD_FAILURE() << line;
    return {};
  }
  return (*words)[0].text;
}

TEST(ScriptWords, BlanksAndTabsPart) {
  std::string reason;
  const auto words = CutWords("  a\tb  \"c d\" ", reason);
  ASSERT_TRUE(words);
  ASSERT_EQ(words->size(), 3U);
  EXPECT_EQ((*words)[1].plain, "b");
  EXPECT_FALSE((*words)[1].quoted);
  EXPECT_EQ((*words)[2].text, u"c d");
}

TEST(ScriptWords, Escapes) {
  EXPECT_EQ(OneText(R"("")"), u"");
  EXPECT_EQ(OneText(R"("a\"b\\c\nd\re\tf")"), u"a\"b\\c\nd\re\tf");
  EXPECT_EQ(OneText(R"("\u0041\u0439\ud83d\ude00")"), u"Aй\U0001F600");
  EXPECT_EQ(OneText(R"("\uD800")"), Text(1, 0xD800));
  EXPECT_EQ(OneText(R"("\\")"), u"\\");
  EXPECT_EQ(OneText("\"Файл\""), u"Файл");
}

TEST(ScriptWords, AnotherBackslashStandsForItself) {
  EXPECT_EQ(OneText(R"("T:\x")"), u"T:\\x");
  EXPECT_EQ(OneText(R"("T:\x.qlx")"), u"T:\\x.qlx");
  EXPECT_EQ(OneText(R"("T:\Файл")"), u"T:\\Файл");
}

TEST(ScriptWords, BadTextsAreRefused) {
  for (const char* bad : {R"("abc)", R"(")", R"("abc\")", R"("abc\)", R"("a"b)", R"("a""b")",
                          R"("\u12")", R"("\u00g0")", R"("\u 123")", R"("\u-123")", R"("\u)"}) {
    std::string reason;
    EXPECT_FALSE(CutWords(bad, reason)) << bad;
    EXPECT_FALSE(reason.empty());
  }
}

}  // namespace
}  // namespace orvik::forms::headless
