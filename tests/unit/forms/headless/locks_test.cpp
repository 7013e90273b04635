#include "forms/headless/locks.h"

#include <gtest/gtest.h>

#include "unit/support/fake_file_system.h"

namespace orvik::forms::headless {
namespace {

class LocksTest : public testing::Test {
 protected:
  LocksTest() {
    inner.AddFile(u"T:\\d\\held", "12345", host::attribute::kReadOnly);
    inner.AddFile(u"T:\\d\\free", "free");
    inner.AddFolder(u"T:\\empty");
  }
  test::FakeFileSystem inner;
  Clock clock{Clock::Pace::kVirtual};
  Locks locks{{{u"T:\\D\\HELD", 1500}, {u"T:\\empty\\", std::nullopt}}, clock};
  LockedFileSystem files{inner, locks};
};

TEST_F(LocksTest, ALockedFileExistsAndHasItsLength) {
  host::FindRecord record;
  EXPECT_TRUE(files.PathExists(u"T:\\d\\held"));
  EXPECT_EQ(files.FileLength(u"T:\\d\\held"), 5);
  EXPECT_EQ(files.Attributes(u"T:\\d\\held"), host::attribute::kReadOnly);
  EXPECT_NE(files.FindFirst(u"T:\\d\\held", host::Details::kAll, record), nullptr);
}

TEST_F(LocksTest, ItCannotBeOpened) {
  for (auto mode :
       {host::OpenMode::kRead, host::OpenMode::kReadWriteCreate, host::OpenMode::kHold}) {
    EXPECT_EQ(files.Open(u"T:\\d\\held", mode), nullptr);
  }
  EXPECT_NE(files.Open(u"T:\\d\\free", host::OpenMode::kRead), nullptr);
}

TEST_F(LocksTest, ItCannotBeReplacedMovedOrDeleted) {
  files.SetAttributes(u"T:\\d\\held", 0);
  EXPECT_FALSE(files.CopyFile(u"T:\\d\\free", u"T:\\d\\held", false));
  EXPECT_FALSE(files.MoveFile(u"T:\\d\\free", u"T:\\d\\held", true));
  EXPECT_FALSE(files.MoveFile(u"T:\\d\\held", u"T:\\other", true));
  EXPECT_FALSE(files.DeleteFile(u"T:\\d\\held"));
  EXPECT_EQ(inner.Content(u"T:\\d\\held"), "12345");
}

TEST_F(LocksTest, ItCannotBeCopied) {
  EXPECT_FALSE(files.CopyFile(u"T:\\d\\held", u"T:\\copy", false));
  EXPECT_FALSE(inner.Exists(u"T:\\copy"));
}

TEST_F(LocksTest, AnotherProcessMayStillSetAttributes) {
  EXPECT_TRUE(files.SetAttributes(u"T:\\d\\held", 0));
  EXPECT_EQ(inner.Attributes(u"T:\\d\\held"), 0U);
}

TEST_F(LocksTest, ItsFolderCannotMove) {
  EXPECT_FALSE(files.MoveFile(u"T:\\d", u"T:\\e", false));
  clock.AdvanceTo(1500);
  EXPECT_TRUE(files.MoveFile(u"T:\\d", u"T:\\e", false));
}

TEST_F(LocksTest, ALockedFolderStays) {
  EXPECT_FALSE(files.RemoveFolder(u"T:\\empty"));
  EXPECT_TRUE(inner.IsFolder(u"T:\\empty"));
}

TEST_F(LocksTest, TheLockIsOverWhenItsTimeHasPassed) {
  files.SetAttributes(u"T:\\d\\held", 0);
  clock.AdvanceTo(1499);
  EXPECT_FALSE(files.DeleteFile(u"T:\\d\\held"));
  clock.AdvanceTo(1500);
  EXPECT_TRUE(files.DeleteFile(u"T:\\d\\held"));
  clock.AdvanceTo(1000000000);
  EXPECT_FALSE(files.RemoveFolder(u"T:\\empty"));
}

TEST_F(LocksTest, SpellingsOfAPathAreTheSame) {
  for (TextView path : {TextView(u"t:\\d\\HELD"), TextView(u"T:\\d\\\\held"),
                        TextView(u"T:/d/held"), TextView(u"T:\\d\\held\\")}) {
    EXPECT_TRUE(locks.Holds(path)) << ToUtf8(path);
  }
  for (TextView path : {TextView(u"T:\\d"), TextView(u"T:\\d\\held2"), TextView(u"T:\\d\\hel")}) {
    EXPECT_FALSE(locks.Holds(path)) << ToUtf8(path);
  }
  EXPECT_TRUE(locks.HoldsWithin(u"T:\\d"));
  EXPECT_TRUE(locks.HoldsWithin(u"T:\\"));
  EXPECT_FALSE(locks.HoldsWithin(u"T:\\d\\hel"));
}

}  // namespace
}  // namespace orvik::forms::headless
