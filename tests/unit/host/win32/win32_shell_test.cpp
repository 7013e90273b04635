#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

class Win32ShellTest : public HostTest {
 protected:
  // Waits for a started program to leave a file behind.
  bool Appears(const Text& path) {
    for (int i = 0; i < 500; ++i) {
      if (files().FileLength(path).value_or(0) > 0) return true;
      Sleep(20);
    }
    return false;
  }
};

TEST_F(Win32ShellTest, ShortcutComesBackWhole) {
  Shortcut written;
  written.target = Make(u"Цель с пробелом.txt");
  written.arguments = u"/a \"b c\" ключ";
  written.description = u"Описание";
  written.working_folder = In(u"");
  written.icon_location = u"C:\\windows\\explorer.exe,2";
  written.window_style = 7;
  const Text path = In(u"Ярлык.lnk");
  ASSERT_TRUE(shell().WriteShortcut(path, written));
  const auto read = shell().ReadShortcut(path);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->target, written.target);
  EXPECT_EQ(read->arguments, written.arguments);
  EXPECT_EQ(read->description, written.description);
  EXPECT_EQ(read->working_folder, written.working_folder);
  EXPECT_EQ(read->icon_location, written.icon_location);
  EXPECT_EQ(read->window_style, 7);
}

TEST_F(Win32ShellTest, ShortcutToWhatDoesNotExist) {
  Shortcut written;
  written.target = u"Q:\\gone\\away.exe";
  const Text path = In(u"a.lnk");
  ASSERT_TRUE(shell().WriteShortcut(path, written));
  const auto read = shell().ReadShortcut(path);
  ASSERT_TRUE(read);
  EXPECT_EQ(ToUtf8(ToLower(read->target)), ToUtf8(ToLower(written.target)));
  EXPECT_EQ(read->arguments, u"");
  EXPECT_EQ(read->description, u"");
  EXPECT_EQ(read->icon_location, u"");
}

TEST_F(Win32ShellTest, IconLocationNeedsNoIndex) {
  Shortcut written;
  written.target = u"C:\\windows\\explorer.exe";
  written.icon_location = u"C:\\a, b.ico";
  ASSERT_TRUE(shell().WriteShortcut(In(u"a.lnk"), written));
  EXPECT_EQ(shell().ReadShortcut(In(u"a.lnk"))->icon_location, written.icon_location);
}

TEST_F(Win32ShellTest, ShortcutIsReplaced) {
  Shortcut written;
  written.target = u"C:\\windows\\explorer.exe";
  written.arguments = u"long arguments that must be gone";
  ASSERT_TRUE(shell().WriteShortcut(In(u"a.lnk"), written));
  written.arguments = u"";
  ASSERT_TRUE(shell().WriteShortcut(In(u"a.lnk"), written));
  EXPECT_EQ(shell().ReadShortcut(In(u"a.lnk"))->arguments, u"");
}

TEST_F(Win32ShellTest, NoShortcut) {
  EXPECT_FALSE(shell().ReadShortcut(In(u"missing.lnk")));
  EXPECT_FALSE(shell().ReadShortcut(Make(u"text.lnk", "not a shortcut at all")));
  EXPECT_FALSE(shell().ReadShortcut(Make(u"empty.lnk")));
  EXPECT_FALSE(shell().ReadShortcut(MakeFolder(u"folder.lnk")));
  EXPECT_FALSE(shell().WriteShortcut(In(u"none\\a.lnk"), {}));
  const Text locked = Make(u"locked.lnk", "x");
  ASSERT_TRUE(files().SetAttributes(locked, attribute::kReadOnly));
  EXPECT_FALSE(shell().WriteShortcut(locked, {}));
  EXPECT_EQ(Content(locked), "x");
}

TEST_F(Win32ShellTest, RecyclesFilesAndFolders) {
  const Text file = Make(u"Удалить.txt", "x");
  EXPECT_TRUE(shell().Recycle(file, Questions::kSilent));
  EXPECT_FALSE(files().PathExists(file));
  const Text folder = MakeFolder(u"d");
  Make(u"d\\f");
  EXPECT_TRUE(shell().Recycle(folder + u"\\", Questions::kSilent));
  EXPECT_FALSE(files().PathExists(folder));
}

TEST_F(Win32ShellTest, RecyclesReadOnlyFiles) {
  const Text file = Make(u"f");
  ASSERT_TRUE(files().SetAttributes(file, attribute::kReadOnly));
  EXPECT_TRUE(shell().Recycle(file, Questions::kSilent));
  EXPECT_FALSE(files().PathExists(file));
}

TEST_F(Win32ShellTest, RecyclesNoMoreThanOnePath) {
  Make(u"a");
  Make(u"b");
  EXPECT_FALSE(shell().Recycle(In(u"*"), Questions::kSilent));
  EXPECT_FALSE(shell().Recycle(In(u"?"), Questions::kSilent));
  EXPECT_FALSE(shell().Recycle(In(u"missing"), Questions::kSilent));
  EXPECT_TRUE(files().PathExists(In(u"a")));
  EXPECT_TRUE(files().PathExists(In(u"b")));
}

// Under Wine the bin is the trash folder of the user's home, where both the file and the note on
// its origin must lie.
TEST_F(Win32ShellTest, WhatIsRecycledLiesInTheTrash) {
  const Text name = u"orvik-" + Text(1, u'a') + FromUtf8(std::to_string(GetTickCount64()));
  const Text file = Make(name, "keep me");
  wchar_t home[MAX_PATH];
  if (GetEnvironmentVariableW(L"ORVIK_TRASH", home, MAX_PATH) == 0) {
    GTEST_SKIP() << "ORVIK_TRASH names no trash folder";
  }
  const std::wstring trash = home;
  ASSERT_TRUE(shell().Recycle(file, Questions::kSilent));
  const Text kept(trash.begin(), trash.end());
  EXPECT_EQ(Content(kept + u"\\files\\" + name), "keep me");
  EXPECT_TRUE(files().PathExists(kept + u"\\info\\" + name + u".trashinfo"));
}

TEST_F(Win32ShellTest, StartsACommandLine) {
  const Text path = In(u"out.txt");
  EXPECT_TRUE(
      shell().Start(u"cmd.exe /c echo started> \"" + path + u"\"", WindowState::kMinimised));
  EXPECT_TRUE(Appears(path));
  EXPECT_FALSE(shell().Start(u"orvik-no-such-program.exe a b", WindowState::kNormal));
  EXPECT_FALSE(shell().Start(u"", WindowState::kNormal));
}

}  // namespace
}  // namespace orvik::host::win32
