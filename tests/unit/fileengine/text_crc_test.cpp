#include "fileengine/text_crc.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "fileengine/checksums.h"

namespace orvik::mdlSupport {
namespace {

// A page in which no character has anything to do with its byte.
const CodePage& ScatteredPage() {
  static const CodePage page = [] {
    std::array<char16_t, 128> upper{};
    for (std::size_t i = 0; i < upper.size(); ++i)
      upper[i] = static_cast<char16_t>(i * 40503 + 977);
    return CodePage(90001, upper);
  }();
  return page;
}

std::vector<const CodePage*> Pages() {
  std::vector<const CodePage*> pages = {&ScatteredPage()};
  for (int number : {437, 850, 866, 1250, 1251, 1252, 1253, 1254, 1257}) {
    pages.push_back(&CodePage::Numbered(number));
  }
  return pages;
}

class EveryKernel : public testing::TestWithParam<CrcKernel> {
 protected:
  EveryKernel() { InitCRCTable(); }

  std::int32_t Of(std::span<const char> bytes, const CodePage& page) const {
    TextCRC crc(page, GetParam());
    crc.Add(bytes);
    return crc.Result();
  }
  // The definition: byte by byte over the text.
  static std::int32_t Defined(std::string_view bytes, const CodePage& page) {
    return ComputeCRC(page.Decode(bytes));
  }

  std::string Random(std::size_t length, int from = 0, int to = 255) {
    std::string bytes(length, '\0');
    for (char& byte : bytes) {
      byte = static_cast<char>(std::uniform_int_distribution<int>(from, to)(random_));
    }
    return bytes;
  }

  std::mt19937 random_{20010911};
};

TEST_P(EveryKernel, AllLengthsAtAllAlignments) {
  constexpr std::size_t kLongest = 300;
  const CodePage& page = CodePage::Numbered(1251);
  const std::string content = Random(kLongest);
  std::vector<std::int32_t> defined;
  for (std::size_t length = 0; length <= kLongest; ++length) {
    defined.push_back(Defined(content.substr(0, length), page));
  }
  alignas(64) char place[64 + kLongest];
  for (std::size_t shift = 0; shift < 64; ++shift) {
    std::copy(content.begin(), content.end(), place + shift);
    for (std::size_t length = 0; length <= kLongest; ++length) {
      ASSERT_EQ(Of(std::span(place + shift, length), page), defined[length])
          << length << " " << shift;
    }
  }
}

TEST_P(EveryKernel, EveryByteAtEveryPlaceInEveryPage) {
  for (const CodePage* page : Pages()) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string bytes(256, 'a');
      for (std::size_t at = 0; at < bytes.size(); at += 19) bytes[at] = static_cast<char>(byte);
      ASSERT_EQ(Of(bytes, *page), Defined(bytes, *page)) << page->number() << " " << byte;
      std::fill(bytes.begin(), bytes.end(), static_cast<char>(byte));
      ASSERT_EQ(Of(bytes, *page), Defined(bytes, *page)) << page->number() << " " << byte;
    }
  }
}

// Contents that are expanded on different ways.
TEST_P(EveryKernel, RandomTextsInEveryPage) {
  struct Kind {
    int from, to;
  };
  for (const CodePage* page : Pages()) {
    for (const Kind kind : {Kind{0, 127}, Kind{0xC0, 0xFF}, Kind{0x80, 0xBF}, Kind{0, 255}}) {
      for (int round = 0; round < 10; ++round) {
        const std::string bytes = Random(random_() % 20000, kind.from, kind.to);
        ASSERT_EQ(Of(bytes, *page), Defined(bytes, *page)) << page->number() << " " << kind.from;
      }
    }
  }
}

TEST_P(EveryKernel, OneOddByteAmongRegularOnes) {
  const CodePage& page = CodePage::Numbered(1251);
  for (std::size_t at = 0; at < 256; ++at) {
    for (const char byte : {'\xA8', '\xB8', '\x98', '\xAB', '\xB9', '\x80', '\xBF'}) {
      std::string bytes = Random(256, 0xC0, 0xFF);
      bytes[at] = byte;
      ASSERT_EQ(Of(bytes, page), Defined(bytes, page)) << at;
    }
  }
}

TEST_P(EveryKernel, PiecesGiveWhatTheWholeGives) {
  for (const CodePage* page : Pages()) {
    for (int round = 0; round < 50; ++round) {
      const std::string bytes = Random(3000);
      TextCRC crc(*page, GetParam());
      for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = std::min<std::size_t>(random_() % 700, bytes.size() - at);
        // Texts go in between the bytes as well, as the length of a file does.
        if (length % 5 == 0) {
          crc.Add(page->Decode(bytes.substr(at, length)));
        } else {
          crc.Add(std::span<const char>(bytes).subspan(at, length));
        }
        at += length;
      }
      ASSERT_EQ(crc.Result(), Defined(bytes, *page)) << page->number();
    }
  }
}

TEST_P(EveryKernel, LongContents) {
  const std::string bytes = Random((1 << 20) + 77);
  EXPECT_EQ(Of(bytes, CodePage::Numbered(1251)), Defined(bytes, CodePage::Numbered(1251)));
}

TEST_P(EveryKernel, KnownValues) {
  EXPECT_EQ(Of(std::string(), CodePage::Numbered(1251)), 0);
  EXPECT_EQ(Of(std::string("123456789"), CodePage::Numbered(1251)), -1567561609);
  EXPECT_EQ(Of(std::string("\xC0\x41"), CodePage::Numbered(1251)), -1623826917);
}

std::string NameOf(const testing::TestParamInfo<CrcKernel>& info) {
  std::string name(info.param.name);
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(TextCRC, EveryKernel, testing::ValuesIn(CrcKernels()), NameOf);

TEST(CrcKernelChoice, TheTablesAreAlwaysThere) {
  ASSERT_FALSE(CrcKernels().empty());
  EXPECT_STREQ(CrcKernels().back().name, "tables");
}

}  // namespace
}  // namespace orvik::mdlSupport
