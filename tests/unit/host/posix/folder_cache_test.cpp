#include "host/posix/folder_cache.h"

#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

using testing::ElementsAre;

class FolderCacheTest : public PosixTest {};

TEST_F(FolderCacheTest, AnotherProgramsChangesAreSeen) {
  EXPECT_FALSE(files().PathExists(u"T:\\FILE"));
  WriteNative("file", "1");
  EXPECT_TRUE(files().PathExists(u"T:\\FILE"));
  ::unlink(Native("file").c_str());
  EXPECT_FALSE(files().PathExists(u"T:\\FILE"));
  ::mkdir(Native("file").c_str(), 0777);
  WriteNative("file/x", "1");
  EXPECT_TRUE(files().PathExists(u"T:\\FILE\\X"));
  ::rename(Native("file").c_str(), Native("other").c_str());
  EXPECT_FALSE(files().PathExists(u"T:\\FILE\\X"));
  EXPECT_TRUE(files().PathExists(u"T:\\OTHER\\X"));
}

TEST_F(FolderCacheTest, AFolderThatIsAnotherOneByNowIsReadAgain) {
  ::mkdir(Native("a").c_str(), 0777);
  WriteNative("a/x", "1");
  EXPECT_TRUE(files().PathExists(u"T:\\A\\X"));
  ::rename(Native("a").c_str(), Native("b").c_str());
  ::mkdir(Native("A").c_str(), 0777);
  EXPECT_FALSE(files().PathExists(u"T:\\a\\X"));
  WriteNative("A/y", "1");
  EXPECT_TRUE(files().PathExists(u"T:\\a\\Y"));
}

TEST_F(FolderCacheTest, TheExactSpellingWinsAmongTwins) {
  WriteNative("name", "small");
  WriteNative("NAME", "capital");
  EXPECT_TRUE(files().DeleteFile(u"T:\\NAME"));
  EXPECT_THAT(Names(), ElementsAre("name"));
  WriteNative("NAME", "capital");
  WriteNative("source", "copied");
  EXPECT_FALSE(files().PathExists(u"T:\\missing"));  // now the names are known
  EXPECT_TRUE(files().CopyFile(u"T:\\source", u"T:\\name", false));
  EXPECT_EQ(ReadNative(Native("name")), "copied");
  EXPECT_EQ(ReadNative(Native("NAME")), "capital");
  EXPECT_TRUE(files().DeleteFile(u"T:\\name"));
  EXPECT_TRUE(files().PathExists(u"T:\\Name"));
}

TEST_F(FolderCacheTest, NewFilesCostTheSameInAFullFolder) {
  // Reading the folder again for each of them would take minutes.
  WriteNative("source", "x");
  for (int i = 0; i < 20'000; ++i) {
    const Text name = u"T:\\New" + FromUtf8(std::to_string(i));
    ASSERT_FALSE(files().PathExists(name));
    ASSERT_TRUE(files().CopyFile(u"T:\\source", name, true));
  }
  EXPECT_TRUE(files().PathExists(u"T:\\NEW19999"));
  for (int i = 0; i < 20'000; ++i) {
    const std::string number = std::to_string(i);
    ASSERT_TRUE(
        files().MoveFile(u"T:\\NEW" + FromUtf8(number), u"T:\\old" + FromUtf8(number), false));
    ASSERT_TRUE(files().DeleteFile(u"T:\\OLD" + FromUtf8(number)));
  }
  EXPECT_THAT(Names(), ElementsAre("source"));
}

TEST_F(FolderCacheTest, UnreachableNamesArentFound) {
  WriteNative("a\xFF", "1");
  WriteNative("dot.", "1");
  EXPECT_THAT(Names(), ElementsAre("a?", "dot?"));
  EXPECT_FALSE(files().PathExists(u"T:\\A\uFFFD"));
  EXPECT_FALSE(files().PathExists(u"T:\\dot."));
  EXPECT_FALSE(files().PathExists(u"T:\\dot"));
  EXPECT_FALSE(files().DeleteFile(u"T:\\dot."));
}

}  // namespace
}  // namespace orvik::host::posix
