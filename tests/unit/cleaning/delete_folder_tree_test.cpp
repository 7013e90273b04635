#include "cleaning/delete_folder_tree.h"

#include "base/failure.h"
#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class DeleteTree : public test::ProgramTest {
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

TEST_F(DeleteTree, EverythingGoesAgainstAttributes) {
  host.files.AddFile(u"T:\\d\\a", "1", 7);
  host.files.AddFile(u"T:\\d\\s\\pagefile.sys", "1");
  host.files.AddFolder(u"T:\\d\\empty");
  DeleteFolderTree(u"T:\\d");
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
  EXPECT_TRUE(host.shell.recycled.empty());
}

TEST_F(DeleteTree, AClosingBackslashIsCut) {
  host.files.AddFile(u"T:\\d\\a");
  DeleteFolderTree(u"T:\\d\\");
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
}

TEST_F(DeleteTree, ADriveIsEmptiedAndNeverRemoved) {
  host.files.AddFile(u"T:\\d\\a");
  host.files.AddFile(u"T:\\b");
  DeleteFolderTree(u"T:\\");
  EXPECT_TRUE(host.files.Tree(u"T:\\").empty());
  for (const std::string& change : host.files.changes) EXPECT_NE(change, "RemoveFolder T:");
}

TEST_F(DeleteTree, WhatResistsEndsItThroughAllLevels) {
  host.files.AddFile(u"T:\\d\\a\\locked");
  host.files.AddFile(u"T:\\d\\b\\behind");
  Faulty().fail_path = u"T:\\d\\a\\locked";
  EXPECT_THROW(DeleteFolderTree(u"T:\\d"), Failure);
  EXPECT_TRUE(host.files.Exists(u"T:\\d\\b\\behind"));
}

TEST_F(DeleteTree, AFileThatResistsLeavesItsFolder) {
  host.files.AddFile(u"T:\\d\\locked");
  host.files.AddFile(u"T:\\d\\other");
  Faulty().fail_operation = "DeleteFile";
  EXPECT_THROW(DeleteFolderTree(u"T:\\d"), Failure);
}

TEST_F(DeleteTree, AMissingPathAndAFileFail) {
  host.files.AddFile(u"T:\\f");
  EXPECT_THROW(DeleteFolderTree(u"T:\\none"), Failure);
  EXPECT_THROW(DeleteFolderTree(u"T:\\f"), Failure);
  EXPECT_TRUE(host.files.Exists(u"T:\\f"));
}

TEST_F(DeleteTree, AReadOnlyFolderStays) {
  host.files.AddFolder(u"T:\\d", host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\d\\a");
  EXPECT_THROW(DeleteFolderTree(u"T:\\d"), Failure);
  EXPECT_FALSE(host.files.Exists(u"T:\\d\\a"));
  EXPECT_TRUE(host.files.Exists(u"T:\\d"));
}

}  // namespace
}  // namespace orvik::mdlSupport
