#include "monitors/text_finder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <random>
#include <string>

namespace orvik {
namespace {

// The rule itself: somewhere all characters are equal but for their case.
bool StandsIn(TextView text, std::string_view bytes, const CodePage& page) {
  const Text content = page.Decode(bytes);
  if (content.empty()) return false;
  for (std::size_t at = 0; at + text.size() <= content.size(); ++at) {
    if (EqualNoCase(TextView(content).substr(at, text.size()), text)) return true;
  }
  return false;
}

class EveryScan : public testing::TestWithParam<ScanKernel> {
 protected:
  bool Found(TextView text, std::string_view bytes, const CodePage& page) const {
    return TextFinder(text, page, GetParam()).FoundIn(bytes);
  }
  bool Found(TextView text, std::string_view bytes) const { return Found(text, bytes, page_); }
  bool FoundInText(TextView text, TextView content) const {
    return Found(text, page_.Encode(content));
  }
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  const CodePage& page_ = CodePage::Numbered(1251);
  std::mt19937 random_{20010911};
};

TEST_P(EveryScan, LetterCaseDoesNotMatter) {
  EXPECT_TRUE(FoundInText(u"СЛОВО", u"вот слово, и всё"));
  EXPECT_TRUE(FoundInText(u"слово", u"ВОТ СЛОВО"));
  EXPECT_TRUE(FoundInText(u"ВСЁ", u"вот слово, и всё"));
  EXPECT_TRUE(FoundInText(u"Word", u"a wORD"));
  EXPECT_TRUE(FoundInText(u"ЇҐЎ", u"їґў"));
  EXPECT_FALSE(FoundInText(u"все", u"всё"));
  EXPECT_FALSE(FoundInText(u"слова", u"слово"));
}

TEST_P(EveryScan, BytesAreReadThroughThePage) {
  const std::string dos = CodePage::Numbered(866).Encode(u"слово");
  EXPECT_FALSE(Found(u"СЛОВО", dos));
  EXPECT_TRUE(Found(u"СЛОВО", dos, CodePage::Numbered(866)));
}

TEST_P(EveryScan, TheEmptyTextStandsInAllButTheEmptyFile) {
  EXPECT_TRUE(Found(u"", "x"));
  EXPECT_FALSE(Found(u"", ""));
  EXPECT_FALSE(Found(u"x", ""));
}

TEST_P(EveryScan, ACharacterThatThePageLacksIsFoundNowhere) {
  EXPECT_FALSE(Found(u"日", "?"));
  EXPECT_FALSE(Found(u"a日", "a?"));
  EXPECT_FALSE(Found(u"日", ""));
  EXPECT_TRUE(Found(u"?", "?"));
}

TEST_P(EveryScan, LongerThanTheContent) {
  EXPECT_FALSE(Found(u"abc", "ab"));
  EXPECT_TRUE(Found(u"abc", "abc"));
  EXPECT_FALSE(Found(Text(1000, u'a'), std::string(999, 'a')));
}

TEST_P(EveryScan, EveryCharacterFindsItselfAndItsOtherCase) {
  for (int number : {1251, 866, 1252, 1253}) {
    const CodePage& page = CodePage::Numbered(number);
    for (int a = 0; a < 256; ++a) {
      const Text text(1, page.characters()[static_cast<std::size_t>(a)]);
      const TextFinder finder(text, page, GetParam());
      for (int b = 0; b < 256; ++b) {
        const std::string bytes(40, static_cast<char>(b));
        ASSERT_EQ(finder.FoundIn(bytes), StandsIn(text, bytes, page))
            << number << " " << a << " " << b;
      }
    }
  }
}

// Three bytes are one letter there: the sigma within a word, at its end, and the capital.
TEST_P(EveryScan, MoreThanTwoSpellings) {
  const CodePage& greek = CodePage::Numbered(1253);
  for (const char16_t* text : {u"Σ", u"σ", u"ς", u"ΣΣ", u"ΣΗΜΑΣ"}) {
    for (const char16_t* content : {u"σ", u"ς", u"xxςσxx", u"σημας", u"ΣΗΜΑς", u"σημα"}) {
      EXPECT_EQ(Found(text, greek.Encode(content), greek),
                StandsIn(text, greek.Encode(content), greek))
          << ToUtf8(text) << " " << ToUtf8(content);
    }
  }
}

TEST_P(EveryScan, EveryPlaceInEveryLength) {
  const TextFinder finder(u"слово", page_, GetParam());
  const std::string word = page_.Encode(u"СлОвО");
  for (std::size_t length = 0; length <= 300; ++length) {
    EXPECT_FALSE(finder.FoundIn(std::string(length, 'x')));
    for (std::size_t at = 0; at + word.size() <= length; ++at) {
      std::string bytes(length, 'x');
      bytes.replace(at, word.size(), word);
      ASSERT_TRUE(finder.FoundIn(bytes)) << length << " " << at;
      // The place alone doesn't do: one character is wrong.
      bytes[at + Below(word.size())] = '-';
      ASSERT_FALSE(finder.FoundIn(bytes)) << length << " " << at;
    }
  }
}

TEST_P(EveryScan, NothingBehindTheContentIsRead) {
  const std::string bytes = std::string(200, 'x') + page_.Encode(u"слово");
  const TextFinder finder(u"xслово", page_, GetParam());
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    // Of its own, so that a sanitizer sees a step beyond the end.
    const std::vector<char> content(bytes.begin(),
                                    bytes.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_FALSE(finder.FoundIn(content));
  }
}

TEST_P(EveryScan, TextsThatRepeatTheirOwnBeginning) {
  EXPECT_TRUE(Found(u"aab", "aaab"));
  EXPECT_TRUE(Found(u"abab", "aababab"));
  EXPECT_TRUE(Found(u"ababac", "abababac"));
  EXPECT_FALSE(Found(u"ababac", "abababab"));
  EXPECT_TRUE(Found(u"тттт", page_.Encode(u"тттшттТТ")));
}

// So many near misses that the search goes on by borders.
TEST_P(EveryScan, NearMissesEverywhere) {
  for (std::size_t repeats : {1U, 10U, 300U, 3000U}) {
    std::string content;
    for (std::size_t i = 0; i < 20000; ++i) content += "ab";
    Text text;
    for (std::size_t i = 0; i < repeats; ++i) text += u"ab";
    text += u"bb";
    EXPECT_FALSE(Found(text, content)) << repeats;
    EXPECT_TRUE(Found(text, content + "abbb")) << repeats;
    EXPECT_TRUE(Found(text, content + "ABBB" + content)) << repeats;
    EXPECT_FALSE(Found(text, content + "abcbb")) << repeats;
  }
}

// Few different characters, so that a text is found about as often as not.
TEST_P(EveryScan, AnyTextInAnyContent) {
  struct Kind {
    TextView characters;
    int number;
  };
  for (const Kind kind : {Kind{u"aAbB", 1251}, Kind{u"яЯчЧ.", 1251}, Kind{u"ёЁеЕxX", 1251},
                          Kind{u"σςΣa", 1253}, Kind{u"эЭ░", 866}}) {
    const CodePage& page = CodePage::Numbered(kind.number);
    int found = 0;
    for (int round = 0; round < 4000; ++round) {
      Text text(Below(9), u' ');
      Text content(Below(round % 10 == 0 ? 2000 : 200), u' ');
      for (char16_t& c : text) c = kind.characters[Below(kind.characters.size())];
      for (char16_t& c : content) c = kind.characters[Below(kind.characters.size())];
      const std::string bytes = page.Encode(content);
      const bool stands = StandsIn(text, bytes, page);
      found += stands;
      ASSERT_EQ(Found(text, bytes, page), stands) << ToUtf8(text) << " in " << ToUtf8(content);
    }
    EXPECT_GT(found, 400);
    EXPECT_LT(found, 3600);
  }
}

// A run of near misses makes the search go on by borders; whatever comes behind it is found.
TEST_P(EveryScan, AnyTextBehindNearMisses) {
  const std::array<const char*, 5> pieces = {"ab", "aab", "abab", "b", "abaab"};
  const auto put_together = [&](std::size_t count) {
    std::string whole;
    while (count-- > 0) whole += pieces[Below(pieces.size())];
    return whole;
  };
  std::string misses;
  while (misses.size() < 8000) misses += "ab";
  int found = 0;
  for (int round = 0; round < 600; ++round) {
    const Text text = page_.Decode(put_together(2 + Below(4)) + "b");
    const std::string bytes = misses + put_together(Below(60));
    const bool stands = StandsIn(text, bytes, page_);
    found += stands;
    ASSERT_EQ(Found(text, bytes), stands) << ToUtf8(text) << " in ..." << bytes.substr(8000);
  }
  EXPECT_GT(found, 60);
  EXPECT_LT(found, 540);
}

TEST_P(EveryScan, AnyPlaceAmongNearMisses) {
  std::string misses;
  while (misses.size() < 3000) misses += "ab";
  const TextFinder finder(u"abababb", page_, GetParam());
  ASSERT_FALSE(finder.FoundIn(misses));
  for (std::size_t at = 2; at < misses.size(); at += 2) {
    std::string bytes = misses;
    bytes.insert(at, "b");
    ASSERT_EQ(finder.FoundIn(bytes), at > 5) << at;
  }
  // Every place misses nearly, up to the one where the text stands.
  const TextFinder close(u"bba", page_, GetParam());
  for (std::size_t count = 2; count < 1000; ++count) {
    ASSERT_TRUE(close.FoundIn(std::string(count, 'b') + 'a')) << count;
  }
}

// Without the search by borders this would take hundreds of times as long.
TEST_P(EveryScan, NoTextTakesItsLengthAtEveryPlace) {
  std::string content;
  while (content.size() < 0xFFFF0) content += "ab";
  Text text;
  while (text.size() < 30000) text += u"ab";
  text += u"bb";
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(Found(text, content));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

std::string NameOf(const testing::TestParamInfo<ScanKernel>& info) {
  std::string name(info.param.name);
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(TextFinder, EveryScan, testing::ValuesIn(ScanKernels()), NameOf);

}  // namespace
}  // namespace orvik
