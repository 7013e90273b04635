#include <sys/stat.h>

#include "host/shell_link/shell_link.h"
#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

class PosixShortcutsTest : public PosixTest {
 protected:
  Shell& shell() { return *host_.services().shell; }

  std::string Bytes(const ShellLink& link) {
    return WriteShellLink(link, CodePage::Numbered(1251)).value_or("");
  }

  // All fields of a shortcut in one line.
  static std::string Line(const std::optional<Shortcut>& shortcut) {
    if (!shortcut) return "none";
    return ToUtf8(shortcut->target + u"|" + shortcut->arguments + u"|" + shortcut->description +
                  u"|" + shortcut->working_folder + u"|" + shortcut->icon_location) +
           "|" + std::to_string(shortcut->window_style);
  }

  std::string ReadBytes(const std::string& bytes) {
    WriteNative("x.lnk", bytes);
    return Line(shell().ReadShortcut(u"T:\\X.lnk"));
  }

  // A file that Wine's shell has made.
  std::string ReadMade(const std::string& name) {
    return ReadBytes(ReadNative(std::string(ORVIK_TEST_DATA) + "/shortcuts/" + name + ".lnk"));
  }

  ShellLink Written(const Text& target) {
    Shortcut shortcut;
    shortcut.target = target;
    EXPECT_TRUE(shell().WriteShortcut(u"T:\\new.lnk", shortcut));
    const auto link = ReadShellLink(ReadNative(Native("new.lnk")), CodePage::Numbered(1251));
    return link.value_or(ShellLink());
  }
};

TEST_F(PosixShortcutsTest, FilesMadeByTheShellAreRead) {
  EXPECT_EQ(ReadMade("file"),
            "C:\\Моя папка\\Файл длинный.txt|/a \"b c\" ключ|Описание|C:\\Моя папка\\|"
            "C:\\windows\\explorer.exe,2|7");
  EXPECT_EQ(ReadMade("folder"), "C:\\Моя папка|||||3");
  EXPECT_EQ(ReadMade("folder-closed"), "C:\\Моя папка|||||1");
  EXPECT_EQ(ReadMade("missing"), "Q:\\gone away\\нет.exe||||C:\\x.ico,-5|0");
  EXPECT_EQ(ReadMade("root"), "C:\\|||||1");
  EXPECT_EQ(ReadMade("share"), "\\\\server\\share\\дир\\f.txt|x||\\\\server\\share||1");
  EXPECT_EQ(ReadMade("no-target"), "|args||||1");
  EXPECT_EQ(ReadMade("no-items"), "c:\\windows\\notepad.exe|||||1");
  EXPECT_EQ(ReadMade("wide"), "C:\\日本\\x.txt|ü日||||1");
}

TEST_F(PosixShortcutsTest, VariablesAreThoseOfTheEnvironment) {
  ShellLink link;
  link.item_path = u"C:\\old";
  link.variable_path = u"%WINDIR%\\explorer.exe";
  EXPECT_EQ(ReadBytes(Bytes(link)), "D:\\Win\\explorer.exe|||||1");
  link.variable_path = u"%no such%\\explorer.exe";
  EXPECT_EQ(ReadBytes(Bytes(link)), "C:\\old|||||1");
}

TEST_F(PosixShortcutsTest, ALargeFileIsReadAsFarAsItMatters) {
  ShellLink link;
  link.arguments = u"x";
  WriteNative("x.lnk", Bytes(link));
  ASSERT_EQ(::truncate(Native("x.lnk").c_str(), std::int64_t{1} << 36), 0);
  EXPECT_EQ(Line(shell().ReadShortcut(u"T:\\x.lnk")), "|x||||1");
}

TEST_F(PosixShortcutsTest, WhatIsNoFileIsNone) {
  ASSERT_EQ(::mkfifo(Native("pipe.lnk").c_str(), 0666), 0);
  EXPECT_EQ(Line(shell().ReadShortcut(u"T:\\pipe.lnk")), "none");
  EXPECT_EQ(Line(shell().ReadShortcut(u"T:\\")), "none");
  ASSERT_EQ(::symlink("nowhere", Native("dangling.lnk").c_str()), 0);
  EXPECT_EQ(Line(shell().ReadShortcut(u"T:\\dangling.lnk")), "none");
}

TEST_F(PosixShortcutsTest, TheDiskTellsWhatTheTargetIs) {
  ASSERT_TRUE(files().CreateFolder(u"T:\\folder"));
  WriteNative("file", "");
  EXPECT_TRUE(Written(u"T:\\FOLDER").folder);
  EXPECT_TRUE(Written(u"T:\\").folder);
  EXPECT_FALSE(Written(u"T:\\file").folder);
  EXPECT_FALSE(Written(u"T:\\missing").folder);
  EXPECT_EQ(Written(u"T:\\file").drive_type, 3U);
  EXPECT_EQ(Written(u"Q:\\file").drive_type, 1U);
}

TEST_F(PosixShortcutsTest, LocalTargetsHaveItemsAndAPath) {
  for (const Text target : {u"T:\\Файл", u"Q:\\gone\\x", u"Q:\\"}) {
    EXPECT_EQ(Written(target).item_path, target);
    EXPECT_EQ(Written(target).local_path, target);
    EXPECT_EQ(Written(target).variable_path, u"");
  }
  EXPECT_EQ(Written(u"\\\\s\\h\\x").item_path, u"");
  EXPECT_EQ(Written(u"\\\\s\\h\\x").local_path, u"\\\\s\\h\\x");
}

TEST_F(PosixShortcutsTest, ARelativeTargetIsBelowTheCurrentFolder) {
  char old[4096];
  ASSERT_NE(::getcwd(old, sizeof old), nullptr);
  ASSERT_EQ(::chdir(Native("").c_str()), 0);
  const Text path = Written(u"sub\\x").item_path;
  ASSERT_EQ(::chdir(old), 0);
  EXPECT_EQ(
      ToUtf8(path), "Z:" + [this] {
        std::string native = Native("sub/x");
        for (char& c : native) c = c == '/' ? '\\' : c;
        return native;
      }());
}

TEST_F(PosixShortcutsTest, AVariableMayMakeATargetTooLong) {
  Shortcut shortcut;
  shortcut.target = u"%windir%\\" + Text(kLongestPath - 9, u'x');
  EXPECT_TRUE(shell().WriteShortcut(u"T:\\new.lnk", shortcut));
  shortcut.target = u"\\" + Text(kLongestPath - 1, u'x');
  EXPECT_FALSE(shell().WriteShortcut(u"T:\\other.lnk", shortcut));
  EXPECT_FALSE(files().PathExists(u"T:\\other.lnk"));
}

}  // namespace
}  // namespace orvik::host::posix
