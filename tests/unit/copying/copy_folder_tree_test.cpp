#include "base/numbers.h"
#include "unit/copying/copy_test.h"

namespace orvik::mdlMain {
namespace {

class CopyFolderTreeTest : public test::CopyTest {
 protected:
  CopyFolderTreeTest() { form().Show(); }

  struct Options {
    Text from = u"T:\\from";
    Text to = u"T:\\to";
    Text masks = u"*.*";
    bool flat = false, move = false, recycle = false;
    Text second{};
    Text list{};
  };
  std::int32_t Copy(const Options& options) {
    return CopyFolderTree(options.from, options.to, options.masks, kFalse, kFalse,
                          ToFlag(options.flat), ToFlag(options.move), ToFlag(options.recycle),
                          options.second, options.list);
  }
};

using CopyEngine = CopyFolderTreeTest;

TEST_F(CopyEngine, ATreeIsRepeatedBelowTheTarget) {
  host.files.AddFile(u"T:\\from\\a.txt", "1");
  host.files.AddFile(u"T:\\from\\s\\deep\\b.txt", "2");
  EXPECT_EQ(Copy({}), 2);
  EXPECT_EQ(CopyErrorCount, 0);
  EXPECT_EQ(Content(u"T:\\to\\a.txt"), "1");
  EXPECT_EQ(Content(u"T:\\to\\s\\deep\\b.txt"), "2");
}

TEST_F(CopyEngine, ASecondRunTouchesNothing) {
  host.files.AddFile(u"T:\\from\\a.txt", "1");
  host.files.AddFile(u"T:\\from\\empty");
  Copy({});
  host.files.changes.clear();
  EXPECT_EQ(Copy({}), 0);
  EXPECT_EQ(CopyErrorCount, 0);
  EXPECT_TRUE(host.files.changes.empty());
}

TEST_F(CopyEngine, ClosingBackslashesMakeNoDifference) {
  host.files.AddFile(u"T:\\from\\a.txt", "1");
  EXPECT_EQ(Copy({.from = u"T:\\from\\", .to = u"T:\\to\\"}), 1);
  EXPECT_EQ(Content(u"T:\\to\\a.txt"), "1");
}

TEST_F(CopyEngine, UpToDateIsALengthAndASampledChecksum) {
  std::string content(3000, 'x');
  host.files.AddFile(u"T:\\from\\middle", content);
  host.files.AddFile(u"T:\\from\\head", content);
  host.files.AddFile(u"T:\\from\\length", content);
  content[1500] = 'y';
  host.files.AddFile(u"T:\\to\\middle", content);
  content[0] = 'y';
  host.files.AddFile(u"T:\\to\\head", content);
  host.files.AddFile(u"T:\\to\\length", content + "z");
  EXPECT_EQ(Copy({}), 2);
  EXPECT_EQ(Content(u"T:\\to\\middle")[1500], 'y');
  EXPECT_EQ(Content(u"T:\\to\\head")[0], 'x');
  EXPECT_EQ(Content(u"T:\\to\\length").size(), 3000U);
}

TEST_F(CopyEngine, OnlyMissingLeavesWhatExists) {
  host.files.AddFile(u"T:\\from\\a", "new");
  host.files.AddFile(u"T:\\from\\b", "new");
  host.files.AddFile(u"T:\\to\\a", "older");
  form().cxOnlyMissed.SetValue(1);
  EXPECT_EQ(Copy({}), 1);
  EXPECT_EQ(Content(u"T:\\to\\a"), "older");
}

TEST_F(CopyEngine, MasksChooseAndAFileMatchedTwiceIsSeenTwice) {
  host.files.AddFile(u"T:\\from\\a.txt", "1");
  host.files.AddFile(u"T:\\from\\b.doc", "1");
  EXPECT_EQ(Copy({.masks = u"*.txt;*.TXT"}), 1);
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\b.doc"));
  EXPECT_EQ(form().pbMain.max(), 1);
}

TEST_F(CopyEngine, NothingToWalkJumpsTheBarToItsEnd) {
  host.files.AddFile(u"T:\\from\\a.txt", "1");
  EXPECT_EQ(Copy({.masks = u"*.none"}), 0);
  EXPECT_EQ(CopyErrorCount, 0);
  EXPECT_EQ(form().pbMain.value(), 100);
  EXPECT_EQ(form().mtFile.caption(), u"Обзор файлов папки ...");
  EXPECT_FALSE(host.files.Exists(u"T:\\to"));
}

TEST_F(CopyEngine, AMissingOrEmptySourceHasNoFiles) {
  host.files.current_folder = u"C:\\";
  host.files.AddFile(u"C:\\precious", "1");
  EXPECT_EQ(Copy({.from = u"T:\\none", .move = true}), 0);
  // An empty one isn't the root of the current drive.
  EXPECT_EQ(Copy({.from = u"", .move = true}), 0);
  EXPECT_TRUE(host.files.changes.empty());
  EXPECT_EQ(CopyErrorCount, 0);
}

TEST_F(CopyEngine, FlatteningPrefixesATakenNameWithTheChecksum) {
  host.files.AddFile(u"T:\\from\\n.txt", "first");
  host.files.AddFile(u"T:\\from\\s\\n.txt", "second");
  EXPECT_EQ(Copy({.flat = true}), 2);
  const Text prefix = Decimal(mdlSupport::GetFastCRC(u"T:\\from\\s\\n.txt", 512));
  EXPECT_EQ(Content(u"T:\\to\\n.txt"), "first");
  EXPECT_EQ(Content(u"T:\\to\\" + prefix + u"n.txt"), "second");
}

// Only whether a name is taken counts, so the second run sees a taken name and copies once more;
// from the third on the prefixed target is compared as usual.
TEST_F(CopyEngine, FlatteningTwiceCopiesOnceMoreUnderThePrefix) {
  host.files.AddFile(u"T:\\from\\n.txt", "same");
  EXPECT_EQ(Copy({.flat = true}), 1);
  EXPECT_EQ(Copy({.flat = true}), 1);
  const Text prefix = Decimal(mdlSupport::GetFastCRC(u"T:\\from\\n.txt", 512));
  EXPECT_EQ(Content(u"T:\\to\\" + prefix + u"n.txt"), "same");
  EXPECT_EQ(Copy({.flat = true}), 0);
}

TEST_F(CopyEngine, ASecondCollisionIsAnExistingTarget) {
  host.files.AddFile(u"T:\\from\\a\\n", "x");
  host.files.AddFile(u"T:\\from\\b\\n", "x");
  host.files.AddFile(u"T:\\from\\c\\n", "x");
  EXPECT_EQ(Copy({.flat = true}), 2);
  EXPECT_EQ(CopyErrorCount, 0);
}

TEST_F(CopyEngine, TheSecondFolderTakesTheCopiedFilesFlat) {
  host.files.AddFile(u"T:\\from\\s\\new", "1");
  host.files.AddFile(u"T:\\from\\old", "2");
  host.files.AddFile(u"T:\\to\\old", "2");
  EXPECT_EQ(Copy({.second = u"T:\\extra"}), 1);
  EXPECT_EQ(Content(u"T:\\extra\\new"), "1");
  EXPECT_FALSE(host.files.Exists(u"T:\\extra\\old"));
}

TEST_F(CopyEngine, AFailingSecondCopyGoesUnnoticed) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\extra\\a", "kept", host::attribute::kReadOnly);
  EXPECT_EQ(Copy({.second = u"T:\\extra"}), 1);
  EXPECT_EQ(CopyErrorCount, 0);
}

TEST_F(CopyEngine, FoldersAreMadeOnlyOnAChangeOfFolder) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\from\\b", "1");
  host.files.AddFile(u"T:\\from\\s\\c", "1");
  Copy({});
  EXPECT_EQ(Changes("CreateFolder"),
            (std::vector<std::string>{"CreateFolder T:\\to\\", "CreateFolder T:\\to\\",
                                      "CreateFolder T:\\to\\s\\"}));
}

TEST_F(CopyEngine, AReadOnlyTargetIsAnErrorAndStays) {
  host.files.AddFile(u"T:\\from\\a", "new");
  host.files.AddFile(u"T:\\to\\a", "old", host::attribute::kReadOnly);
  EXPECT_EQ(Copy({}), 0);
  EXPECT_EQ(CopyErrorCount, 1);
  EXPECT_EQ(Content(u"T:\\to\\a"), "old");
}

TEST_F(CopyEngine, ATargetFolderThatCannotBeMadeIsAnErrorAFile) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\from\\b", "1");
  host.files.AddFile(u"T:\\to", "a file in the way");
  EXPECT_EQ(Copy({}), 0);
  EXPECT_EQ(CopyErrorCount, 2);
}

TEST_F(CopyEngine, ACopyThatFailsIsAnError) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Faulty().fail_operation = "CopyFile";
  EXPECT_EQ(Copy({}), 0);
  EXPECT_EQ(CopyErrorCount, 1);
}

TEST_F(CopyEngine, AFullDiskIsCountedAndTheJobGoesOn) {
  for (const char16_t* name : {u"T:\\from\\a", u"T:\\from\\b", u"T:\\from\\c"}) {
    host.files.AddFile(name, "12345");
  }
  Faulty().room = 7;
  EXPECT_EQ(Copy({}), 1);
  EXPECT_EQ(CopyErrorCount, 2);
}

TEST_F(CopyEngine, AFaultAtAnyCallNeverBreaksTheJob) {
  host.files.AddFile(u"T:\\from\\a", "12345");
  host.files.AddFile(u"T:\\from\\s\\b", std::string(2000, 'x'));
  for (int call = 1;; ++call) {
    host.files.Take(u"T:\\to");
    test::FaultyFileSystem& faulty = Faulty();
    faulty.calls = 0;
    faulty.fail_call = call;
    const std::int32_t copied = Copy({});
    EXPECT_LE(copied + CopyErrorCount, 2);
    EXPECT_EQ(Content(u"T:\\from\\a"), "12345");
    if (faulty.calls < call) break;
  }
}

TEST_F(CopyEngine, MovingRemovesEveryWalkedFile) {
  host.files.AddFile(u"T:\\from\\new", "1");
  host.files.AddFile(u"T:\\from\\same", "2");
  host.files.AddFile(u"T:\\to\\same", "2");
  host.files.AddFile(u"T:\\from\\ro", "3", host::attribute::kReadOnly);
  EXPECT_EQ(Copy({.move = true}), 2);
  EXPECT_EQ(CopyErrorCount, 0);
  EXPECT_EQ(host.files.Tree(u"T:\\from"), std::vector<Text>{});
}

// Meant so, and the user's guide warns of it: the removal doesn't depend on the copy.
TEST_F(CopyEngine, MovingRemovesAlsoWhatFailedToBeCopied) {
  host.files.AddFile(u"T:\\from\\a", "new");
  host.files.AddFile(u"T:\\to\\a", "old", host::attribute::kReadOnly);
  EXPECT_EQ(Copy({.move = true}), 0);
  EXPECT_EQ(CopyErrorCount, 1);
  EXPECT_FALSE(host.files.Exists(u"T:\\from\\a"));
}

TEST_F(CopyEngine, MovingInReportModeRemovesEverySourceAndCopiesNothing) {
  host.files.AddFile(u"T:\\from\\a", "1");
  form().cxReport.SetValue(1);
  EXPECT_EQ(Copy({.move = true}), 0);
  EXPECT_FALSE(host.files.Exists(u"T:\\from\\a"));
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\a"));
}

TEST_F(CopyEngine, MovingWithOnlyMissingRemovesTheSourceOfAnotherContent) {
  host.files.AddFile(u"T:\\from\\a", "new");
  host.files.AddFile(u"T:\\to\\a", "older");
  form().cxOnlyMissed.SetValue(1);
  EXPECT_EQ(Copy({.move = true}), 0);
  EXPECT_FALSE(host.files.Exists(u"T:\\from\\a"));
  EXPECT_EQ(Content(u"T:\\to\\a"), "older");
}

TEST_F(CopyEngine, ARemovalThatFailsIsAnError) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Faulty().fail_operation = "DeleteFile";
  EXPECT_EQ(Copy({.move = true}), 1);
  EXPECT_EQ(CopyErrorCount, 1);
}

TEST_F(CopyEngine, TheRecycleBinOnlyTogetherWithMoving) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Copy({.recycle = true});
  EXPECT_TRUE(host.shell.recycled.empty());
  EXPECT_TRUE(host.files.Exists(u"T:\\from\\a"));
  Copy({.move = true, .recycle = true});
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\from\\a"}));
  host.files.AddFile(u"T:\\from\\b", "1");
  host.shell.refuses = true;
  Copy({.move = true, .recycle = true});
  EXPECT_EQ(CopyErrorCount, 1);
  EXPECT_TRUE(host.files.Exists(u"T:\\from\\b"));
}

TEST_F(CopyEngine, ReportModeListsMakesFoldersAndCopiesNothing) {
  host.files.AddFile(u"T:\\from\\s\\a", "1");
  host.files.AddFile(u"T:\\from\\same", "2");
  host.files.AddFile(u"T:\\to\\same", "2");
  form().cxReport.SetValue(1);
  EXPECT_EQ(Copy({}), 0);
  EXPECT_EQ(CopyErrorCount, 1);
  ASSERT_EQ(form().lbLog.count(), 1);
  EXPECT_EQ(form().lbLog.Item(0), u"T:\\from\\s\\a");
  EXPECT_FALSE(form().lbLog.Checked(0));
  EXPECT_TRUE(form().frLog.visible());
  EXPECT_TRUE(host.files.IsFolder(u"T:\\to\\s"));
  EXPECT_TRUE(Changes("CopyFile").empty());
}

TEST_F(CopyEngine, WithoutReportModeTheReportIsHidden) {
  form().frLog.SetVisible(true);
  Copy({});
  EXPECT_FALSE(form().frLog.visible());
}

TEST_F(CopyEngine, OneFileLeavesTheBarsMaximum) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Copy({});
  EXPECT_EQ(form().pbMain.max(), 100);
  EXPECT_EQ(form().pbMain.value(), 100);
}

TEST_F(CopyEngine, TheBarCountsToTheUpperBound) {
  for (const char16_t* name : {u"T:\\from\\a", u"T:\\from\\b", u"T:\\from\\c"}) {
    host.files.AddFile(name, "1");
  }
  Copy({});
  EXPECT_EQ(form().pbMain.max(), 2);
  EXPECT_EQ(form().pbMain.value(), 2);
}

TEST_F(CopyEngine, StatusLineTellsTheFileAtHand) {
  host.files.AddFile(u"T:\\from\\s\\a", "1");
  front.changes.clear();
  Copy({});
  std::vector<std::string> captions;
  for (const std::string& change : front.changes) {
    if (change.starts_with("frmMain.mtFile.")) captions.push_back(change);
  }
  EXPECT_EQ(captions, (std::vector<std::string>{"frmMain.mtFile.caption Обзор файлов папки ...",
                                                "frmMain.mtFile.caption Обзор ...T:\\from\\s\\a",
                                                "frmMain.mtFile.caption Копирование T:\\...\\a"}));
}

TEST_F(CopyEngine, YieldsAtEveryFileAndAtEveryTenthCopy) {
  for (int i = 0; i < 20; ++i) host.files.AddFile(u"T:\\from\\" + Decimal(i), "1");
  const auto yields = [&] {
    front.yields = 0;
    Copy({});
    return front.yields;
  };
  const int copying = yields();
  const int up_to_date = yields();
  EXPECT_EQ(copying - up_to_date, 2);
  // The same walk over one file less: five yields for its entry in the walk, one in the loop.
  host.files.Take(u"T:\\from\\0");
  EXPECT_EQ(up_to_date - yields(), 6);
}

TEST_F(CopyEngine, ACountOfNoneIsAMultipleOfTenToo) {
  host.files.AddFile(u"T:\\from\\a", "new");
  host.files.AddFile(u"T:\\to\\a", "old", host::attribute::kReadOnly);
  front.yields = 0;
  Copy({});
  const int failing = front.yields;
  host.files.SetAttributes(u"T:\\to\\a", 0);
  front.yields = 0;
  Copy({});
  EXPECT_EQ(failing - front.yields, 1);
}

TEST_F(CopyEngine, ATargetInsideTheSourceIsNotWalked) {
  host.files.AddFile(u"T:\\from\\a", "1");
  EXPECT_EQ(Copy({.to = u"T:\\from\\in"}), 1);
  EXPECT_FALSE(host.files.Exists(u"T:\\from\\in\\in"));
}

TEST_F(CopyEngine, AListWhoseSecondLineIsABareNumberRedirectsOneFile) {
  host.files.AddFile(u"T:\\from\\a", "123456789");
  host.files.AddFile(u"T:\\list.qlx", "T:\\elsewhere\\x\r\n-1567561609\r\n");
  EXPECT_EQ(Copy({.list = u"T:\\list.qlx"}), 1);
  EXPECT_EQ(Content(u"T:\\elsewhere\\x"), "123456789");
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\a"));
}

TEST_F(CopyEngine, AnOrdinaryListHitsNothing) {
  host.files.AddFile(u"T:\\from\\a", "123456789");
  host.files.AddFile(u"T:\\list.qlx", "T:\\elsewhere\\x;-1567561609\r\nT:\\y;-1567561609\r\n");
  EXPECT_EQ(Copy({.flat = true, .list = u"T:\\list.qlx"}), 1);
  EXPECT_TRUE(host.files.Exists(u"T:\\to\\a"));
}

TEST_F(CopyEngine, AMissingListIsNotMade) {
  host.files.AddFile(u"T:\\from\\a", "1");
  EXPECT_EQ(Copy({.list = u"T:\\none.qlx"}), 1);
  EXPECT_FALSE(host.files.Exists(u"T:\\none.qlx"));
}

TEST_F(CopyEngine, AKeptWalkIsUsedAgainUntilRefreshed) {
  host.files.AddFile(u"T:\\from\\a", "1");
  const auto copy = [&](Flag refresh) {
    return CopyFolderTree(u"T:\\from", u"T:\\to", u"*", kTrue, refresh, kFalse, kFalse, kFalse, u"",
                          u"");
  };
  CachedFileList.clear();
  form().mtFile.SetCaption(u"before");
  EXPECT_EQ(copy(kFalse), 1);
  EXPECT_EQ(CachedFileList, (std::vector<Text>{u"T:\\from\\a"}));
  host.files.AddFile(u"T:\\from\\b", "1");
  EXPECT_EQ(copy(kFalse), 0);
  EXPECT_EQ(copy(kTrue), 1);
  CachedFileList.clear();
}

TEST_F(CopyEngine, LongPathsAndOddNamesAreErrorsAtMost) {
  host.files.AddFile(u"T:\\from\\a", "1");
  const Text deep = u"T:\\" + Text(300, u'x');
  EXPECT_LE(Copy({.to = deep}) + CopyErrorCount, 1);
  EXPECT_EQ(Content(u"T:\\from\\a"), "1");
}

}  // namespace
}  // namespace orvik::mdlMain
