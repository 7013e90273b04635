// Shortcuts: whatever is written is read back, on every system alike.
#include "conformance/host_test.h"

namespace orvik::host {
namespace {

class ShortcutTest : public HostTest {
 protected:
  Shell& shell() { return *real_.services().shell; }

  // Writes a shortcut and reads it back.
  Shortcut Through(const Shortcut& written, TextView name = u"a.lnk") {
    EXPECT_TRUE(shell().WriteShortcut(At(name), written)) << U(name);
    const auto read = shell().ReadShortcut(At(name));
    EXPECT_TRUE(read) << U(name);
    return read.value_or(Shortcut());
  }

  std::string TargetThrough(const Text& target) {
    Shortcut written;
    written.target = target;
    return U(Through(written).target);
  }

  std::string IconThrough(const Text& icon) {
    Shortcut written;
    written.target = u"C:\\windows\\explorer.exe";
    written.icon_location = icon;
    return U(Through(written).icon_location);
  }

  static void ExpectSame(const Shortcut& read, const Shortcut& written) {
    EXPECT_EQ(U(read.target), U(written.target));
    EXPECT_EQ(U(read.arguments), U(written.arguments));
    EXPECT_EQ(U(read.description), U(written.description));
    EXPECT_EQ(U(read.working_folder), U(written.working_folder));
    EXPECT_EQ(U(read.icon_location), U(written.icon_location));
    EXPECT_EQ(read.window_style, written.window_style);
  }

  Shortcut Full() {
    Shortcut shortcut;
    shortcut.target = At(u"Цель с пробелом.txt");
    shortcut.arguments = u" /a \"b c\" ключ ";
    shortcut.description = u"Описание ярлыка";
    shortcut.working_folder = At(u"Рабочая папка\\");
    shortcut.icon_location = At(u"Значок, новый.ico") + u",2";
    shortcut.window_style = 7;
    return shortcut;
  }
};

TEST_F(ShortcutTest, ComesBackWholeToATargetThatExists) {
  Write(u"Цель с пробелом.txt", "1");
  ExpectSame(Through(Full(), u"Ярлык на файл.lnk"), Full());
}

TEST_F(ShortcutTest, ComesBackWholeToATargetThatDoesnt) { ExpectSame(Through(Full()), Full()); }

TEST_F(ShortcutTest, EmptyFieldsStayEmpty) {
  Shortcut written;
  written.target = At(u"file");
  ExpectSame(Through(written), written);
}

TEST_F(ShortcutTest, MayHaveNoTarget) {
  Shortcut written;
  written.arguments = u"x";
  ExpectSame(Through(written), written);
}

TEST_F(ShortcutTest, EachWindowStyleIsStoredAsItIs) {
  for (const int style : {0, 1, 2, 3, 7, 99, -1}) {
    Shortcut written;
    written.target = At(u"file");
    written.window_style = style;
    EXPECT_EQ(Through(written).window_style, style);
  }
}

TEST_F(ShortcutTest, TargetsOfAllKinds) {
  MakeFolder(u"папка");
  MakeFolder(u"папка\\with blanks");
  for (const Text& target :
       {At(u"папка"), At(u"папка\\with blanks"), Text(u"C:\\"), Text(u"Q:\\gone\\away.exe"),
        Text(u"Q:\\"), Text(u"\\\\server\\share\\папка\\f.txt"), Text(u"\\\\server\\share")}) {
    EXPECT_EQ(TargetThrough(target), U(target));
  }
}

TEST_F(ShortcutTest, ATargetIsMadeAPlainFullPath) {
  MakeFolder(u"folder");
  EXPECT_EQ(TargetThrough(At(u"folder\\")), U(At(u"folder")));
  EXPECT_EQ(TargetThrough(u"Q:\\no folder\\"), "Q:\\no folder");
  EXPECT_EQ(TargetThrough(u"\"" + At(u"a b.txt") + u"\""), U(At(u"a b.txt")));
  EXPECT_EQ(TargetThrough(u"q:/a/../b/./c"), "q:\\b\\c");
  EXPECT_EQ(TargetThrough(u"Q:"), "Q:\\");
  EXPECT_EQ(TargetThrough(u"Q:\\a b. "), "Q:\\a b");
  EXPECT_EQ(TargetThrough(u"Q:\\..\\x"), "Q:\\x");
  const std::string relative = TargetThrough(u"no-such-folder\\x.txt");
  EXPECT_EQ(relative.substr(1, 2), ":\\") << relative;
  EXPECT_THAT(relative, testing::EndsWith("\\no-such-folder\\x.txt"));
}

TEST_F(ShortcutTest, VariablesInATargetAreExpanded) {
  const auto* const windows = "windir=";
  std::string folder;
  for (int i = 1; const auto entry = real_.services().system->EnvironmentEntry(i); ++i) {
    if (U(*entry).starts_with(windows)) folder = U(*entry).substr(7);
  }
  ASSERT_NE(folder, "");
  EXPECT_EQ(TargetThrough(u"%WinDir%\\explorer.exe"), folder + "\\explorer.exe");
  EXPECT_EQ(TargetThrough(u"Q:\\100%\\x"), "Q:\\100%\\x");
  EXPECT_EQ(TargetThrough(u"Q:\\%no such%\\x"), "Q:\\%no such%\\x");
}

TEST_F(ShortcutTest, IconsHaveAnIndexOrNone) {
  EXPECT_EQ(IconThrough(u"C:\\a.ico"), "C:\\a.ico");
  EXPECT_EQ(IconThrough(u"C:\\a.ico,0"), "C:\\a.ico");
  EXPECT_EQ(IconThrough(u"C:\\a.dll,3"), "C:\\a.dll,3");
  EXPECT_EQ(IconThrough(u"C:\\a.dll, 3 "), "C:\\a.dll,3");
  EXPECT_EQ(IconThrough(u"C:\\a.dll,-101"), "C:\\a.dll,-101");
  EXPECT_EQ(IconThrough(u"C:\\a, b.ico"), "C:\\a, b.ico");
  EXPECT_EQ(IconThrough(u"C:\\a,b.dll,7"), "C:\\a,b.dll,7");
  EXPECT_EQ(IconThrough(u",3"), ",3");
  EXPECT_EQ(IconThrough(u"C:\\Значки\\файл.dll,12"), "C:\\Значки\\файл.dll,12");
}

TEST_F(ShortcutTest, LongTextsComeBack) {
  Shortcut written;
  written.target = u"Q:\\" + Text(kLongestPath - 3, u'ж');
  written.arguments = Text(32766, u'я');
  const Shortcut read = Through(written);
  EXPECT_TRUE(read.target == written.target);
  EXPECT_EQ(read.arguments.size(), written.arguments.size());
  EXPECT_TRUE(read.arguments == written.arguments);
}

TEST_F(ShortcutTest, WhatIsTooLongIsRefused) {
  Shortcut target;
  target.target = u"Q:\\" + Text(kLongestPath - 2, u'x');
  EXPECT_FALSE(shell().WriteShortcut(At(u"a.lnk"), target));
  Shortcut arguments;
  arguments.arguments = Text(32767, u'x');
  EXPECT_FALSE(shell().WriteShortcut(At(u"a.lnk"), arguments));
  Shortcut quote;
  quote.target = u"Q:\\a\"b";
  EXPECT_FALSE(shell().WriteShortcut(At(u"a.lnk"), quote));
  EXPECT_FALSE(Exists(u"a.lnk"));
}

TEST_F(ShortcutTest, ReplacesTheOldOneWhole) {
  Through(Full());
  Shortcut written;
  written.target = At(u"x");
  ExpectSame(Through(written, u"A.LNK"), written);
  EXPECT_EQ(Names(u"*"), std::vector<std::string>{"a.lnk"});
}

TEST_F(ShortcutTest, ReplacesWhatIsNoShortcut) {
  Write(u"a.lnk", std::string(5000, 'x'));
  ExpectSame(Through(Full()), Full());
}

TEST_F(ShortcutTest, NeedsNoExtension) { ExpectSame(Through(Full(), u"Ярлык"), Full()); }

TEST_F(ShortcutTest, AMissingFileIsNone) {
  EXPECT_EQ(shell().ReadShortcut(At(u"missing.lnk")), std::nullopt);
  EXPECT_EQ(shell().ReadShortcut(At(u"missing\\a.lnk")), std::nullopt);
  EXPECT_EQ(shell().ReadShortcut(u""), std::nullopt);
}

TEST_F(ShortcutTest, OtherFilesAreNone) {
  Write(u"empty.lnk", "");
  Write(u"text.lnk", "not a shortcut at all");
  Write(u"long.lnk", std::string(3000, 'L'));
  MakeFolder(u"folder.lnk");
  for (const TextView name : {u"empty.lnk", u"text.lnk", u"long.lnk", u"folder.lnk"}) {
    EXPECT_EQ(shell().ReadShortcut(At(name)), std::nullopt) << U(name);
  }
}

TEST_F(ShortcutTest, AFileThatIsCutIsNoneUntilOnlyItsEndIsMissing) {
  Through(Full());
  const std::string whole = Read(u"a.lnk");
  for (std::size_t length = 0; length < whole.size(); length += 7) {
    ASSERT_TRUE(files().PathExists(At(u"cut.lnk")) == (length > 0));
    files().DeleteFile(At(u"cut.lnk"));
    Write(u"cut.lnk", whole.substr(0, length));
    const bool only_end = length >= whole.size() - 4;
    EXPECT_EQ(shell().ReadShortcut(At(u"cut.lnk")).has_value(), only_end) << length;
  }
}

TEST_F(ShortcutTest, AnotherClassOrSizeIsNone) {
  Through(Full());
  const std::string whole = Read(u"a.lnk");
  for (const std::size_t place : {0, 4, 19}) {
    std::string other = whole;
    other[place] ^= 1;
    Write(u"other.lnk", other);
    EXPECT_EQ(shell().ReadShortcut(At(u"other.lnk")), std::nullopt) << place;
  }
}

TEST_F(ShortcutTest, ProtectedFilesAndFoldersStay) {
  Write(u"locked.lnk", "x");
  ASSERT_TRUE(files().SetAttributes(At(u"locked.lnk"), attribute::kReadOnly));
  EXPECT_FALSE(shell().WriteShortcut(At(u"locked.lnk"), Full()));
  EXPECT_EQ(Read(u"locked.lnk"), "x");
  MakeFolder(u"folder.lnk");
  EXPECT_FALSE(shell().WriteShortcut(At(u"folder.lnk"), Full()));
  EXPECT_FALSE(shell().WriteShortcut(At(u"missing\\a.lnk"), Full()));
  EXPECT_FALSE(shell().WriteShortcut(u"", Full()));
  EXPECT_FALSE(shell().WriteShortcut(At(u"a?b.lnk"), Full()));
  EXPECT_EQ(Names(u"*").size(), 2U);
}

TEST_F(ShortcutTest, AHeldFileStays) {
  Write(u"held.lnk", "x");
  const auto hold = files().Open(At(u"held.lnk"), OpenMode::kHold);
  ASSERT_NE(hold, nullptr);
  EXPECT_FALSE(shell().WriteShortcut(At(u"held.lnk"), Full()));
  EXPECT_EQ(Names(u"*"), std::vector<std::string>{"held.lnk"});
  std::string content(1, '\0');
  EXPECT_EQ(hold->ReadAt(0, content), 1U);
  EXPECT_EQ(content, "x");
}

}  // namespace
}  // namespace orvik::host
