#include "host/shell_link/item_list.h"

#include <gtest/gtest.h>

#include "unit/host/shell_link/bytes.h"

namespace orvik::host::shell_link {
namespace {

const std::string kComputer = Hex("14 00 1F 50 E0 4F D0 20 EA 3A 69 10 A2 D8 08 00 2B 30 30 9D");
const std::string kDriveC = Hex("19 00 2F 43 3A 5C") + std::string(19, '\0');
const std::string kEnd = Hex("00 00");

// Any item: its size and its bytes.
std::string Item(const std::string& bytes) { return U16(bytes.size() + 2) + bytes; }

// A file's item that has no extension.
std::string ShortItem(const std::string& kind, const std::string& name) {
  return Item(kind + Hex("00 00 00 00 00 00 00 00 00 00 00") + name + '\0');
}

// An item with an extension of these bytes behind the name.
std::string ExtendedItem(const std::string& name, const std::string& extension) {
  std::string bytes = Hex("32 00 00 00 00 00 00 00 00 00 00 00") + name + '\0';
  if (bytes.size() % 2 != 0) bytes += '\0';
  return Item(bytes + extension + U16(bytes.size() + 2));
}

// An extension with the name at a place, as the versions of Windows have it at different ones.
std::string Extension(std::size_t place, TextView name, std::size_t version = 3) {
  std::string bytes = U16(version) + Hex("04 00 EF BE 00 00 00 00 00 00 00 00") + U16(place);
  bytes.resize(place - 2, '\x11');
  bytes += Wide(name) + Hex("00 00");
  return U16(bytes.size() + 4) + bytes;
}

std::string PathOf(const std::string& list) { return ToUtf8(ReadItemPath(ByteView(list), Page())); }

TEST(ReadItemPathTest, DriveFoldersAndFile) {
  EXPECT_EQ(PathOf(kComputer + kDriveC + kEnd), "C:\\");
  const std::string list =
      kComputer + kDriveC + ShortItem("1", "PROGRA~1") + ShortItem("2", "\xC0\xE1.TXT") + kEnd;
  EXPECT_EQ(PathOf(list), "C:\\PROGRA~1\\Аб.TXT");
}

TEST(ReadItemPathTest, TheFullNameOfTheExtensionComesFirst) {
  for (const std::size_t place : {0x14, 0x26, 0x2A, 0x2E}) {
    const std::string item = ExtendedItem("LONGNA~1", Extension(place, u"Long имя.txt", 9));
    EXPECT_EQ(PathOf(kComputer + kDriveC + item + kEnd), "C:\\Long имя.txt") << place;
  }
}

TEST(ReadItemPathTest, AnExtensionWithoutASignatureIsWines) {
  const std::string extension = Hex("1E 00") + std::string(18, '\0') + Wide(u"имя") + Hex("00 00");
  EXPECT_EQ(PathOf(kComputer + kDriveC + ExtendedItem("x", extension) + kEnd), "C:\\имя");
}

TEST(ReadItemPathTest, OtherExtensionsArePassedOver) {
  const std::string other = Hex("18 00 01 00 26 00 EF BE") + std::string(16, '\x22');
  const std::string item = ExtendedItem("N", other + Extension(0x14, u"name"));
  EXPECT_EQ(PathOf(kComputer + kDriveC + item + kEnd), "C:\\name");
  EXPECT_EQ(PathOf(kComputer + kDriveC + ExtendedItem("N", other) + kEnd), "C:\\N");
}

TEST(ReadItemPathTest, ABadExtensionLeavesTheShortName) {
  const std::string good = ExtendedItem("SHORT", Extension(0x14, u"long"));
  for (const std::size_t offset : {0, 1, 13, 0x1234, 0xFFFF}) {
    std::string item = good;
    item.replace(item.size() - 2, 2, U16(offset));
    EXPECT_EQ(PathOf(kComputer + kDriveC + item + kEnd), "C:\\SHORT") << offset;
  }
  for (const std::size_t size : {0, 1, 8, 0x13, 0x7000}) {
    std::string item = good;
    item.replace(20, 2, U16(size));
    EXPECT_EQ(PathOf(kComputer + kDriveC + item + kEnd), "C:\\SHORT") << size;
  }
  for (const std::size_t place : {0, 4, 0x13, 0x100, 0xFFFF}) {
    std::string item = good;
    item.replace(20 + 0x10, 2, U16(place));
    EXPECT_EQ(PathOf(kComputer + kDriveC + item + kEnd), "C:\\SHORT") << place;
  }
}

TEST(ReadItemPathTest, ANameMayBeWideItself) {
  const std::string item = Item(Hex("36 00 00 00 00 00 00 00 00 00 00 00") + Wide(u"имя") + kEnd);
  EXPECT_EQ(PathOf(kComputer + kDriveC + item + kEnd), "C:\\имя");
}

TEST(ReadItemPathTest, OtherPlacesHaveNoPath) {
  const std::string file = ShortItem("2", "x");
  const std::string other_root = Hex("14 00 1F 50 E1") + std::string(15, '\x33');
  const std::string virtual_item = Hex("14 00 2E 00") + std::string(16, '\x44');
  for (const std::string& list : {
           std::string(),                                          // the desktop itself
           kEnd,                                                   //
           kComputer + kEnd,                                       // no drive
           other_root + file + kEnd,                               // another root
           kDriveC + kComputer + kEnd,                             // a root in the middle
           kComputer + virtual_item + file + kEnd,                 // no drive's item
           kComputer + file + kEnd,                                // a file of no drive
           kComputer + kDriveC + kDriveC + kEnd,                   // a drive below a drive
           kComputer + kDriveC + Item(Hex("61 00 00 78")) + kEnd,  // an address
       }) {
    EXPECT_EQ(PathOf(list), "") << Digits(list);
  }
}

TEST(ReadItemPathTest, NamesThatAreNoNamesSpoilTheList) {
  for (const char* const name : {"", "a\\b", "a/b", "C:"}) {
    EXPECT_EQ(PathOf(kComputer + kDriveC + ShortItem("2", name) + kEnd), "") << name;
  }
  for (const std::string drive : {"C:", "1:\\", "CC\\", "C:\\x", ""}) {
    EXPECT_EQ(PathOf(kComputer + Item("/" + drive + '\0') + kEnd), "") << drive;
  }
}

TEST(ReadItemPathTest, ItemsThatArentWholeSpoilTheList) {
  EXPECT_EQ(PathOf(kComputer + kDriveC + Hex("10 00 32 00")), "");
  EXPECT_EQ(PathOf(kComputer + kDriveC + Hex("01 00") + kEnd), "");
  EXPECT_EQ(PathOf(kComputer + kDriveC + Hex("02 00") + kEnd), "");
  EXPECT_EQ(PathOf(kComputer + kDriveC + Hex("03 00 32") + kEnd), "");
  EXPECT_EQ(PathOf(kComputer + Hex("03 00 2F") + kEnd), "");
  EXPECT_EQ(PathOf(kComputer + kDriveC), "C:\\") << "the closing item may be missing";
}

TEST(WriteItemPathTest, RootDriveFolderAndFile) {
  const auto bytes = WriteItemPath(u"C:\\Имя\\ab.c", false, Page());
  ASSERT_TRUE(bytes);
  const std::string folder =
      Hex("32 00 31 00 00 00 00 00 00 00 00 00 10 00 C8 EC FF 00"  // "Имя"
          "1E 00 03 00 04 00 EF BE 00 00 00 00 00 00 00 00 14 00 00 00"
          "18 04 3C 04 4F 04 00 00 12 00");
  const std::string file =
      Hex("36 00 32 00 00 00 00 00 00 00 00 00 00 00 61 62 2E 63 00 00"
          "20 00 03 00 04 00 EF BE 00 00 00 00 00 00 00 00 14 00 00 00"
          "61 00 62 00 2E 00 63 00 00 00 14 00");
  // Sizes first: they are what the eye gets wrong.
  const std::string expected = kComputer + kDriveC + U16(folder.size()) + folder.substr(2) +
                               U16(file.size()) + file.substr(2) + kEnd;
  EXPECT_EQ(Digits(*bytes), Digits(expected));
}

TEST(WriteItemPathTest, TheLastItemMayBeAFolder) {
  const auto bytes = WriteItemPath(u"D:\\a", true, Page());
  ASSERT_TRUE(bytes);
  EXPECT_EQ((*bytes)[kComputer.size() + kDriveC.size() + 2], '1');
  EXPECT_EQ((*bytes)[kComputer.size() + kDriveC.size() + 12], '\x10');
}

TEST(WriteItemPathTest, WhatIsWrittenIsRead) {
  for (const Text path :
       {u"C:\\", u"z:\\a", u"C:\\Моя папка\\Файл с пробелом.txt", u"C:\\日本\\é"}) {
    const auto bytes = WriteItemPath(path, false, Page());
    ASSERT_TRUE(bytes);
    EXPECT_EQ(PathOf(*bytes), ToUtf8(path));
  }
}

TEST(WriteItemPathTest, OnlyPathsOfDrivesHaveItems) {
  for (const Text path : {u"", u"C:", u"C:x", u"\\x", u"\\\\server\\share", u"1:\\"}) {
    EXPECT_FALSE(WriteItemPath(path, false, Page())) << ToUtf8(path);
  }
  EXPECT_TRUE(WriteItemPath(u"C:\\" + Text(20'000, u'x'), false, Page()));
  EXPECT_FALSE(WriteItemPath(u"C:\\" + Text(30'000, u'x'), false, Page()));
}

}  // namespace
}  // namespace orvik::host::shell_link
