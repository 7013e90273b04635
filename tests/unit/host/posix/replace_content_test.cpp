#include "host/posix/replace_content.h"

#include <sys/resource.h>
#include <sys/xattr.h>

#include "host/posix/file_system.h"
#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

class ReplaceContentTest : public PosixTest {
 protected:
  bool Replace(const Text& path, std::string_view bytes) {
    return ReplaceContent(own_files_.finder(), path, bytes);
  }

  NameCodec codec_{CodePage::Numbered(1251)};
  DriveMap drives_{{{u'T', folder_ + "/t"}}, {}, codec_};
  PosixFileSystem own_files_{codec_, drives_};
};

TEST_F(ReplaceContentTest, MakesAFile) {
  EXPECT_TRUE(Replace(u"T:\\Новый файл", "abc"));
  EXPECT_EQ(ReadNative(Native("Новый файл")), "abc");
  EXPECT_TRUE(own_files_.PathExists(u"T:\\НОВЫЙ ФАЙЛ")) << "the finder knows of it";
  EXPECT_EQ(Names().size(), 1U);
}

TEST_F(ReplaceContentTest, ReplacesUnderTheNameOnDisk) {
  WriteNative("File", "a long old content");
  EXPECT_TRUE(Replace(u"t:\\FILE", "new"));
  EXPECT_EQ(ReadNative(Native("File")), "new");
  EXPECT_EQ(Names(), std::vector<std::string>{"File"});
}

TEST_F(ReplaceContentTest, KeepsRightsAndAttributes) {
  WriteNative("file", "old");
  ASSERT_EQ(::chmod(Native("file").c_str(), 0640), 0);
  ASSERT_TRUE(files().SetAttributes(u"T:\\file", attribute::kHidden | attribute::kArchive));
  EXPECT_TRUE(Replace(u"T:\\file", "new"));
  struct stat status = {};
  ASSERT_EQ(::stat(Native("file").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
  EXPECT_EQ(files().Attributes(u"T:\\file"), attribute::kHidden | attribute::kArchive);
}

TEST_F(ReplaceContentTest, ALinkStaysALink) {
  WriteNative("file", "old");
  ASSERT_EQ(::symlink("file", Native("link").c_str()), 0);
  EXPECT_TRUE(Replace(u"T:\\link", "new"));
  EXPECT_EQ(ReadNative(Native("file")), "new");
  struct stat status = {};
  ASSERT_EQ(::lstat(Native("link").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
}

TEST_F(ReplaceContentTest, WhatMayNotBeReplacedStays) {
  WriteNative("read-only", "old");
  ASSERT_TRUE(files().SetAttributes(u"T:\\read-only", attribute::kReadOnly));
  EXPECT_FALSE(Replace(u"T:\\read-only", "new"));
  EXPECT_EQ(ReadNative(Native("read-only")), "old");
  WriteNative("held", "old");
  const auto hold = files().Open(u"T:\\held", OpenMode::kHold);
  EXPECT_FALSE(Replace(u"T:\\held", "new"));
  EXPECT_EQ(ReadNative(Native("held")), "old");
  ASSERT_TRUE(files().CreateFolder(u"T:\\folder"));
  EXPECT_FALSE(Replace(u"T:\\folder", "new"));
  ASSERT_EQ(::mkfifo(Native("pipe").c_str(), 0666), 0);
  EXPECT_FALSE(Replace(u"T:\\pipe", "new"));
  ASSERT_EQ(::symlink("nowhere", Native("dangling").c_str()), 0);
  EXPECT_FALSE(Replace(u"T:\\dangling", "new"));
  EXPECT_FALSE(Replace(u"T:\\", "new"));
  EXPECT_FALSE(Replace(u"T:\\x\\", "new"));
  EXPECT_FALSE(Replace(u"T:\\missing\\x", "new"));
  EXPECT_FALSE(Replace(u"Q:\\x", "new"));
  EXPECT_EQ(Names().size(), 5U) << "no draft is left";
}

TEST_F(ReplaceContentTest, AFullDiskKeepsTheOldContent) {
  WriteNative("file", "old");
  struct rlimit limit = {};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
  const struct rlimit small = {100, limit.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool replaced = Replace(u"T:\\file", std::string(1000, 'x'));
  const bool made = Replace(u"T:\\new", std::string(1000, 'x'));
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
  EXPECT_FALSE(replaced);
  EXPECT_FALSE(made);
  EXPECT_EQ(ReadNative(Native("file")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"file"}) << "no draft is left";
}

TEST_F(ReplaceContentTest, DraftsOfADeadProcessAreLeftAlone) {
  const std::string draft = ".orvik-" + std::to_string(::getpid()) + "-0";
  WriteNative(draft, "somebody's");
  EXPECT_TRUE(Replace(u"T:\\file", "new"));
  EXPECT_EQ(ReadNative(Native(draft)), "somebody's");
  EXPECT_EQ(ReadNative(Native("file")), "new");
}

}  // namespace
}  // namespace orvik::host::posix
