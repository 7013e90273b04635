#include "host/shell_link/byte_view.h"

#include <gtest/gtest.h>

#include "unit/host/shell_link/bytes.h"

namespace orvik::host::shell_link {
namespace {

TEST(ByteViewTest, NumbersAreLittleEndian) {
  const std::string bytes = Hex("01 02 03 84 FF");
  const ByteView view(bytes);
  EXPECT_EQ(view.U8(4), 0xFF);
  EXPECT_EQ(view.U16(0), 0x0201);
  EXPECT_EQ(view.U16(3), 0xFF84);
  EXPECT_EQ(view.U32(0), 0x84030201U);
}

TEST(ByteViewTest, NothingIsReadBehindTheEnd) {
  const std::string bytes = Hex("01 02 03 04");
  const ByteView view(bytes);
  constexpr std::size_t kFar = ~std::size_t{0};
  EXPECT_EQ(view.U8(4), std::nullopt);
  EXPECT_EQ(view.U16(3), std::nullopt);
  EXPECT_EQ(view.U32(1), std::nullopt);
  EXPECT_EQ(view.U32(kFar), std::nullopt);
  EXPECT_FALSE(view.Part(2, 3));
  EXPECT_FALSE(view.Part(5, 0));
  EXPECT_FALSE(view.Part(1, kFar));
  EXPECT_FALSE(view.Part(kFar, 2));
  EXPECT_TRUE(view.Part(4, 0));
  EXPECT_EQ(view.From(3).size(), 1U);
  EXPECT_EQ(view.From(kFar).size(), 0U);
}

TEST(ByteViewTest, TextsEndAtAZeroOrWithTheBytes) {
  const std::string ansi =
      "\xC0"
      "b" +
      std::string("\0c", 2);
  EXPECT_EQ(ByteView(ansi).AnsiText(Page()), u"Аb");
  EXPECT_EQ(ByteView(ansi).From(3).AnsiText(Page()), u"c");
  const std::string wide = Wide(u"Яя") + Hex("00 00") + Wide(u"x") + "y";
  EXPECT_EQ(ByteView(wide).WideText(), u"Яя");
  EXPECT_EQ(ByteView(wide).From(6).WideText(), u"x");  // half a character is none
  EXPECT_EQ(ByteView().WideText(), u"");
}

}  // namespace
}  // namespace orvik::host::shell_link
