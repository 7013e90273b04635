#include "host/shell_link/link_info.h"

#include <gtest/gtest.h>

#include "unit/host/shell_link/bytes.h"

namespace orvik::host::shell_link {
namespace {

ShellLink Read(const std::string& bytes) {
  ShellLink link;
  ReadLinkInfo(ByteView(bytes), Page(), link);
  return link;
}

const std::string kVolume = Hex("11 00 00 00 03 00 00 00 34 12 00 00 10 00 00 00 00");

// A local path and a suffix, in ANSI only.
std::string Local(const std::string& base, const std::string& suffix) {
  const std::size_t path = 0x1C + kVolume.size();
  const std::size_t rest = path + base.size() + 1;
  return U32(rest + suffix.size() + 1) + U32(0x1C) + U32(1) + U32(0x1C) + U32(path) + U32(0) +
         U32(rest) + kVolume + base + '\0' + suffix + '\0';
}

TEST(ReadLinkInfoTest, LocalPath) {
  const ShellLink link = Read(Local("C:\\\xC0\xE1\\x.txt", ""));
  EXPECT_EQ(link.local_path, u"C:\\Аб\\x.txt");
  EXPECT_EQ(link.network_path, u"");
  EXPECT_EQ(link.drive_type, 3U);
}

TEST(ReadLinkInfoTest, TheSuffixIsJoinedByOneBackslash) {
  EXPECT_EQ(Read(Local("C:\\", "a\\b")).local_path, u"C:\\a\\b");
  EXPECT_EQ(Read(Local("C:\\d", "a")).local_path, u"C:\\d\\a");
  EXPECT_EQ(Read(Local("C:\\d", "\\a")).local_path, u"C:\\d\\a");
  EXPECT_EQ(Read(Local("", "a")).local_path, u"");
}

TEST(ReadLinkInfoTest, TextsInUtf16ComeFirst) {
  const std::string bytes =
      Hex("4B 00 00 00 24 00 00 00 01 00 00 00 24 00 00 00 35 00 00 00 00 00 00 00 3B 00 00 00"
          "3D 00 00 00 47 00 00 00") +
      kVolume + "C:\\??" + '\0' + "?" + '\0' + Wide(u"C:\\日") + Hex("00 00") + Wide(u"é") +
      Hex("00 00");
  EXPECT_EQ(bytes.size(), 0x4BU);
  EXPECT_EQ(Read(bytes).local_path, u"C:\\日\\é");
}

TEST(ReadLinkInfoTest, NetworkPath) {
  const std::string bytes =
      Hex("43 00 00 00 1C 00 00 00 02 00 00 00 00 00 00 00 00 00 00 00 1C 00 00 00 3D 00 00 00"
          "21 00 00 00 03 00 00 00 14 00 00 00 1E 00 00 00 00 00 02 00") +
      "\\\\srv\\\xF8\xF0" + std::string(2, '\0') + "X:" + '\0' + "a\\b.c" + '\0';
  EXPECT_EQ(bytes.size(), 0x43U);
  const ShellLink link = Read(bytes);
  EXPECT_EQ(link.network_path, u"\\\\srv\\шр\\a\\b.c");
  EXPECT_EQ(link.local_path, u"");
}

TEST(ReadLinkInfoTest, NetworkPathInUtf16) {
  const std::string bytes =
      Hex("47 00 00 00 1C 00 00 00 02 00 00 00 00 00 00 00 00 00 00 00 1C 00 00 00 46 00 00 00"
          "2A 00 00 00 02 00 00 00 1C 00 00 00 00 00 00 00 00 00 02 00 1E 00 00 00 00 00 00 00") +
      "?" + '\0' + Wide(u"\\\\s\\é") + Hex("00 00 00");
  EXPECT_EQ(bytes.size(), 0x47U);
  EXPECT_EQ(Read(bytes).network_path, u"\\\\s\\é");
}

TEST(ReadLinkInfoTest, OffsetsThatLeadOutTellNothing) {
  const std::string good = Local("C:\\a", "b");
  for (const std::size_t place : {0x10, 0x18}) {
    for (const std::size_t offset :
         {std::size_t{0}, good.size(), std::size_t{0x7FFFFFFF}, std::size_t{0xFFFFFFFF}}) {
      std::string bytes = good;
      bytes.replace(place, 4, U32(offset));
      EXPECT_EQ(Read(bytes).local_path, place == 0x10 ? u"" : u"C:\\a") << offset;
    }
  }
  std::string volume = good;
  volume.replace(0x0C, 4, U32(0xFFFFFFFF));
  EXPECT_EQ(Read(volume).drive_type, 0U);
  EXPECT_EQ(Read(volume).local_path, u"C:\\a\\b");
}

TEST(ReadLinkInfoTest, ATextWithoutAZeroEndsWithTheStructure) {
  std::string bytes = Local("C:\\a", "bcd");
  bytes.back() = 'x';
  EXPECT_EQ(Read(bytes).local_path, u"C:\\a\\bcdx");
}

TEST(ReadLinkInfoTest, ABadNetworkPartTellsNothing) {
  for (const std::size_t size : {0, 4, 0x13, 0x7FFFFFF}) {
    const std::string bytes = U32(0x40) + U32(0x1C) + U32(2) + U32(0) + U32(0) + U32(0x1C) +
                              U32(0) + U32(size) + std::string(0x20, '\x1C');
    EXPECT_EQ(Read(bytes).network_path, u"") << size;
  }
}

TEST(ReadLinkInfoTest, CutBytesTellNothingWrong) {
  const std::string good = Local("C:\\abc", "");
  for (std::size_t length = 0; length < good.size(); ++length) {
    const Text path = Read(good.substr(0, length)).local_path;
    EXPECT_TRUE(Text(u"C:\\abc").starts_with(path)) << length;
  }
}

TEST(WriteLinkInfoTest, LocalPath) {
  ShellLink link;
  link.local_path = u"C:\\я";
  link.drive_type = 3;
  const std::string expected =
      Hex("47 00 00 00 24 00 00 00 01 00 00 00 24 00 00 00 35 00 00 00 00 00 00 00 3A 00 00 00"
          "3B 00 00 00 45 00 00 00"
          "11 00 00 00 03 00 00 00 00 00 00 00 10 00 00 00 00"
          "43 3A 5C FF 00 00"
          "43 00 3A 00 5C 00 4F 04 00 00 00 00");
  EXPECT_EQ(Digits(WriteLinkInfo(link, Page())), Digits(expected));
}

TEST(WriteLinkInfoTest, NetworkPathWithSuffix) {
  ShellLink link;
  link.network_path = u"\\\\s\\h\\я";
  const std::string expected =
      Hex("58 00 00 00 24 00 00 00 02 00 00 00 00 00 00 00 00 00 00 00 24 00 00 00 52 00 00 00"
          "00 00 00 00 54 00 00 00"
          "2E 00 00 00 02 00 00 00 1C 00 00 00 00 00 00 00 00 00 02 00 22 00 00 00 00 00 00 00"
          "5C 5C 73 5C 68 00"
          "5C 00 5C 00 73 00 5C 00 68 00 00 00"
          "FF 00"
          "4F 04 00 00");
  EXPECT_EQ(Digits(WriteLinkInfo(link, Page())), Digits(expected));
}

TEST(WriteLinkInfoTest, WhatIsWrittenIsRead) {
  for (const Text path : {u"\\\\s", u"\\\\s\\", u"\\\\s\\h", u"\\\\s\\h\\", u"\\\\s\\h\\a\\b",
                          u"\\\\s\\h\\\\a", u"\\\\s\\\\a", u"\\\\\\h\\a", u"a\\b", u"日"}) {
    for (const Text local : {u"", u"C:\\a", u"\\\\s\\h\\a"}) {
      ShellLink link;
      link.network_path = path;
      link.local_path = local;
      EXPECT_TRUE(Read(WriteLinkInfo(link, Page())) == link) << ToUtf8(path) << ToUtf8(local);
    }
  }
}

}  // namespace
}  // namespace orvik::host::shell_link
