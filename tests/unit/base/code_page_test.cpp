#include "base/code_page.h"

#include <gtest/gtest.h>

#include <string>

#if __has_include(<iconv.h>)
#include <iconv.h>
#endif

namespace orvik {
namespace {

TEST(CodePage, EveryByteMapsThereAndBack) {
  for (int number : {437, 850, 866, 1250, 1251, 1252, 1253, 1254, 1257}) {
    const CodePage& page = CodePage::Numbered(number);
    ASSERT_EQ(page.number(), number);
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    EXPECT_EQ(page.Encode(page.Decode(bytes)), bytes) << number;
  }
}

TEST(CodePage, UnassignedByteIsTheCharacterOfItsNumber) {
  EXPECT_EQ(CodePage::Numbered(1251).characters()[0x98], char16_t(0x98));
  EXPECT_EQ(CodePage::Numbered(1251).Byte(char16_t(0x98)), '\x98');
}

TEST(CodePage, CharacterOutsideThePageIsAQuestionMark) {
  const CodePage& page = CodePage::Numbered(1251);
  EXPECT_FALSE(page.Has(u'漢'));
  EXPECT_TRUE(page.Has(u'?'));
  EXPECT_TRUE(page.Has(u'Ё'));
  EXPECT_EQ(page.Encode(u"а漢"), "\xE0?");
}

TEST(CodePage, UnknownNumberIs1251) { EXPECT_EQ(CodePage::Numbered(932).number(), 1251); }

#if __has_include(<iconv.h>)
TEST(CodePage, AgreesWithIconv) {
  for (int number : {437, 850, 866, 1250, 1251, 1252, 1253, 1254, 1257}) {
    const std::string name = "CP" + std::to_string(number);
    iconv_t converter = iconv_open("UTF-16LE", name.c_str());
    ASSERT_NE(converter, reinterpret_cast<iconv_t>(-1)) << name;
    int agreed = 0;
    for (int byte = 0; byte < 256; ++byte) {
      char in = static_cast<char>(byte);
      char16_t out = 0;
      char* in_at = &in;
      char* out_at = reinterpret_cast<char*>(&out);
      std::size_t in_left = 1;
      std::size_t out_left = sizeof out;
      iconv(converter, nullptr, nullptr, nullptr, nullptr);
      if (iconv(converter, &in_at, &in_left, &out_at, &out_left) == static_cast<std::size_t>(-1)) {
        continue;  // unassigned
      }
      EXPECT_EQ(CodePage::Numbered(number).characters()[static_cast<std::size_t>(byte)], out)
          << name << " " << byte;
      ++agreed;
    }
    iconv_close(converter);
    EXPECT_GE(agreed, 230) << name;
  }
}
#endif

}  // namespace
}  // namespace orvik
