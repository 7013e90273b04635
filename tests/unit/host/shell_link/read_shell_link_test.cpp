#include <gtest/gtest.h>

#include "host/shell_link/shell_link.h"
#include "unit/host/shell_link/bytes.h"

namespace orvik::host {
namespace {

constexpr std::uint32_t kUnicode = 0x80;

std::string Header(std::uint32_t flags) {
  return Hex("4C 00 00 00 01 14 02 00 00 00 00 00 C0 00 00 00 00 00 00 46") + U32(flags) +
         std::string(0x20, '\0') + U32(0xFFFFFFFE) + U32(7) + std::string(12, '\0');
}

const std::string kItems =
    Hex("2F 00 14 00 1F 50 E0 4F D0 20 EA 3A 69 10 A2 D8 08 00 2B 30 30 9D 19 00 2F 43 3A 5C") +
    std::string(19, '\0') + Hex("00 00");
const std::string kInfo =
    Hex("32 00 00 00 1C 00 00 00 01 00 00 00 1C 00 00 00 2D 00 00 00 00 00 00 00 31 00 00 00"
        "11 00 00 00 03 00 00 00 00 00 00 00 10 00 00 00 00 44 3A 5C 00 00");
const std::string kEnd = Hex("00 00 00 00");

std::string Counted(TextView text) { return U16(text.size()) + Wide(text); }

std::string VariableBlock(const std::string& ansi, TextView wide) {
  std::string bytes = Hex("14 03 00 00 01 00 00 A0") + ansi;
  bytes.resize(8 + 260);
  bytes += Wide(wide);
  bytes.resize(0x314);
  return bytes;
}

std::optional<ShellLink> Read(const std::string& bytes) { return ReadShellLink(bytes, Page()); }

TEST(ReadShellLinkTest, AHeaderIsEnough) {
  const auto link = Read(Header(kUnicode));
  ASSERT_TRUE(link);
  ShellLink expected;
  expected.icon_index = -2;
  expected.window_style = 7;
  EXPECT_TRUE(*link == expected);
}

TEST(ReadShellLinkTest, TheHeaderTellsAFolder) {
  std::string bytes = Header(kUnicode);
  bytes[0x18] = 0x10;
  EXPECT_TRUE(Read(bytes)->folder);
}

TEST(ReadShellLinkTest, AllParts) {
  const auto link = Read(Header(0x2FF) + kItems + kInfo + Counted(u"имя") + Counted(u"..\\x") +
                         Counted(u"C:\\w") + Counted(u"a b") + Counted(u"i.ico") +
                         VariableBlock("%x%", u"%переменная%") + kEnd);
  ASSERT_TRUE(link);
  EXPECT_EQ(link->item_path, u"C:\\");
  EXPECT_EQ(link->local_path, u"D:\\");
  EXPECT_EQ(link->description, u"имя");
  EXPECT_EQ(link->relative_path, u"..\\x");
  EXPECT_EQ(link->working_folder, u"C:\\w");
  EXPECT_EQ(link->arguments, u"a b");
  EXPECT_EQ(link->icon_path, u"i.ico");
  EXPECT_EQ(link->variable_path, u"%переменная%");
}

TEST(ReadShellLinkTest, TextsMayBeOfTheCodePage) {
  const auto link = Read(Header(0x60) + U16(2) + "\xE0\xFF" + U16(1) + "i");
  ASSERT_TRUE(link);
  EXPECT_EQ(link->arguments, u"ая");
  EXPECT_EQ(link->icon_path, u"i");
}

TEST(ReadShellLinkTest, ATextEndsAtAZero) {
  const auto link = Read(Header(0xE0) + Counted(TextView(u"ab\0cd", 5)) + Counted(u"i"));
  ASSERT_TRUE(link);
  EXPECT_EQ(link->arguments, u"ab");
  EXPECT_EQ(link->icon_path, u"i");
}

TEST(ReadShellLinkTest, TheLongestText) {
  const Text longest(65535, u'ж');
  const auto link = Read(Header(0xA0) + Counted(longest));
  ASSERT_TRUE(link);
  EXPECT_TRUE(link->arguments == longest);
}

TEST(ReadShellLinkTest, OtherFilesAreNone) {
  EXPECT_FALSE(Read(""));
  EXPECT_FALSE(Read("text"));
  for (const std::size_t place : {0U, 3U, 4U, 19U}) {
    std::string bytes = Header(kUnicode);
    bytes[place] ^= 1;
    EXPECT_FALSE(Read(bytes)) << place;
  }
  EXPECT_FALSE(Read(Header(kUnicode).substr(0, 0x4B)));
}

TEST(ReadShellLinkTest, PromisedPartsMustBeWhole) {
  const std::string parts = kItems + kInfo + Counted(u"имя") + Counted(u"a b");
  const std::string whole = Header(0xA7) + parts;
  ASSERT_TRUE(Read(whole));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(Read(whole.substr(0, length))) << length;
  }
}

TEST(ReadShellLinkTest, SizesThatLieMakeItNone) {
  EXPECT_FALSE(Read(Header(0x81) + Hex("FF FF") + kItems));
  EXPECT_FALSE(Read(Header(0x82) + Hex("00 00 00 00") + kInfo));
  EXPECT_FALSE(Read(Header(0x82) + Hex("1B 00 00 00") + kInfo));
  EXPECT_FALSE(Read(Header(0x82) + Hex("FF FF FF FF") + kInfo));
  EXPECT_FALSE(Read(Header(0xA0) + Hex("FF FF") + "abc"));
}

TEST(ReadShellLinkTest, ItemsThatLeadNowhereDontSpoilTheRest) {
  std::string items = kItems;
  items[6] = '\x7F';
  const auto link = Read(Header(0x83) + items + kInfo + kEnd);
  ASSERT_TRUE(link);
  EXPECT_EQ(link->item_path, u"");
  EXPECT_EQ(link->local_path, u"D:\\");
}

TEST(ReadShellLinkTest, LinkInfoMayBeForbidden) {
  const auto link = Read(Header(0x1A2) + kInfo + Counted(u"a"));
  ASSERT_TRUE(link);
  EXPECT_EQ(link->local_path, u"");
  EXPECT_EQ(link->arguments, u"a");
}

TEST(ReadShellLinkTest, VariablesCountWhereTheHeaderSaysSo) {
  const std::string block = VariableBlock("%windir%\\a", u"");
  EXPECT_EQ(Read(Header(0x280) + block + kEnd)->variable_path, u"%windir%\\a");
  EXPECT_EQ(Read(Header(0x80) + block + kEnd)->variable_path, u"");
  const std::string filled = VariableBlock(std::string(260, 'a'), Text(260, u'b'));
  EXPECT_EQ(Read(Header(0x280) + filled + kEnd)->variable_path, Text(259, u'b'));
}

TEST(ReadShellLinkTest, OtherBlocksArePassedOver) {
  const std::string other = Hex("0C 00 00 00 05 00 00 A0 01 02 03 04");
  const std::string empty = Hex("04 00 00 00");
  const std::string block = VariableBlock("", u"x");
  EXPECT_EQ(Read(Header(0x280) + other + empty + block + kEnd)->variable_path, u"x");
  EXPECT_EQ(Read(Header(0x280) + kEnd + block)->variable_path, u"") << "behind the end";
}

TEST(ReadShellLinkTest, BlocksMayBeCutOrMissing) {
  const std::string block = VariableBlock("", u"x");
  for (std::size_t length = 0; length < block.size(); length += 3) {
    const auto link = Read(Header(0x280) + block.substr(0, length));
    ASSERT_TRUE(link) << length;
    EXPECT_EQ(link->variable_path, u"");
  }
  EXPECT_EQ(Read(Header(0x280) + block)->variable_path, u"x") << "no closing block";
  const auto small = Read(Header(0x280) + Hex("10 00 00 00 01 00 00 A0 78 00 00 00 00 00 00 00"));
  ASSERT_TRUE(small);
  EXPECT_EQ(small->variable_path, u"");
}

}  // namespace
}  // namespace orvik::host
