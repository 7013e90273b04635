#include "host/shell_link/shortcut_link.h"

#include <gtest/gtest.h>

#include "host/file_system.h"

namespace orvik::host {
namespace {

TEST(LinkOfTest, ALocalTargetHasItemsAndAPath) {
  Shortcut shortcut;
  shortcut.arguments = u"a";
  shortcut.description = u"d";
  shortcut.working_folder = u"w";
  shortcut.icon_location = u"i.ico,4";
  shortcut.window_style = 7;
  ShellLink expected;
  expected.item_path = expected.local_path = u"C:\\x";
  expected.folder = true;
  expected.drive_type = 3;
  expected.arguments = u"a";
  expected.description = u"d";
  expected.working_folder = u"w";
  expected.icon_path = u"i.ico";
  expected.icon_index = 4;
  expected.window_style = 7;
  EXPECT_TRUE(LinkOf(shortcut, u"C:\\x", {true, 3}) == expected);
}

TEST(LinkOfTest, AShareIsToldToEveryReader) {
  ShellLink expected;
  expected.local_path = expected.network_path = expected.variable_path = u"\\\\s\\h\\x";
  expected.drive_type = drive_type::kRemote;
  EXPECT_TRUE(LinkOf({}, u"\\\\s\\h\\x", {}) == expected);
}

TEST(LinkOfTest, NoTargetIsTold) { EXPECT_TRUE(LinkOf({}, u"", {true, 3}) == ShellLink()); }

TEST(LinkOfTest, TextsEndAtAZero) {
  Shortcut shortcut;
  shortcut.arguments = Text(u"a\0b", 3);
  shortcut.icon_location = Text(u"i\0,7", 4);
  const ShellLink link = LinkOf(shortcut, u"", {});
  EXPECT_EQ(link.arguments, u"a");
  EXPECT_EQ(link.icon_path, u"i");
  EXPECT_EQ(link.icon_index, 0);
}

TEST(ShortcutOfTest, TheTargetIsTheFirstThatIsTold) {
  ShellLink link;
  EXPECT_EQ(ShortcutOf(link, u"").target, u"");
  link.network_path = u"\\\\s\\h";
  EXPECT_EQ(ShortcutOf(link, u"").target, u"\\\\s\\h");
  link.local_path = u"C:\\local\\";
  EXPECT_EQ(ShortcutOf(link, u"").target, u"C:\\local");
  link.item_path = u"C:\\";
  EXPECT_EQ(ShortcutOf(link, u"").target, u"C:\\");
  EXPECT_EQ(ShortcutOf(link, u"D:\\x").target, u"D:\\x");
}

TEST(ShortcutOfTest, TheOtherFields) {
  ShellLink link;
  link.description = u"d";
  link.relative_path = u"ignored";
  link.working_folder = u"w";
  link.arguments = Text(40'000, u'a');
  link.icon_path = u"i";
  link.icon_index = -3;
  link.window_style = 99;
  const Shortcut shortcut = ShortcutOf(link, u"");
  EXPECT_EQ(shortcut.target, u"");
  EXPECT_EQ(shortcut.description, u"d");
  EXPECT_EQ(shortcut.working_folder, u"w");
  EXPECT_EQ(shortcut.arguments.size(), 32766U);
  EXPECT_EQ(shortcut.icon_location, u"i,-3");
  EXPECT_EQ(shortcut.window_style, 99);
}

}  // namespace
}  // namespace orvik::host
