#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

class Win32FileOperations : public HostTest {
 protected:
  void ReadOnly(const Text& path) {
    ASSERT_TRUE(files().SetAttributes(path, attribute::kReadOnly));
  }
};

TEST_F(Win32FileOperations, PathExists) {
  Make(u"f");
  MakeFolder(u"d");
  EXPECT_TRUE(files().PathExists(In(u"F")));
  EXPECT_TRUE(files().PathExists(In(u"d")));
  EXPECT_TRUE(files().PathExists(In(u"d\\")));
  EXPECT_FALSE(files().PathExists(In(u"f\\")));
  EXPECT_FALSE(files().PathExists(In(u"x")));
  EXPECT_FALSE(files().PathExists(In(u"*")));
  EXPECT_TRUE(files().PathExists(u"C:\\"));
  EXPECT_FALSE(files().PathExists(u""));
}

TEST_F(Win32FileOperations, AttributesAreSetAndTakenOff) {
  const Text path = Make(u"f");
  const std::uint32_t all = attribute::kReadOnly | attribute::kHidden | attribute::kSystem;
  ASSERT_TRUE(files().SetAttributes(path, all));
  EXPECT_EQ(files().Attributes(path).value_or(0) & all, all);
  ASSERT_TRUE(files().SetAttributes(path, 0));
  EXPECT_EQ(files().Attributes(path).value_or(all) & all, 0u);
  EXPECT_FALSE(files().SetAttributes(In(u"x"), 0));
  EXPECT_FALSE(files().Attributes(In(u"x")));
}

TEST_F(Win32FileOperations, FolderBitIsIgnoredWhenSetting) {
  const Text path = Make(u"f");
  ASSERT_TRUE(files().SetAttributes(path, attribute::kFolder | attribute::kHidden));
  EXPECT_EQ(files().Attributes(path).value_or(0) & (attribute::kFolder | attribute::kHidden),
            attribute::kHidden);
  const Text folder = MakeFolder(u"d");
  ASSERT_TRUE(files().SetAttributes(folder, attribute::kHidden));
  EXPECT_EQ(files().Attributes(folder).value_or(0) & (attribute::kFolder | attribute::kHidden),
            attribute::kFolder | attribute::kHidden);
}

TEST_F(Win32FileOperations, LengthOfALockedFileAndOfAFolder) {
  const Text path = Make(u"f", "12345");
  const HANDLE lock = CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(lock, INVALID_HANDLE_VALUE);
  EXPECT_EQ(files().FileLength(path), 5);
  EXPECT_TRUE(files().PathExists(path));
  EXPECT_FALSE(files().Open(path, OpenMode::kRead));
  EXPECT_FALSE(files().DeleteFile(path));
  EXPECT_FALSE(files().CopyFile(Make(u"g"), path, false));
  EXPECT_FALSE(files().MoveFile(path, In(u"h"), false));
  CloseHandle(lock);
  EXPECT_FALSE(files().FileLength(MakeFolder(u"d")));
  EXPECT_FALSE(files().FileLength(In(u"x")));
}

TEST_F(Win32FileOperations, CreateFolderMakesOneLevelOnce) {
  EXPECT_TRUE(files().CreateFolder(In(u"d\\")));
  EXPECT_FALSE(files().CreateFolder(In(u"d")));
  EXPECT_FALSE(files().CreateFolder(In(u"x\\y")));
  EXPECT_FALSE(files().CreateFolder(Make(u"f")));
}

TEST_F(Win32FileOperations, NewFolderLeavesRoomForAShortName) {
  Text parent = In(u"p");
  parent += Text(120, u'p');
  ASSERT_TRUE(files().CreateFolder(parent));
  Text path = parent + u"\\";
  path += Text(kLongestNewFolder + 1 - path.size(), u'd');
  EXPECT_FALSE(files().CreateFolder(path));
  path.pop_back();
  EXPECT_TRUE(files().CreateFolder(path));
}

TEST_F(Win32FileOperations, RemoveFolder) {
  const Text folder = MakeFolder(u"d");
  const Text file = Make(u"d\\f");
  EXPECT_FALSE(files().RemoveFolder(folder));
  EXPECT_FALSE(files().RemoveFolder(file));
  ASSERT_TRUE(files().DeleteFile(file));
  EXPECT_TRUE(files().RemoveFolder(folder));
  EXPECT_FALSE(files().PathExists(folder));
}

TEST_F(Win32FileOperations, CopyKeepsContentAttributesAndTime) {
  const Text from = Make(u"a", "hello");
  HANDLE file =
      CreateFileW(Wide(from).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  const FILETIME time = {0xE0000000, 0x01C00000};
  ASSERT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
  CloseHandle(file);
  ASSERT_TRUE(files().SetAttributes(from, attribute::kReadOnly));
  ASSERT_TRUE(files().CopyFile(from, In(u"b"), true));
  EXPECT_EQ(Content(In(u"b")), "hello");
  EXPECT_EQ(files().Attributes(In(u"b")).value_or(0) & attribute::kReadOnly, attribute::kReadOnly);
  WIN32_FILE_ATTRIBUTE_DATA data;
  ASSERT_TRUE(GetFileAttributesExW(Wide(In(u"b")).c_str(), GetFileExInfoStandard, &data));
  EXPECT_EQ(data.ftLastWriteTime.dwHighDateTime, time.dwHighDateTime);
}

TEST_F(Win32FileOperations, CopyReplacesOnlyWhenAsked) {
  const Text from = Make(u"a", "new");
  const Text to = Make(u"b", "old");
  EXPECT_FALSE(files().CopyFile(from, to, true));
  EXPECT_EQ(Content(to), "old");
  EXPECT_TRUE(files().CopyFile(from, to, false));
  EXPECT_EQ(Content(to), "new");
}

TEST_F(Win32FileOperations, CopyRefusesReadOnlyTargetsFoldersAndItself) {
  const Text from = Make(u"a", "new");
  const Text to = Make(u"b", "old");
  ReadOnly(to);
  EXPECT_FALSE(files().CopyFile(from, to, false));
  EXPECT_EQ(Content(to), "old");
  EXPECT_FALSE(files().CopyFile(from, MakeFolder(u"d"), false));
  EXPECT_FALSE(files().CopyFile(In(u"d"), In(u"e"), false));
  EXPECT_FALSE(files().CopyFile(from, from, false));
  EXPECT_EQ(Content(from), "new");
  EXPECT_FALSE(files().CopyFile(In(u"x"), In(u"y"), false));
  EXPECT_FALSE(files().PathExists(In(u"y")));
}

TEST_F(Win32FileOperations, MoveRenamesFilesAndFolders) {
  const Text from = Make(u"a", "1");
  EXPECT_TRUE(files().MoveFile(from, In(u"b"), false));
  EXPECT_FALSE(files().PathExists(from));
  EXPECT_EQ(Content(In(u"b")), "1");
  const Text folder = MakeFolder(u"d");
  Make(u"d\\f");
  EXPECT_TRUE(files().MoveFile(folder, In(u"e"), false));
  EXPECT_TRUE(files().PathExists(In(u"e\\f")));
}

TEST_F(Win32FileOperations, MoveReplacesOnlyWhenAsked) {
  const Text from = Make(u"a", "new");
  const Text to = Make(u"b", "old");
  EXPECT_FALSE(files().MoveFile(from, to, false));
  EXPECT_EQ(Content(to), "old");
  EXPECT_EQ(Content(from), "new");
  EXPECT_TRUE(files().MoveFile(from, to, true));
  EXPECT_EQ(Content(to), "new");
  EXPECT_FALSE(files().PathExists(from));
}

TEST_F(Win32FileOperations, MoveRefusesReadOnlyTargetsAndFolders) {
  const Text from = Make(u"a", "new");
  const Text to = Make(u"b", "old");
  ReadOnly(to);
  EXPECT_FALSE(files().MoveFile(from, to, true));
  EXPECT_FALSE(files().MoveFile(from, MakeFolder(u"d"), true));
  EXPECT_EQ(Content(to), "old");
  EXPECT_EQ(Content(from), "new");
  // The source may be read-only.
  EXPECT_TRUE(files().MoveFile(to, In(u"c"), true));
  EXPECT_TRUE(files().SetAttributes(In(u"c"), 0));
}

TEST_F(Win32FileOperations, DeleteFile) {
  const Text path = Make(u"f");
  ReadOnly(path);
  EXPECT_FALSE(files().DeleteFile(path));
  ASSERT_TRUE(files().SetAttributes(path, 0));
  EXPECT_FALSE(files().DeleteFile(path + u"\\"));
  EXPECT_TRUE(files().DeleteFile(path));
  EXPECT_FALSE(files().DeleteFile(path));
  EXPECT_FALSE(files().DeleteFile(MakeFolder(u"d")));
  EXPECT_FALSE(files().DeleteFile(In(u"*")));
  EXPECT_TRUE(files().PathExists(In(u"d")));
}

TEST_F(Win32FileOperations, ShortName) {
  Make(u"SHORT.TXT");
  EXPECT_EQ(files().ShortName(In(u"short.txt")), u"SHORT.TXT");
  const Text path = Make(u"a rather long name.text");
  const auto name = files().ShortName(path);
  ASSERT_TRUE(name);
  EXPECT_EQ(name->find(u'\\'), Text::npos);
  EXPECT_LE(name->size(), 12u);
  EXPECT_FALSE(files().ShortName(In(u"missing")));
  EXPECT_FALSE(files().ShortName(MakeFolder(u"d")));
}

}  // namespace
}  // namespace orvik::host::win32
