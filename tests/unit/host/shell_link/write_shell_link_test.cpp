#include <gtest/gtest.h>

#include "host/shell_link/shell_link.h"
#include "unit/host/shell_link/bytes.h"

namespace orvik::host {
namespace {

ShellLink Full() {
  ShellLink link;
  link.item_path = u"C:\\Папка\\файл с пробелом.txt";
  link.local_path = u"D:\\другой";
  link.network_path = u"\\\\server\\share\\третий";
  link.variable_path = u"%windir%\\четвёртый";
  link.folder = true;
  link.drive_type = 5;
  link.description = u"описание";
  link.relative_path = u"..\\x";
  link.working_folder = u"C:\\w";
  link.arguments = u"a \"b\"";
  link.icon_path = u"i.ico";
  link.icon_index = -7;
  link.window_style = 3;
  return link;
}

TEST(WriteShellLinkTest, AnEmptyOneIsAHeaderAndTheEnd) {
  const std::string expected =
      Hex("4C 00 00 00 01 14 02 00 00 00 00 00 C0 00 00 00 00 00 00 46 80 00 00 00") +
      std::string(0x24, '\0') + Hex("01 00 00 00") + std::string(12, '\0') + Hex("00 00 00 00");
  EXPECT_EQ(Digits(*WriteShellLink({}, Page())), Digits(expected));
}

TEST(WriteShellLinkTest, TextsFollowInTheirOrder) {
  ShellLink link;
  link.description = u"n";
  link.relative_path = u"r";
  link.working_folder = u"w";
  link.arguments = u"я";
  link.icon_path = u"i";
  link.icon_index = -1;
  link.window_style = 0;
  const std::string expected =
      Hex("4C 00 00 00 01 14 02 00 00 00 00 00 C0 00 00 00 00 00 00 46 FC 00 00 00") +
      std::string(0x20, '\0') + Hex("FF FF FF FF 00 00 00 00") + std::string(12, '\0') +
      Hex("01 00 6E 00 01 00 72 00 01 00 77 00 01 00 4F 04 01 00 69 00 00 00 00 00");
  EXPECT_EQ(Digits(*WriteShellLink(link, Page())), Digits(expected));
}

TEST(WriteShellLinkTest, ThePathWithVariablesHasABlock) {
  ShellLink link;
  link.variable_path = u"%я%";
  const std::string bytes = *WriteShellLink(link, Page());
  ASSERT_EQ(bytes.size(), 0x4CU + 0x314 + 4);
  EXPECT_EQ(Digits(bytes.substr(0x14, 4)), "80 02 00 00 ");
  EXPECT_EQ(Digits(bytes.substr(0x4C, 12)), "14 03 00 00 01 00 00 A0 25 FF 25 00 ");
  EXPECT_EQ(Digits(bytes.substr(0x4C + 268, 8)), "25 00 4F 04 25 00 00 00 ");
}

TEST(WriteShellLinkTest, AFolderHasItsAttribute) {
  ShellLink link;
  link.folder = true;
  EXPECT_EQ(Digits(WriteShellLink(link, Page())->substr(0x18, 4)), "10 00 00 00 ");
}

TEST(WriteShellLinkTest, WhatIsWrittenIsRead) {
  const auto bytes = WriteShellLink(Full(), Page());
  ASSERT_TRUE(bytes);
  const auto link = ReadShellLink(*bytes, Page());
  ASSERT_TRUE(link);
  EXPECT_TRUE(*link == Full());
}

TEST(WriteShellLinkTest, WhatDoesntFitIsRefused) {
  for (Text ShellLink::*const text :
       {&ShellLink::local_path, &ShellLink::network_path, &ShellLink::description,
        &ShellLink::relative_path, &ShellLink::working_folder, &ShellLink::arguments,
        &ShellLink::icon_path}) {
    ShellLink link = Full();
    link.*text = Text(65535, u'x');
    EXPECT_TRUE(WriteShellLink(link, Page()));
    link.*text += u'x';
    EXPECT_FALSE(WriteShellLink(link, Page()));
  }
  ShellLink variables = Full();
  variables.variable_path = Text(259, u'x');
  EXPECT_EQ(ReadShellLink(*WriteShellLink(variables, Page()), Page())->variable_path,
            variables.variable_path);
  variables.variable_path += u'x';
  EXPECT_FALSE(WriteShellLink(variables, Page()));
  ShellLink items = Full();
  items.item_path = u"C:\\" + Text(65000, u'x');
  EXPECT_FALSE(WriteShellLink(items, Page()));
  items.item_path = u"no drive";
  EXPECT_FALSE(WriteShellLink(items, Page()));
}

}  // namespace
}  // namespace orvik::host
