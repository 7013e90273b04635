#include "fileengine/walker.h"

#include "base/failure.h"
#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class Walker : public test::ProgramTest {
 protected:
  std::vector<Text> Walk(Text root, TextView masks) {
    std::vector<Text> list;
    WalkFiles(root, masks, list, kFalse);
    return list;
  }
};

TEST_F(Walker, MaskListsAreSplitAsTheyStand) {
  EXPECT_EQ(SplitMasks(u""), (std::vector<Text>{u"*"}));
  EXPECT_EQ(SplitMasks(u"*.txt; *.doc;;"), (std::vector<Text>{u"*.txt", u" *.doc", u"", u""}));
}

TEST_F(Walker, UpperBoundOfAnEmptyArrayIsMinusOne) {
  EXPECT_EQ(UpperBoundOrMinusOne(std::vector<Text>{}), -1);
  EXPECT_EQ(UpperBoundOrMinusOne(std::vector<Text>{u"a"}), 0);
  EXPECT_EQ(UpperBoundOrMinusOne(std::vector<host::FindRecord>(3)), 2);
}

TEST_F(Walker, FilesBeforeSubfoldersAndMasksInTheirOrder) {
  host.files.AddFolder(u"T:\\R\\s");
  host.files.AddFile(u"T:\\R\\a.doc");
  host.files.AddFile(u"T:\\R\\b.txt");
  host.files.AddFile(u"T:\\R\\s\\x.txt");
  EXPECT_EQ(Walk(u"T:\\R", u"*.txt;*.doc"),
            (std::vector<Text>{u"T:\\R\\b.txt", u"T:\\R\\a.doc", u"T:\\R\\s\\x.txt"}));
}

TEST_F(Walker, AFileThatTwoMasksMatchStandsTwice) {
  host.files.AddFile(u"T:\\R\\b.txt");
  EXPECT_EQ(Walk(u"T:\\R", u"*.txt;*.TXT").size(), 2U);
}

TEST_F(Walker, EmptyItemAddsNothing) {
  host.files.AddFile(u"T:\\R\\b.txt");
  EXPECT_EQ(Walk(u"T:\\R", u"*.txt;").size(), 1U);
  EXPECT_EQ(Walk(u"T:\\R", u";").size(), 0U);
}

TEST_F(Walker, EmptyMaskListTakesEverything) {
  host.files.AddFile(u"T:\\R\\noextension");
  EXPECT_EQ(Walk(u"T:\\R", u"").size(), 1U);
}

TEST_F(Walker, MasksNeverLimitDescent) {
  host.files.AddFile(u"T:\\R\\s.txt\\x.txt");
  host.files.AddFile(u"T:\\R\\other\\y.txt");
  EXPECT_EQ(Walk(u"T:\\R", u"*.txt"),
            (std::vector<Text>{u"T:\\R\\s.txt\\x.txt", u"T:\\R\\other\\y.txt"}));
}

TEST_F(Walker, HiddenEntriesAreListedAndEntered) {
  using namespace host::attribute;
  host.files.AddFolder(u"T:\\R\\.hidden", kHidden | kSystem);
  host.files.AddFile(u"T:\\R\\.hidden\\f", "", kHidden | kSystem | kReadOnly);
  host.files.AddFile(u"T:\\R\\pagefile.sys");
  EXPECT_EQ(Walk(u"T:\\R", u"*.*").size(), 2U);
}

TEST_F(Walker, TheCallersFolderGetsItsBackslash) {
  host.files.AddFolder(u"T:\\data");
  Text root = u"T:\\data";
  std::vector<Text> list;
  WalkFiles(root, u"*", list, kFalse);
  EXPECT_EQ(root, u"T:\\data\\");
  Text folder = u"T:\\data";
  ListSubfolders(folder, list);
  EXPECT_EQ(folder, u"T:\\data\\");
  folder = u"T:\\data";
  ListFilesByMasks(folder, u"*", list);
  EXPECT_EQ(folder, u"T:\\data\\");
}

TEST_F(Walker, AnEmptyRootIsTheCallersFailure) {
  Text root;
  std::vector<Text> list;
  EXPECT_THROW(WalkFiles(root, u"*", list, kFalse), Failure);
  EXPECT_THROW(ListSubfolders(root, list), Failure);
  EXPECT_TRUE(list.empty());
}

TEST_F(Walker, WithoutPublishingTheListGrows) {
  host.files.AddFile(u"T:\\R\\f");
  std::vector<Text> list = {u"1", u"2", u"3"};
  Text root = u"T:\\R";
  ScanFiles.emplace(1, u"kept");
  WalkFiles(root, u"*", list, kFalse);
  EXPECT_EQ(list, (std::vector<Text>{u"1", u"2", u"3", u"T:\\R\\f"}));
  EXPECT_EQ(ScanFiles->front(), u"kept");
}

TEST_F(Walker, PublishingBeginsAnewWithAnEmptyEntry) {
  host.files.AddFile(u"T:\\R\\f");
  host.files.AddFile(u"T:\\R\\s\\g");
  std::vector<Text> list = {u"gone"};
  Text root = u"T:\\R";
  ScanFolders.emplace(1, u"gone too");
  WalkFiles(root, u"*", list, kTrue);
  EXPECT_EQ(list, (std::vector<Text>{u"", u"T:\\R\\f", u"T:\\R\\s\\g"}));
  EXPECT_EQ(*ScanFiles, (std::vector<Text>{u"T:\\R\\f", u"T:\\R\\s\\g"}));
  EXPECT_EQ(*ScanNames, (std::vector<Text>{u"f", u"g"}));
  EXPECT_FALSE(ScanFolders.has_value());
}

TEST_F(Walker, PublishingNothingLeavesEmptyCollections) {
  host.files.AddFolder(u"T:\\R");
  std::vector<Text> list;
  Text root = u"T:\\R";
  WalkFiles(root, u"*", list, kTrue);
  EXPECT_EQ(list.size(), 1U);
  EXPECT_TRUE(ScanFiles->empty());
  EXPECT_TRUE(ScanNames->empty());
}

TEST_F(Walker, AFolderThatCannotBeListedIsEmpty) {
  EXPECT_TRUE(Walk(u"T:\\missing", u"*").empty());
  host.files.AddFile(u"T:\\R\\a\\f");
  host.files.AddFile(u"T:\\R\\b\\g");
  test::FaultyFileSystem faulty(host.files);
  faulty.fail_path = u"T:\\R\\a\\*";
  auto services = host.services();
  services.files = &faulty;
  host::Install(services);
  EXPECT_EQ(Walk(u"T:\\R", u"*"), (std::vector<Text>{u"T:\\R\\b\\g"}));
}

TEST_F(Walker, FindAllEntriesLeavesRecordsWhereNothingIs) {
  std::vector<host::FindRecord> records(2);
  FindAllEntries(u"T:\\none\\*", records);
  EXPECT_EQ(records.size(), 2U);
}

// The places where the form stays alive are counted by scripts that act in the middle of a walk.
TEST_F(Walker, YieldsAtEveryEntry) {
  host.files.AddFile(u"T:\\R\\f");
  host.files.AddFolder(u"T:\\R\\s");
  // R holds ".", "..", f, s: 3 between entries and 4 of the subfolder list, 1 for the mask, again
  // 3 and 4, 1 for the file, 1 for the subfolder. s holds "." and "..": 1 and 2, 1, 1 and 2.
  Walk(u"T:\\R", u"*");
  EXPECT_EQ(front.yields, 3 + 4 + 1 + 3 + 4 + 1 + 1 + (1 + 2 + 1 + 1 + 2));
}

TEST_F(Walker, NestedWalkInAYieldDoesNotDisturb) {
  host.files.AddFile(u"T:\\R\\f");
  host.files.AddFile(u"T:\\R\\s\\g");
  bool nested = false;
  front.on_yield = [&](int) {
    if (nested) return;
    nested = true;
    EXPECT_EQ(Walk(u"T:\\R", u"*").size(), 2U);
  };
  EXPECT_EQ(Walk(u"T:\\R", u"*").size(), 2U);
}

TEST_F(Walker, AsksOnlyForTheFolderBit) {
  host.files.AddFile(u"T:\\R\\f");
  Walk(u"T:\\R", u"*");
  for (const std::string& call : host.files.calls) {
    EXPECT_EQ(call.find("Attributes"), std::string::npos) << call;
    EXPECT_EQ(call.find("Length"), std::string::npos) << call;
  }
}

}  // namespace
}  // namespace orvik::mdlSupport
