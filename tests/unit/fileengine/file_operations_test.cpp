#include "fileengine/file_operations.h"

#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class FileOperations : public test::ProgramTest {
 protected:
  test::FaultyFileSystem& Faulty() {
    auto services = host.services();
    services.files = &faulty_;
    host::Install(services);
    return faulty_;
  }

 private:
  test::FaultyFileSystem faulty_{host.files};
};

TEST_F(FileOperations, ReadingDecodesThroughTheCodePage) {
  host.files.AddFile(u"T:\\f",
                     "\xC0"
                     "a\x98");
  EXPECT_EQ(ReadWholeFile(u"T:\\f"), (Text{u'А', u'a', char16_t(0x98)}));
}

TEST_F(FileOperations, ReadingALongFile) {
  std::string content(200001, 'a');
  content[65536] = 'b';
  content.back() = 'c';
  host.files.AddFile(u"T:\\f", content);
  EXPECT_EQ(ToUtf8(ReadWholeFile(u"T:\\f")), content);
}

TEST_F(FileOperations, ReadingAMissingFileMakesItEmpty) {
  EXPECT_EQ(ReadWholeFile(u"T:\\new"), u"");
  EXPECT_TRUE(host.files.Exists(u"T:\\new"));
  EXPECT_EQ(host.files.Content(u"T:\\new"), "");
}

TEST_F(FileOperations, AFileThatCannotBeOpenedReadsAsBlanks) {
  host.files.AddFile(u"T:\\f", "secret");
  Faulty().fail_operation = "Open";
  EXPECT_EQ(ReadWholeFile(u"T:\\f"), u"      ");
}

TEST_F(FileOperations, AReadThatBreaksOffLeavesBlanks) {
  host.files.AddFile(u"T:\\f", "secret");
  Faulty().fail_operation = "ReadAt";
  EXPECT_EQ(ReadWholeFile(u"T:\\f"), u"      ");
}

TEST_F(FileOperations, TwoGibibytesReadAsNothing) {
  host.files.AddLargeFile(u"T:\\big", 0x80000000);
  EXPECT_EQ(ReadWholeFile(u"T:\\big"), u"");
}

TEST_F(FileOperations, AppendingAndReplacing) {
  AppendToFile(u"один", u"T:\\f", kTrue);
  AppendToFile(u" two", u"T:\\f", kTrue);
  EXPECT_EQ(host.files.Content(u"T:\\f"), "\xEE\xE4\xE8\xED two");
  AppendToFile(u"3", u"T:\\f", kFalse);
  EXPECT_EQ(host.files.Content(u"T:\\f"), "3");
  AppendToFile(u"", u"T:\\f", kFalse);
  EXPECT_TRUE(host.files.Exists(u"T:\\f"));
  EXPECT_EQ(host.files.Content(u"T:\\f"), "");
}

TEST_F(FileOperations, AReadOnlyFileIsReplacedButNotExtended) {
  host.files.AddFile(u"T:\\f", "old", host::attribute::kReadOnly | host::attribute::kHidden);
  AppendToFile(u"more", u"T:\\f", kTrue);
  EXPECT_EQ(host.files.Content(u"T:\\f"), "old");
  AppendToFile(u"new", u"T:\\f", kFalse);
  EXPECT_EQ(host.files.Content(u"T:\\f"), "new");
}

TEST_F(FileOperations, WhatAPageLacksBecomesAQuestionMark) {
  AppendToFile(u"a漢b", u"T:\\f", kTrue);
  EXPECT_EQ(host.files.Content(u"T:\\f"), "a?b");
}

TEST_F(FileOperations, LongContentsGoOutWhole) {
  Text content(150001, u'я');
  content[70000] = u'!';
  AppendToFile(content, u"T:\\f", kTrue);
  EXPECT_EQ(ReadWholeFile(u"T:\\f"), content);
}

TEST_F(FileOperations, AFullDiskIsSilent) {
  Faulty().room = 3;
  AppendToFile(u"12345", u"T:\\f", kTrue);
  EXPECT_EQ(host.files.Content(u"T:\\f"), "123");
}

TEST_F(FileOperations, CopyOverwritesOnlyWhenTold) {
  host.files.AddFile(u"T:\\a", "new");
  host.files.AddFile(u"T:\\b", "old");
  CopyOneFile(u"T:\\a", u"T:\\b", kFalse);
  EXPECT_EQ(host.files.Content(u"T:\\b"), "old");
  CopyOneFile(u"T:\\a", u"T:\\b", kTrue);
  EXPECT_EQ(host.files.Content(u"T:\\b"), "new");
}

TEST_F(FileOperations, MoveReplacesOnlyWhenTold) {
  host.files.AddFile(u"T:\\a", "new");
  host.files.AddFile(u"T:\\b", "old");
  MoveOneFile(u"T:\\a", u"T:\\b", kFalse);
  EXPECT_EQ(host.files.Content(u"T:\\a"), "new");
  EXPECT_EQ(host.files.Content(u"T:\\b"), "old");
  MoveOneFile(u"T:\\a", u"T:\\b", kTrue);
  EXPECT_FALSE(host.files.Exists(u"T:\\a"));
  EXPECT_EQ(host.files.Content(u"T:\\b"), "new");
}

TEST_F(FileOperations, DeletionGoesAgainstAttributes) {
  host.files.AddFile(u"T:\\f", "", 7);
  DeleteOneFile(u"T:\\f");
  EXPECT_FALSE(host.files.Exists(u"T:\\f"));
}

TEST_F(FileOperations, DeletionOfAMissingPathTouchesNoAttributes) {
  DeleteOneFile(u"T:\\f");
  EXPECT_EQ(host.files.changes, (std::vector<std::string>{"DeleteFile T:\\f"}));
}

TEST_F(FileOperations, DeletionOfAFolderOnlyClearsItsAttributes) {
  host.files.AddFolder(u"T:\\d", host::attribute::kReadOnly);
  DeleteOneFile(u"T:\\d");
  EXPECT_TRUE(host.files.IsFolder(u"T:\\d"));
  EXPECT_EQ(*host.files.Attributes(u"T:\\d") & host::attribute::kReadOnly, 0U);
}

TEST_F(FileOperations, RecyclingLetsTheShellAsk) {
  host.files.AddFile(u"T:\\f");
  RecycleFile(u"T:\\f");
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\f"}));
  host.files.AddFile(u"T:\\g");
  host.shell.refuses = true;
  RecycleFile(u"T:\\g");
  EXPECT_TRUE(host.files.Exists(u"T:\\g"));
}

}  // namespace
}  // namespace orvik::mdlSupport
