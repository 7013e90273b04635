// Moving, removing and making.
#include "conformance/host_test.h"

namespace orvik::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MoveTest : public HostTest {
 protected:
  bool Move(TextView source, TextView target, bool replace = false) {
    return files().MoveFile(At(source), At(target), replace);
  }
};

TEST_F(MoveTest, RenamesAFile) {
  Write(u"a", "content");
  EXPECT_TRUE(Move(u"a", u"b"));
  EXPECT_FALSE(Exists(u"a"));
  EXPECT_EQ(Read(u"b"), "content");
}

TEST_F(MoveTest, MovesIntoAnotherFolder) {
  MakeFolder(u"folder");
  Write(u"a", "content");
  EXPECT_TRUE(Move(u"A", u"FOLDER\\b"));
  EXPECT_EQ(Read(u"folder\\b"), "content");
}

TEST_F(MoveTest, AnExistingTargetStaysUnlessReplaced) {
  Write(u"a", "new");
  Write(u"b", "old");
  EXPECT_FALSE(Move(u"a", u"b"));
  EXPECT_FALSE(Move(u"a", u"B"));
  EXPECT_EQ(Read(u"a"), "new");
  EXPECT_EQ(Read(u"b"), "old");
  EXPECT_TRUE(Move(u"a", u"b", true));
  EXPECT_FALSE(Exists(u"a"));
  EXPECT_EQ(Read(u"b"), "new");
}

TEST_F(MoveTest, ReplacesATargetOfAnotherCase) {
  Write(u"a", "new");
  Write(u"Target", "old");
  EXPECT_TRUE(Move(u"a", u"TARGET", true));
  EXPECT_EQ(Names(u"*").size(), 1U);
  EXPECT_EQ(Read(u"target"), "new");
}

TEST_F(MoveTest, AReadOnlyTargetIsNotReplaced) {
  Write(u"a", "new");
  Write(u"b", "old");
  ASSERT_TRUE(files().SetAttributes(At(u"b"), attribute::kReadOnly));
  EXPECT_FALSE(Move(u"a", u"b", true));
  EXPECT_EQ(Read(u"a"), "new");
  EXPECT_EQ(Read(u"b"), "old");
}

TEST_F(MoveTest, AReadOnlySourceMoves) {
  Write(u"a", "content");
  ASSERT_TRUE(files().SetAttributes(At(u"a"), attribute::kReadOnly));
  EXPECT_TRUE(Move(u"a", u"b"));
  EXPECT_EQ(files().Attributes(At(u"b")).value_or(0) & attribute::kReadOnly, attribute::kReadOnly);
}

TEST_F(MoveTest, MissingThingsDontMove) {
  Write(u"b", "old");
  EXPECT_FALSE(Move(u"missing", u"b", true));
  EXPECT_FALSE(Move(u"b", u"missing\\b"));
  EXPECT_EQ(Read(u"b"), "old");
}

TEST_F(MoveTest, KeepsTheTime) {
  Write(u"a", "content");
  real_.SetTime(u"a", 13'000'000'000'000'000);
  EXPECT_TRUE(Move(u"a", u"b"));
  EXPECT_EQ(real_.TimeOf(u"b"), 13'000'000'000'000'000);
}

TEST_F(MoveTest, FoldersMoveWithAllTheyHold) {
  MakeFolder(u"a");
  Write(u"a\\file", "content");
  EXPECT_TRUE(Exists(u"A\\FILE"));
  EXPECT_TRUE(Move(u"a", u"b"));
  EXPECT_EQ(Read(u"B\\FILE"), "content");
  EXPECT_FALSE(Exists(u"A\\FILE"));
  MakeFolder(u"c");
  EXPECT_FALSE(Move(u"b", u"c"));
  EXPECT_FALSE(Move(u"b", u"b\\inside"));
  Write(u"file", "");
  EXPECT_FALSE(Move(u"file", u"c", true));
}

TEST_F(MoveTest, AFileMovesOntoItself) {
  Write(u"a", "content");
  EXPECT_TRUE(Move(u"a", u"a"));
  EXPECT_EQ(Read(u"a"), "content");
  EXPECT_TRUE(Move(u"a", u"a", true));
  EXPECT_EQ(Read(u"a"), "content");
}

class RemovalTest : public HostTest {};

TEST_F(RemovalTest, DeletesAFile) {
  Write(u"File", "");
  EXPECT_TRUE(files().DeleteFile(At(u"FILE")));
  EXPECT_FALSE(Exists(u"File"));
  EXPECT_FALSE(files().DeleteFile(At(u"File")));
}

TEST_F(RemovalTest, AReadOnlyFileIsNotDeleted) {
  Write(u"file", "1");
  ASSERT_TRUE(files().SetAttributes(At(u"file"), attribute::kReadOnly));
  EXPECT_FALSE(files().DeleteFile(At(u"file")));
  EXPECT_EQ(Read(u"file"), "1");
  ASSERT_TRUE(files().SetAttributes(At(u"file"), 0));
  EXPECT_TRUE(files().DeleteFile(At(u"file")));
}

TEST_F(RemovalTest, HiddenAndSystemFilesAreDeleted) {
  Write(u"file", "1");
  ASSERT_TRUE(files().SetAttributes(At(u"file"), attribute::kHidden | attribute::kSystem));
  EXPECT_TRUE(files().DeleteFile(At(u"file")));
}

TEST_F(RemovalTest, FoldersAndFilesGoByTheirOwnOperation) {
  MakeFolder(u"folder");
  Write(u"file", "");
  EXPECT_FALSE(files().DeleteFile(At(u"folder")));
  EXPECT_FALSE(files().RemoveFolder(At(u"file")));
  EXPECT_TRUE(Exists(u"folder"));
  EXPECT_TRUE(Exists(u"file"));
}

TEST_F(RemovalTest, OnlyEmptyFoldersGo) {
  MakeFolder(u"folder");
  Write(u"folder\\file", "");
  EXPECT_FALSE(files().RemoveFolder(At(u"folder")));
  EXPECT_TRUE(files().DeleteFile(At(u"folder\\file")));
  EXPECT_TRUE(files().RemoveFolder(At(u"folder")));
  EXPECT_FALSE(files().RemoveFolder(At(u"folder")));
}

TEST_F(RemovalTest, RootsDontGo) {
  const Text root = real_.scratch().substr(0, 3);
  EXPECT_FALSE(files().RemoveFolder(root));
  EXPECT_FALSE(files().DeleteFile(root));
  EXPECT_FALSE(files().CreateFolder(root));
}

TEST_F(RemovalTest, FoldersAreMadeOneLevelAtATime) {
  EXPECT_FALSE(files().CreateFolder(At(u"a\\b")));
  EXPECT_TRUE(files().CreateFolder(At(u"a")));
  EXPECT_FALSE(files().CreateFolder(At(u"a")));
  EXPECT_TRUE(files().CreateFolder(At(u"A\\b")));
  EXPECT_THAT(Names(u"*"), ElementsAre("a"));
  EXPECT_THAT(Names(u"a\\*"), ElementsAre("b"));
  EXPECT_THAT(Names(u"a\\b\\*"), IsEmpty());
}

TEST_F(RemovalTest, AFileIsInTheWayOfAFolder) {
  Write(u"file", "1");
  EXPECT_FALSE(files().CreateFolder(At(u"file")));
  EXPECT_FALSE(files().CreateFolder(At(u"file\\folder")));
  EXPECT_EQ(Read(u"file"), "1");
}

}  // namespace
}  // namespace orvik::host
