// How paths and names are read: letter case, code page, length, ".", "..", separators.
#include "conformance/host_test.h"

namespace orvik::host {
namespace {

using testing::ElementsAre;

class NamesTest : public HostTest {};

TEST_F(NamesTest, EveryOperationIgnoresCase) {
  MakeFolder(u"Folder");
  Write(u"Folder\\File.Txt", "abc");
  EXPECT_TRUE(Exists(u"FOLDER\\FILE.TXT"));
  EXPECT_EQ(files().FileLength(At(u"folder\\file.txt")), 3);
  EXPECT_EQ(Read(u"FOLDER\\file.TXT"), "abc");
  EXPECT_TRUE(files().Attributes(At(u"fOLDER\\fILE.tXT")).has_value());
  EXPECT_FALSE(files().CreateFolder(At(u"FOLDER")));
  EXPECT_FALSE(files().CreateFolder(At(u"folder\\FILE.txt")));
  Write(u"FOLDER\\FILE.TXT", "xyz");
  EXPECT_THAT(Names(u"FOLDER\\*"), ElementsAre("File.Txt"));
  EXPECT_EQ(Read(u"Folder\\File.Txt"), "xyz");
  EXPECT_TRUE(files().DeleteFile(At(u"FOLDER\\FILE.TXT")));
  EXPECT_TRUE(files().RemoveFolder(At(u"FOLDER")));
  EXPECT_FALSE(Exists(u"Folder"));
}

TEST_F(NamesTest, CyrillicNamesIgnoreCase) {
  MakeFolder(u"Папка");
  Write(u"Папка\\Ёлка.txt", "1");
  EXPECT_EQ(Read(u"ПАПКА\\ёЛКА.TXT"), "1");
  Write(u"папка\\ЁЛКА.TXT", "2");
  EXPECT_THAT(Names(u"папка\\*"), ElementsAre("Ёлка.txt"));
}

TEST_F(NamesTest, AChangeOfTheFolderIsSeenAtOnceInAnyCase) {
  EXPECT_FALSE(Exists(u"LATE"));
  Write(u"Late", "");
  EXPECT_TRUE(Exists(u"LATE"));
  EXPECT_TRUE(files().MoveFile(At(u"late"), At(u"Later"), false));
  EXPECT_FALSE(Exists(u"LATE"));
  EXPECT_TRUE(Exists(u"LATER"));
  EXPECT_TRUE(files().DeleteFile(At(u"LATER")));
  EXPECT_FALSE(Exists(u"later"));
  real_.MakeForeignFile(u"Outside");
  EXPECT_TRUE(Exists(u"OUTSIDE"));
}

TEST_F(NamesTest, NamesOutsideTheCodePageAreListedWithQuestionMarksAndUnreachable) {
  real_.MakeForeignFile(u"a\u4E2Db.txt");
  EXPECT_THAT(Names(u"*"), ElementsAre("a?b.txt"));
  EXPECT_FALSE(Exists(u"a\u4E2Db.txt"));
  EXPECT_FALSE(Exists(u"a?b.txt"));
  EXPECT_EQ(Read(u"a\u4E2Db.txt"), "(missing)");
  EXPECT_EQ(Read(u"a?b.txt"), "(missing)");
  EXPECT_FALSE(files().DeleteFile(At(u"a?b.txt")));
  EXPECT_FALSE(files().MoveFile(At(u"a?b.txt"), At(u"c"), false));
  EXPECT_FALSE(files().CopyFile(At(u"a?b.txt"), At(u"c"), false));
  EXPECT_EQ(files().FileLength(At(u"a?b.txt")), std::nullopt);
  EXPECT_FALSE(files().SetAttributes(At(u"a?b.txt"), attribute::kHidden));
  EXPECT_THAT(Names(u"*"), ElementsAre("a?b.txt"));
}

TEST_F(NamesTest, NothingIsMadeUnderANameOutsideTheCodePage) {
  EXPECT_EQ(files().Open(At(u"\u4E2D"), OpenMode::kReadWriteCreate), nullptr);
  EXPECT_FALSE(files().CreateFolder(At(u"\u4E2D")));
  Write(u"source", "1");
  EXPECT_FALSE(files().CopyFile(At(u"source"), At(u"\u4E2D"), false));
  EXPECT_FALSE(files().MoveFile(At(u"source"), At(u"\u4E2D"), false));
  EXPECT_THAT(Names(u"*"), ElementsAre("source"));
}

TEST_F(NamesTest, ForbiddenCharactersAreRefused) {
  for (const TextView name : {u"a*b", u"a?b", u"a<b", u"a>b", u"a|b", u"a\"b"}) {
    EXPECT_EQ(files().Open(At(name), OpenMode::kReadWriteCreate), nullptr) << U(name);
    EXPECT_FALSE(files().CreateFolder(At(name))) << U(name);
    EXPECT_FALSE(Exists(name)) << U(name);
  }
}

TEST_F(NamesTest, WildcardsAreNoNamesOutsideOfASearch) {
  Write(u"file", "");
  EXPECT_FALSE(Exists(u"*"));
  EXPECT_FALSE(Exists(u"f*"));
  EXPECT_FALSE(files().DeleteFile(At(u"f*")));
  EXPECT_EQ(files().Attributes(At(u"fil?")), std::nullopt);
  EXPECT_TRUE(Exists(u"file"));
}

TEST_F(NamesTest, AClosingBackslashFitsFoldersOnly) {
  MakeFolder(u"folder");
  Write(u"file", "");
  EXPECT_TRUE(Exists(u"folder\\"));
  EXPECT_TRUE(files().Attributes(At(u"folder\\")).has_value());
  EXPECT_FALSE(Exists(u"file\\"));
  EXPECT_EQ(files().FileLength(At(u"file\\")), std::nullopt);
  EXPECT_EQ(Read(u"file\\"), "(missing)");
  EXPECT_FALSE(files().DeleteFile(At(u"file\\")));
  EXPECT_TRUE(files().CreateFolder(At(u"new\\")));
  EXPECT_TRUE(Exists(u"new"));
  EXPECT_TRUE(files().RemoveFolder(At(u"new\\")));
  EXPECT_FALSE(Exists(u"new"));
}

TEST_F(NamesTest, DotsAreWorkedOutOnTheText) {
  MakeFolder(u"a");
  Write(u"a\\x", "1");
  EXPECT_EQ(Read(u"a\\.\\x"), "1");
  EXPECT_EQ(Read(u"a\\..\\a\\x"), "1");
  EXPECT_EQ(Read(u".\\a\\x"), "1");
  EXPECT_TRUE(Exists(u"a\\."));
  EXPECT_TRUE(Exists(u"a\\.."));
}

TEST_F(NamesTest, DotsAndBlanksAtTheEndAreDropped) {
  Write(u"plain", "1");
  EXPECT_TRUE(Exists(u"plain."));
  EXPECT_TRUE(Exists(u"plain "));
  EXPECT_EQ(Read(u"plain .."), "1");
  EXPECT_TRUE(files().CreateFolder(At(u"made. ")));
  EXPECT_THAT(Names(u"*"), ElementsAre("made", "plain"));
}

TEST_F(NamesTest, SlashesSeparateToo) {
  MakeFolder(u"a");
  Write(u"a\\x", "1");
  EXPECT_EQ(Read(u"a/x"), "1");
}

TEST_F(NamesTest, LeadingAndInnerBlanksAndDotsBelongToTheName) {
  for (const TextView name : {u".hidden", u" blank", u"two  blanks.x", u"a..b", u"a.b.c"}) {
    Write(name, "1");
    EXPECT_EQ(Read(name), "1") << U(name);
  }
  EXPECT_THAT(Names(u"*"), ElementsAre(" blank", ".hidden", "a..b", "a.b.c", "two  blanks.x"));
}

TEST_F(NamesTest, UnknownDrivesSharesAndEmptyPathsDontExist) {
  for (const Text path : {u"", u"Q:", u"Q:\\", u"Q:\\x", u"\\\\nowhere\\share\\x", u"1:\\x"}) {
    EXPECT_FALSE(files().PathExists(path)) << U(path);
    EXPECT_EQ(files().Attributes(path), std::nullopt) << U(path);
    EXPECT_EQ(files().Open(path, OpenMode::kReadWriteCreate), nullptr) << U(path);
    EXPECT_FALSE(files().CreateFolder(path)) << U(path);
  }
}

TEST_F(NamesTest, RootsExist) {
  const Text drive = real_.scratch().substr(0, 2);
  EXPECT_TRUE(files().PathExists(drive + u"\\"));
  EXPECT_TRUE(files().PathExists(drive));
  EXPECT_TRUE(files().PathExists(ToLower(drive) + u"\\"));
  const auto attributes = files().Attributes(drive + u"\\");
  ASSERT_TRUE(attributes.has_value());
  EXPECT_NE(*attributes & attribute::kFolder, 0U);
}

// Makes folders one in another until a path of this length fits in, and gives that path.
class LongNamesTest : public HostTest {
 protected:
  Text PathOfLength(std::size_t length) {
    Text folder;
    while (At(folder).size() + 60 < length - 20) {
      folder += (folder.empty() ? u"" : u"\\") + Text(50, u'd');
      files().CreateFolder(At(folder));
    }
    const Text front = folder + u"\\";
    return front + Text(length - At(front).size(), u'f');
  }
};

TEST_F(LongNamesTest, TheLongestPathWorksAndALongerOneDoesnt) {
  const Text fits = PathOfLength(kLongestPath);
  ASSERT_EQ(At(fits).size(), kLongestPath);
  Write(fits, "1");
  EXPECT_TRUE(Exists(fits));
  EXPECT_EQ(Find(At(fits)).size(), 1U);
  const Text too_long = fits + u"f";
  EXPECT_EQ(files().Open(At(too_long), OpenMode::kReadWriteCreate), nullptr);
  EXPECT_FALSE(files().CopyFile(At(fits), At(too_long), false));
  EXPECT_FALSE(files().MoveFile(At(fits), At(too_long), false));
  EXPECT_FALSE(Exists(too_long));
  EXPECT_TRUE(files().DeleteFile(At(fits)));
}

TEST_F(LongNamesTest, ALongerPathThatExistsIsRefusedLikeAMissingOne) {
  const Text folder = PathOfLength(kLongestNewFolder - 8);
  MakeFolder(folder);
  real_.MakeForeignFile(folder + u"\\" + Text(20, u'x'));
  const Text beyond = folder + u"\\" + Text(20, u'x');
  ASSERT_EQ(At(beyond).size(), kLongestPath + 1);
  EXPECT_EQ(Names(folder + u"\\*").size(), 1U);
  EXPECT_FALSE(Exists(beyond));
  EXPECT_EQ(files().Attributes(At(beyond)), std::nullopt);
  EXPECT_EQ(files().FileLength(At(beyond)), std::nullopt);
  EXPECT_EQ(Read(beyond), "(missing)");
  EXPECT_FALSE(files().DeleteFile(At(beyond)));
  EXPECT_FALSE(files().SetAttributes(At(beyond), 0));
  FindRecord record;
  EXPECT_EQ(files().FindFirst(At(beyond), Details::kAll, record), nullptr);
}

TEST_F(LongNamesTest, NewFoldersLeaveRoomForAShortName) {
  const Text fits = PathOfLength(kLongestNewFolder);
  ASSERT_EQ(At(fits).size(), kLongestNewFolder);
  EXPECT_FALSE(files().CreateFolder(At(fits + u"f")));
  EXPECT_TRUE(files().CreateFolder(At(fits)));
}

}  // namespace
}  // namespace orvik::host
