#include "filebase/frm_file_base.h"

#include "base/numbers.h"
#include "filebase/build_file_base.h"
#include "forms/instance.h"
#include "unit/support/counted_file_system.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class FileBase : public test::ProgramTest {
 protected:
  frmFileBase& form() { return forms::The<frmFileBase>(); }
  void Open() { ASSERT_EQ(Run(u"/TOB T:\\src"), std::nullopt); }
  void Files(int count) {
    for (int i = 0; i < count; ++i) {
      host.files.AddFile(u"T:\\src\\" + Padded(i, 4) + u".txt", std::to_string(i));
    }
  }
  std::optional<forms::EndReason> Create(const Text& capacity, const Text& location = u"T:\\base") {
    form().txFileCount.UserType(capacity);
    form().txBaseLocation.UserType(location);
    return test::Ending([&] { form().btCreate.UserClick(); });
  }
  void CreateWithoutEnd(const Text& capacity, int calls = 2000) {
    test::CountedFileSystem counted(host.files, calls);
    auto services = host.services();
    services.files = &counted;
    host::Install(services);
    EXPECT_THROW(Create(capacity), test::CallsAreOver);
  }
};

TEST_F(FileBase, OpensOnItsFolder) {
  mdlMain::DoublesPatternKey = u"";
  host.registry.Write(host::kLocalMachine, u"SOFTWARE\\Ib Tarn\\Orvik\\Doubles Pattern List",
                      u"*.jpg", u"*.jpg");
  Open();
  EXPECT_EQ(form().lbSources.Item(0), u"T:\\src");
  EXPECT_EQ(form().txBaseLocation.text(), u"T:\\src");
  EXPECT_EQ(form().frRights.caption(), mdlMain::ProgramTitle);
  EXPECT_EQ(form().cbPattern.text(), u"*.*");
  EXPECT_EQ(form().cbPattern.items(), (std::vector<Text>{u"*.jpg"}));
  EXPECT_EQ(form().txFileCount.text(), u"256");
  EXPECT_EQ(form().txFileFormat.text(), u"FLx00000");
  EXPECT_EQ(form().txDirFormat.text(), u"BFx00000");
}

TEST_F(FileBase, FullFoldersAndOneThatStaysEmpty) {
  Files(4);
  Open();
  EXPECT_EQ(Create(u"2"), forms::EndReason::kShutdown);
  EXPECT_EQ(
      host.files.Tree(u"T:\\base"),
      (std::vector<Text>{u"T:\\base\\BFx00000000", u"T:\\base\\BFx00000000\\FLx00000000txt",
                         u"T:\\base\\BFx00000000\\FLx00000001txt", u"T:\\base\\BFx00000001",
                         u"T:\\base\\BFx00000001\\FLx00000002txt",
                         u"T:\\base\\BFx00000001\\FLx00000003txt", u"T:\\base\\BFx00000002"}));
  EXPECT_EQ(host.files.Content(u"T:\\base\\BFx00000001\\FLx00000003txt"), "3");
  EXPECT_TRUE(host.files.Exists(u"T:\\src\\0003.txt"));
  EXPECT_EQ(host.system.ticks, 1500U);
  EXPECT_EQ(form().pbMain.max(), 3);
}

// Meant so: the last file's name stands in the folder at hand, and the search for a free one goes
// round for ever. All files are in place by then.
TEST_F(FileBase, AnyOtherNumberOfFilesNeverEnds) {
  Files(3);
  Open();
  CreateWithoutEnd(u"2");
  EXPECT_TRUE(host.files.Exists(u"T:\\base\\BFx00000001\\FLx00000002txt"));
}

TEST_F(FileBase, WhenTheLastFileFailedTheJobEnds) {
  Files(2);
  host.files.AddFile(u"T:\\src\\a.b\\file", "its last dot stands in a folder");
  Open();
  EXPECT_EQ(Create(u"2"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.files.Tree(u"T:\\base\\BFx00000001"), std::vector<Text>{});
}

TEST_F(FileBase, NothingToPour) {
  host.files.AddFolder(u"T:\\src");
  Open();
  EXPECT_EQ(Create(u"2"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\base"));
  EXPECT_EQ(host.system.ticks, 1500U);
}

TEST_F(FileBase, SeveralSourcesWithMasksInTheirOrder) {
  host.files.AddFile(u"T:\\src\\a.txt", "a");
  host.files.AddFile(u"T:\\src\\b.doc", "b");
  host.files.AddFile(u"T:\\more\\c.TXT", "c");
  Open();
  front.folder_answers.push_back(u"T:\\none");
  form().pbAddSource.UserClick();
  EXPECT_EQ(form().lbSources.count(), 1);
  front.folder_answers.push_back(u"T:\\more");
  form().pbAddSource.UserClick();
  front.folder_answers.push_back(u"T:\\more");
  form().pbAddSource.UserClick();
  EXPECT_EQ(form().lbSources.count(), 3);
  form().lbSources.UserSelect({2});
  form().lbSources.UserKeyUp({forms::kKeyA, 0});
  EXPECT_EQ(form().lbSources.count(), 2);
  form().cbPattern.UserType(u"*.txt");
  EXPECT_EQ(Create(u"2"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.files.Content(u"T:\\base\\BFx00000000\\FLx00000001TXT"), "c");
}

TEST_F(FileBase, TheLastSourceStays) {
  Open();
  form().lbSources.UserSelect({0});
  form().lbSources.UserKeyUp({forms::kKeyDelete, 0});
  EXPECT_EQ(form().lbSources.count(), 1);
}

TEST_F(FileBase, WithoutAnArgumentTheEmptySourceIsPassedOver) {
  Run(u"/TOB ");
  EXPECT_EQ(form().lbSources.count(), 1);
  EXPECT_EQ(Create(u"1"), forms::EndReason::kShutdown);
  EXPECT_TRUE(host.files.Tree(u"T:\\base").empty());
}

TEST_F(FileBase, KeptNamesLeaveOutTheSecondOfAFolder) {
  host.files.AddFile(u"T:\\src\\a\\same.txt", "1");
  host.files.AddFile(u"T:\\src\\b\\same.txt", "2");
  host.files.AddFile(u"T:\\src\\c\\other.txt", "3");
  Open();
  form().opSaveFileNames.UserClick();
  form().opMoveFiles.UserClick();
  EXPECT_FALSE(form().txFileFormat.enabled());
  EXPECT_EQ(form().txFileFormat.text(), u"FLx00000");
  CreateWithoutEnd(u"3");
  EXPECT_EQ(host.files.Content(u"T:\\base\\BFx00000000\\same.txt"), "1");
  EXPECT_EQ(host.files.Content(u"T:\\base\\BFx00000000\\other.txt"), "3");
  EXPECT_EQ(host.files.Content(u"T:\\src\\b\\same.txt"), "2");
  EXPECT_FALSE(host.files.Exists(u"T:\\src\\a\\same.txt"));
}

TEST_F(FileBase, KeptNamesInDifferentFoldersAreBothPlaced) {
  host.files.AddFile(u"T:\\src\\a\\same.txt", "1");
  host.files.AddFile(u"T:\\src\\b\\same.txt", "2");
  Open();
  form().opSaveFileNames.UserClick();
  EXPECT_EQ(Create(u"1"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.files.Content(u"T:\\base\\BFx00000001\\same.txt"), "2");
}

TEST_F(FileBase, MovingToAnotherDriveLeavesTheSources) {
  host.files.AddDrive(u"E:");
  Files(1);
  Open();
  form().opMoveFiles.UserClick();
  EXPECT_EQ(Create(u"1", u"E:\\"), forms::EndReason::kShutdown);
  EXPECT_TRUE(host.files.Exists(u"T:\\src\\0000.txt"));
  EXPECT_TRUE(host.files.Tree(u"E:\\BFx00000000").empty());
}

TEST_F(FileBase, ASecondRunSkipsTakenNames) {
  Files(2);
  Open();
  Create(u"2");
  forms::ForgetForms();
  Open();
  form().txBaseLocation.UserType(u"T:\\base");
  host.files.changes.clear();
  CreateWithoutEnd(u"2");
  for (const std::string& change : host.files.changes) {
    EXPECT_EQ(change.find("CopyFile"), std::string::npos) << change;
  }
}

TEST_F(FileBase, AFolderThatCannotBeMadeIsTheOnlyMessage) {
  Files(1);
  Open();
  EXPECT_EQ(Create(u"1", u"Q:\\base"), forms::EndReason::kShutdown);
  EXPECT_EQ(front.events.back(), "wait 1500");
  EXPECT_NE(std::find(front.events.begin(), front.events.end(),
                      "message Не могу создать каталог (Q:\\base\\BFx00000000)||none|ok"),
            front.events.end());
}

TEST_F(FileBase, CapacityZeroGoesRoundInTheFirstFolder) {
  Files(2);
  Open();
  CreateWithoutEnd(u"");
  EXPECT_EQ(host.files.Tree(u"T:\\base"), (std::vector<Text>{u"T:\\base\\BFx00000000"}));
}

TEST_F(FileBase, ANegativeCapacityMakesNothing) {
  Files(2);
  for (const char16_t* capacity : {u"-1", u"-2", u"-256"}) {
    Open();
    EXPECT_EQ(Create(capacity), forms::EndReason::kShutdown);
    EXPECT_FALSE(host.files.Exists(u"T:\\base"));
    forms::ForgetForms();
  }
}

TEST_F(FileBase, ACapacityBeyond32BitsMakesNothing) {
  Files(2);
  Open();
  EXPECT_EQ(Create(u"3000000000"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\base"));
}

TEST_F(FileBase, NumbersGrowBeyondThreeDigits) {
  Files(1001);
  Open();
  EXPECT_EQ(Create(u"1001"), forms::EndReason::kShutdown);
  EXPECT_TRUE(host.files.Exists(u"T:\\base\\BFx00000000\\FLx000001000txt"));
  EXPECT_EQ(form().pbMain.value(), 1000);
}

TEST_F(FileBase, TheArrowsHaveNoStop) {
  Open();
  form().udMain.UserUp();
  EXPECT_EQ(form().txFileCount.text(), u"257");
  form().txFileCount.UserType(u"0 files");
  form().udMain.UserDown();
  EXPECT_EQ(form().txFileCount.text(), u"-1");
}

TEST_F(FileBase, ThePatternIsSavedAndCtrlDeleteRemovesIt) {
  host.registry.Write(host::kLocalMachine, u"SOFTWARE\\Ib Tarn\\Orvik\\Doubles Pattern List",
                      u"*.a", u"*.a");
  Open();
  form().cbPattern.UserType(u"*.A");
  EXPECT_FALSE(form().cbPattern.UserKeyDown({forms::kKeyDelete, forms::kCtrl}));
  EXPECT_EQ(form().cbPattern.count(), 1);
  form().cbPattern.UserType(u"*.a");
  EXPECT_FALSE(form().cbPattern.UserKeyDown({forms::kKeyDelete, forms::kCtrl}));
  EXPECT_EQ(form().cbPattern.count(), 0);
  EXPECT_TRUE(
      host.registry.Values(host::kLocalMachine, mdlMain::DoublesPatternKey).value().empty());
  EXPECT_FALSE(form().cbPattern.UserKeyDown({forms::kKeyEnter, 0}));
  form().cbPattern.UserType(u"*.b");
  Create(u"1");
  EXPECT_EQ(host.registry.Values(host::kLocalMachine, mdlMain::DoublesPatternKey).value()[0].name,
            u"*.b");
}

TEST_F(FileBase, ABrowsedLocationMustExist) {
  host.files.AddFolder(u"T:\\there");
  Open();
  form().pbDest.UserClick();
  EXPECT_EQ(form().txBaseLocation.text(), u"T:\\src");
  front.folder_answers.push_back(u"T:\\there");
  form().pbDest.UserClick();
  EXPECT_EQ(form().txBaseLocation.text(), u"T:\\there");
}

TEST_F(FileBase, TheBaseInsideItsSourceTakesNothingOfItself) {
  Files(2);
  Open();
  EXPECT_EQ(Create(u"2", u"T:\\src"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.files.Tree(u"T:\\src\\BFx00000000").size(), 2U);
}

TEST_F(FileBase, ANestedRunInTheMiddleOfAJob) {
  Files(2);
  Open();
  bool nested = false;
  front.on_yield = [&](int) {
    if (nested) return;
    nested = true;
    form().btCreate.UserClick();
  };
  EXPECT_EQ(Create(u"2"), forms::EndReason::kShutdown);
  EXPECT_TRUE(nested);
}

TEST(TextBehind, TheLastSeparatorCounts) {
  EXPECT_EQ(mdlMain::TextAfterLast(u"C:\\a.b\\file", u"."), u"b\\file");
  EXPECT_EQ(mdlMain::TextAfterLast(u"aXbxc", u"x"), u"c");
  EXPECT_EQ(mdlMain::TextAfterLast(u"abc", u"."), u"");
  EXPECT_EQ(mdlMain::TextAfterLast(u"abc.", u"."), u"");
}

}  // namespace
}  // namespace orvik
