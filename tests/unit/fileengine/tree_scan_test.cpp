#include "fileengine/tree_scan.h"

#include "host/forwarding_file_system.h"
#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class TreeScan : public test::ProgramTest {
 protected:
  // Puts a file system with faults between the program and the one in memory.
  test::FaultyFileSystem& Faulty() {
    auto services = host.services();
    services.files = &faulty_;
    host::Install(services);
    return faulty_;
  }

 private:
  test::FaultyFileSystem faulty_{host.files};
};

TEST_F(TreeScan, BreadthFirstWithFilesOfEachFolderTogether) {
  host.files.AddFile(u"T:\\R\\a\\deep\\1");
  host.files.AddFile(u"T:\\R\\2");
  host.files.AddFile(u"T:\\R\\b\\3");
  EXPECT_TRUE(ScanFolderTree(u"T:\\R", u"", kFalse));
  EXPECT_EQ(*ScanFolders,
            (std::vector<Text>{u"T:\\R", u"T:\\R\\a", u"T:\\R\\b", u"T:\\R\\a\\deep"}));
  EXPECT_EQ(*ScanFiles, (std::vector<Text>{u"T:\\R\\2", u"T:\\R\\b\\3", u"T:\\R\\a\\deep\\1"}));
  EXPECT_EQ(*ScanNames, (std::vector<Text>{u"2", u"3", u"1"}));
}

TEST_F(TreeScan, TheRootKeepsItsBackslashAndNoOtherFolderHasOne) {
  host.files.AddFolder(u"T:\\s");
  EXPECT_TRUE(ScanFolderTree(u"T:\\", u"", kFalse));
  EXPECT_EQ(*ScanFolders, (std::vector<Text>{u"T:\\", u"T:\\s"}));
}

TEST_F(TreeScan, ThePatternFiltersFilesOnly) {
  host.files.AddFile(u"T:\\R\\a.TXT");
  host.files.AddFile(u"T:\\R\\b.doc");
  host.files.AddFile(u"T:\\R\\sub\\c.txt");
  EXPECT_TRUE(ScanFolderTree(u"T:\\R", u"*.Txt", kFalse));
  EXPECT_EQ(*ScanNames, (std::vector<Text>{u"a.TXT", u"c.txt"}));
  EXPECT_TRUE(ScanFolderTree(u"T:\\R", u"*.txt", kTrue));
  EXPECT_EQ(*ScanNames, (std::vector<Text>{u"c.txt"}));
}

TEST_F(TreeScan, AMalformedPatternPassesEveryFile) {
  host.files.AddFile(u"T:\\R\\a");
  EXPECT_TRUE(ScanFolderTree(u"T:\\R", u"[", kFalse));
  EXPECT_EQ(ScanNames->size(), 1U);
}

TEST_F(TreeScan, ThePageFileIsPassedOverInAnyCaseAndKind) {
  host.files.AddFile(u"T:\\R\\PageFile.sys");
  host.files.AddFile(u"T:\\R\\s\\pagefile.sys\\f");
  EXPECT_TRUE(ScanFolderTree(u"T:\\R", u"", kFalse));
  EXPECT_TRUE(ScanFiles->empty());
  EXPECT_EQ(ScanFolders->size(), 2U);
}

TEST_F(TreeScan, YieldsOnceAFolder) {
  host.files.AddFile(u"T:\\R\\a\\1");
  host.files.AddFile(u"T:\\R\\2");
  ScanFolderTree(u"T:\\R", u"", kFalse);
  EXPECT_EQ(front.yields, 2);
}

TEST_F(TreeScan, ADriveWithoutMediumIsNotComplete) {
  EXPECT_FALSE(ScanFolderTree(u"Q:", u"", kFalse));
  EXPECT_EQ(*ScanFolders, (std::vector<Text>{u"Q:"}));
  EXPECT_TRUE(ScanFiles->empty());
}

TEST_F(TreeScan, AnEmptyDriveIsComplete) {
  EXPECT_TRUE(ScanFolderTree(u"T:", u"", kFalse));
  EXPECT_EQ(ScanFolders->size(), 1U);
}

TEST_F(TreeScan, AnEntryWhoseAttributesCannotBeReadIsAFolder) {
  host.files.AddFile(u"T:\\R\\odd");
  Faulty().fail_operation = "Attributes";
  EXPECT_TRUE(ScanFolderTree(u"T:\\R", u"", kFalse));
  EXPECT_EQ(*ScanFolders, (std::vector<Text>{u"T:\\R", u"T:\\R\\odd"}));
  EXPECT_TRUE(ScanFiles->empty());
}

// A root with many folders, all of them empty.
class WideFolder : public host::ForwardingFileSystem {
 public:
  WideFolder(host::FileSystem& inner, int folders) : ForwardingFileSystem(inner), left_(folders) {}

  std::unique_ptr<host::Search> FindFirst(const Text& path, host::Details,
                                          host::FindRecord& record) override {
    if (path != u"T:\\R\\*") return nullptr;
    auto search = std::make_unique<Folders>(left_);
    search->Next(record);
    return search;
  }
  bool PathExists(const Text&) override { return true; }
  std::optional<std::uint32_t> Attributes(const Text&) override { return host::attribute::kFolder; }

 private:
  struct Folders : host::Search {
    explicit Folders(int folders) : left(folders) {}
    bool Next(host::FindRecord& record) override {
      if (left-- == 0) return false;
      record.name = u"d" + FromUtf8(std::to_string(left));
      record.attributes = host::attribute::kFolder;
      return true;
    }
    int left;
  };
  int left_;
};

// The index of the scan is 16 bits wide: it can't pass 32767, and the scan reads that folder again
// and again.
TEST_F(TreeScan, FolderNumber32767IsReadWithoutEnd) {
  struct Enough {};
  const auto scan = [&](int folders) {
    WideFolder wide(host.files, folders);
    auto services = host.services();
    services.files = &wide;
    host::Install(services);
    front.yields = 0;
    ScanFolderTree(u"T:\\R", u"", kFalse);
  };
  front.on_yield = [](int yield) {
    if (yield > 40000) throw Enough{};
  };
  scan(32765);
  EXPECT_EQ(front.yields, 32766);
  EXPECT_THROW(scan(32766), Enough);
}

TEST_F(TreeScan, AllDrivesGatherThoseWithFiles) {
  host.files.AddDrive(u"E:");
  host.files.AddFolder(u"C:\\only folders");
  host.files.AddFile(u"E:\\1");
  host.files.AddFile(u"T:\\s\\2");
  ScanAllDrives(u"");
  EXPECT_EQ(*DriveFolders, (std::vector<Text>{u"E:", u"T:", u"T:\\s"}));
  EXPECT_EQ(*DriveFiles, (std::vector<Text>{u"E:\\1", u"T:\\s\\2"}));
  EXPECT_EQ(*DriveNames, (std::vector<Text>{u"1", u"2"}));
  EXPECT_EQ(*ScanFolders, (std::vector<Text>{u"Z:"}));
}

TEST_F(TreeScan, ClearingUnsetsAllSix) {
  ScanAllDrives(u"");
  ClearScanResults();
  for (const auto* collection :
       {&ScanFolders, &ScanFiles, &ScanNames, &DriveFolders, &DriveFiles, &DriveNames}) {
    EXPECT_FALSE(collection->has_value());
  }
  ResetCollection(ScanFiles);
  EXPECT_TRUE(ScanFiles.has_value());
}

TEST_F(TreeScan, SizeAddsUpTheWholeTree) {
  host.files.AddFile(u"T:\\R\\a", std::string(100, 'x'));
  host.files.AddFile(u"T:\\R\\s\\b", std::string(23, 'x'), host::attribute::kHidden);
  EXPECT_EQ(GetTreeSize(u"T:\\R"), 123);
  EXPECT_EQ(GetTreeSize(u"T:\\R\\a"), 100);
  EXPECT_EQ(GetTreeSize(u"T:\\missing"), 0);
}

// A settled property of these sums: limits that users have set rest on it.
TEST_F(TreeScan, LargeFilesCountWrongly) {
  host.files.AddLargeFile(u"T:\\a\\f", 0x7FFFFFFF);
  host.files.AddLargeFile(u"T:\\b\\f", 0x80000000);
  host.files.AddLargeFile(u"T:\\c\\f", 0x180000005);
  EXPECT_EQ(GetTreeSize(u"T:\\a"), 2147483647.0);
  EXPECT_EQ(GetTreeSize(u"T:\\b"), -2147483648.0);
  EXPECT_EQ(GetTreeSize(u"T:\\c"), 65536.0 - 2147483643.0);
}

TEST_F(TreeScan, SizeYieldsAfterEachEntry) {
  host.files.AddFile(u"T:\\R\\a");
  host.files.AddFile(u"T:\\R\\b");
  GetTreeSize(u"T:\\R");
  EXPECT_EQ(front.yields, 4);  // "." and ".." are entries too
}

TEST_F(TreeScan, SizeGoesOnBehindAFolderThatCannotBeRead) {
  host.files.AddFile(u"T:\\R\\a\\1", "12345");
  host.files.AddFile(u"T:\\R\\b\\2", "123");
  Faulty().fail_path = u"T:\\R\\a";
  EXPECT_EQ(GetTreeSize(u"T:\\R"), 3);
}

}  // namespace
}  // namespace orvik::mdlSupport
