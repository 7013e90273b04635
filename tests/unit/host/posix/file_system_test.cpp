// What Linux has and Windows hasn't: links, pipes, rights of users, disks that fill up.
#include "host/posix/file_system.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>

#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

using testing::ElementsAre;

class PosixFilesTest : public PosixTest {
 protected:
  void Link(const std::string& target, const std::string& name) {
    ASSERT_EQ(::symlink(target.c_str(), Native(name).c_str()), 0);
  }
  void Folder(const std::string& name) { ASSERT_EQ(::mkdir(Native(name).c_str(), 0777), 0); }

  std::uint32_t ListedAttributes(const Text& path, Details details) {
    FindRecord record;
    return files().FindFirst(path, details, record) != nullptr ? record.attributes : 0xFFFF;
  }
};

TEST_F(PosixFilesTest, LinksAreWhatTheyPointTo) {
  Folder("folder");
  WriteNative("folder/file", "content");
  Link("folder", "to folder");
  Link("folder/file", "to file");
  for (const Details details : {Details::kFolderBit, Details::kSizes, Details::kAll}) {
    EXPECT_EQ(ListedAttributes(u"T:\\to fo*", details), attribute::kFolder);
    EXPECT_EQ(ListedAttributes(u"T:\\to fi*", details), 0U);
  }
  EXPECT_EQ(files().FileLength(u"T:\\TO FOLDER\\FILE"), 7);
  EXPECT_EQ(files().FileLength(u"T:\\to file"), 7);
}

TEST_F(PosixFilesTest, ADanglingLinkIsAFile) {
  Link("missing", "link");
  Link("loop", "loop");
  EXPECT_EQ(ListedAttributes(u"T:\\li*", Details::kFolderBit), 0U);
  EXPECT_EQ(ListedAttributes(u"T:\\loop", Details::kAll), 0U);
  EXPECT_TRUE(files().PathExists(u"T:\\LINK"));
  EXPECT_EQ(files().Attributes(u"T:\\loop"), 0U);
  EXPECT_EQ(files().FileLength(u"T:\\link"), 0);
  EXPECT_EQ(files().Open(u"T:\\link", OpenMode::kRead), nullptr);
  EXPECT_FALSE(files().SetAttributes(u"T:\\link", attribute::kHidden));
  EXPECT_TRUE(files().DeleteFile(u"T:\\link"));
  EXPECT_TRUE(files().DeleteFile(u"T:\\LOOP"));
  EXPECT_TRUE(Names().empty());
}

TEST_F(PosixFilesTest, RemovingALinkLeavesItsTarget) {
  Folder("folder");
  WriteNative("folder/file", "content");
  Link("folder", "to folder");
  Link("folder/file", "to file");
  EXPECT_FALSE(files().DeleteFile(u"T:\\to folder"));
  EXPECT_TRUE(files().RemoveFolder(u"T:\\to folder"));
  EXPECT_TRUE(files().DeleteFile(u"T:\\to file"));
  EXPECT_EQ(ReadNative(Native("folder/file")), "content");
}

TEST_F(PosixFilesTest, ACycleOfLinksEndsByTheLengthOfThePath) {
  Folder("a");
  Link(".", "a/again");
  Text path = u"T:\\a";
  int depth = 0;
  while (files().PathExists(path)) {
    ASSERT_LT(++depth, 100);
    path += u"\\again";
  }
  EXPECT_GT(depth, 10);
}

TEST_F(PosixFilesTest, ACopyGoesThroughALinkAtTheTarget) {
  WriteNative("real", "old");
  Link("real", "link");
  WriteNative("source", "new");
  EXPECT_TRUE(files().CopyFile(u"T:\\source", u"T:\\link", false));
  EXPECT_EQ(ReadNative(Native("real")), "new");
  struct stat status;
  ASSERT_EQ(::lstat(Native("link").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  EXPECT_FALSE(files().CopyFile(u"T:\\real", u"T:\\link", false));
  EXPECT_EQ(ReadNative(Native("real")), "new");
}

TEST_F(PosixFilesTest, ACopyOntoAnotherNameOfTheSourceFailsUntouched) {
  WriteNative("a", "content");
  ASSERT_EQ(::link(Native("a").c_str(), Native("b").c_str()), 0);
  EXPECT_FALSE(files().CopyFile(u"T:\\a", u"T:\\b", false));
  EXPECT_EQ(ReadNative(Native("a")), "content");
}

TEST_F(PosixFilesTest, MovingOntoAnotherNameOfTheSourceLeavesOne) {
  WriteNative("a", "content");
  ASSERT_EQ(::link(Native("a").c_str(), Native("b").c_str()), 0);
  EXPECT_FALSE(files().MoveFile(u"T:\\a", u"T:\\b", false));
  EXPECT_TRUE(files().MoveFile(u"T:\\a", u"T:\\b", true));
  EXPECT_THAT(Names(), ElementsAre("b"));
  EXPECT_EQ(ReadNative(Native("b")), "content");
}

TEST_F(PosixFilesTest, MovingOntoItselfThroughALinkedFolderLosesNothing) {
  Folder("folder");
  WriteNative("folder/file", "content");
  Link("folder", "same");
  EXPECT_TRUE(files().MoveFile(u"T:\\folder\\file", u"T:\\same\\file", true));
  EXPECT_EQ(ReadNative(Native("folder/file")), "content");
}

TEST_F(PosixFilesTest, ARenameMayChangeTheCaseAlone) {
  WriteNative("name", "content");
  EXPECT_TRUE(files().MoveFile(u"T:\\name", u"T:\\NAME", false));
  EXPECT_THAT(Names(), ElementsAre("NAME"));
  EXPECT_TRUE(files().MoveFile(u"T:\\name", u"T:\\Name", true));
  EXPECT_THAT(Names(), ElementsAre("Name"));
}

TEST_F(PosixFilesTest, AFolderDoesntTakeThePlaceOfAFile) {
  Folder("folder");
  WriteNative("file", "content");
  EXPECT_FALSE(files().MoveFile(u"T:\\folder", u"T:\\file", true));
  EXPECT_EQ(ReadNative(Native("file")), "content");
}

TEST_F(PosixFilesTest, AMoveToAnotherDiskFails) {
  WriteNative("file", "content");
  EXPECT_FALSE(files().MoveFile(u"T:\\file", u"Z:\\dev\\shm\\orvik-unit-file", true));
  EXPECT_EQ(ReadNative(Native("file")), "content");
}

TEST_F(PosixFilesTest, PipesAreNotOpened) {
  ASSERT_EQ(::mkfifo(Native("pipe").c_str(), 0666), 0);
  EXPECT_TRUE(files().PathExists(u"T:\\pipe"));
  EXPECT_EQ(files().Open(u"T:\\pipe", OpenMode::kRead), nullptr);
  EXPECT_EQ(files().Open(u"T:\\pipe", OpenMode::kReadWriteCreate), nullptr);
  EXPECT_FALSE(files().CopyFile(u"T:\\pipe", u"T:\\copy", false));
  WriteNative("file", "content");
  EXPECT_FALSE(files().CopyFile(u"T:\\file", u"T:\\pipe", false));
  EXPECT_TRUE(files().DeleteFile(u"T:\\pipe"));
}

TEST_F(PosixFilesTest, HolesStayHoles) {
  WriteNative("sparse", "begin");
  ASSERT_EQ(::truncate(Native("sparse").c_str(), off_t{3} << 30), 0);
  EXPECT_TRUE(files().CopyFile(u"T:\\sparse", u"T:\\copy", false));
  struct stat status;
  ASSERT_EQ(::stat(Native("copy").c_str(), &status), 0);
  EXPECT_EQ(status.st_size, off_t{3} << 30);
  EXPECT_LT(status.st_blocks, 1000);
}

TEST_F(PosixFilesTest, FilesOfProcAreCopiedWhole) {
  EXPECT_TRUE(files().CopyFile(u"Z:\\proc\\version", u"T:\\version", false));
  EXPECT_EQ(ReadNative(Native("version")), ReadNative("/proc/version"));
}

// Runs with a limit for the length of files, which fails a copy midway as a full disk does.
class FullDiskTest : public PosixFilesTest {
 protected:
  void SetUp() override {
    WriteNative("source", std::string(3'000'000, 's'));
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const struct rlimit limit = {1'000'000, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  void TearDown() override { ::setrlimit(RLIMIT_FSIZE, &before_); }

  struct rlimit before_ = {};
};

TEST_F(FullDiskTest, AFailedCopyLeavesNoHalfTarget) {
  EXPECT_FALSE(files().CopyFile(u"T:\\source", u"T:\\target", false));
  EXPECT_FALSE(files().PathExists(u"T:\\target"));
  EXPECT_THAT(Names(), ElementsAre("source"));
}

TEST_F(FullDiskTest, ATargetThatCantGrowKeepsItsContent) {
  WriteNative("target", "old");
  EXPECT_FALSE(files().CopyFile(u"T:\\source", u"T:\\target", false));
  EXPECT_EQ(ReadNative(Native("target")), "old");
}

TEST_F(FullDiskTest, WritingTellsThatNotAllWentOut) {
  const auto file = files().Open(u"T:\\new", OpenMode::kReadWriteCreate);
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(file->WriteAt(0, std::string(2'000'000, 'x')));
}

TEST_F(PosixFilesTest, LocksOfOtherProgramsAreHolds) {
  WriteNative("file", "content");
  const int fd = ::open(Native("file").c_str(), O_RDWR);
  ASSERT_EQ(::flock(fd, LOCK_EX), 0);
  EXPECT_FALSE(files().DeleteFile(u"T:\\file"));
  EXPECT_FALSE(files().MoveFile(u"T:\\file", u"T:\\moved", false));
  EXPECT_EQ(files().Open(u"T:\\file", OpenMode::kHold), nullptr);
  ASSERT_EQ(::flock(fd, LOCK_UN), 0);
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  ASSERT_EQ(::fcntl(fd, F_OFD_SETLK, &lock), 0);
  EXPECT_FALSE(files().DeleteFile(u"T:\\file"));
  ::close(fd);
  EXPECT_TRUE(files().DeleteFile(u"T:\\file"));
}

TEST_F(PosixFilesTest, AHoldIsSeenByOtherPrograms) {
  WriteNative("file", "content");
  const auto hold = files().Open(u"T:\\file", OpenMode::kHold);
  ASSERT_NE(hold, nullptr);
  const int fd = ::open(Native("file").c_str(), O_RDWR);
  EXPECT_NE(::flock(fd, LOCK_EX | LOCK_NB), 0);
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  EXPECT_NE(::fcntl(fd, F_OFD_SETLK, &lock), 0);
  ::close(fd);
}

TEST_F(PosixFilesTest, AReadOnlyFileIsHeldToo) {
  WriteNative("file", "content");
  ASSERT_EQ(::chmod(Native("file").c_str(), 0444), 0);
  const auto hold = files().Open(u"T:\\file", OpenMode::kHold);
  ASSERT_NE(hold, nullptr);
  EXPECT_EQ(files().Open(u"T:\\file", OpenMode::kHold), nullptr);
}

TEST_F(PosixFilesTest, RightsOfTheSourceGoWithACopyButNoMore) {
  WriteNative("script", "#!");
  ASSERT_EQ(::chmod(Native("script").c_str(), 04755), 0);
  EXPECT_TRUE(files().CopyFile(u"T:\\script", u"T:\\copy", false));
  struct stat status;
  ASSERT_EQ(::stat(Native("copy").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0755U);
}

TEST_F(PosixFilesTest, SizesOfFoldersEndDespiteCycles) {
  Folder("a");
  Folder("a/b");
  WriteNative("a/b/file", "12345");
  Link("..", "a/b/up");
  Link("b/file", "a/link");
  EXPECT_EQ(files().FolderSize(u"T:\\a"), 10U);
}

TEST_F(PosixFilesTest, ALongNameGetsANumberedShortName) {
  WriteNative("Long name one.text", "");
  WriteNative("long name two.text", "");
  WriteNative("short.txt", "");
  EXPECT_EQ(files().ShortName(u"T:\\short.txt"), u"SHORT.TXT");
  EXPECT_EQ(files().ShortName(u"T:\\LONG NAME ONE.TEXT"), u"LONGNA~1.TEX");
  EXPECT_EQ(files().ShortName(u"T:\\long name two.text"), u"LONGNA~2.TEX");
}

}  // namespace
}  // namespace orvik::host::posix
