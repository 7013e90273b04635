#include "unit/copying/copy_test.h"

namespace orvik::mdlMain {
namespace {

class SelectedFiles : public test::CopyTest {
 protected:
  void Report(const Text& source, const Text& to) {
    Run(u"/SCH " + source);
    form().cxReport.UserClick();
    Start(to);
  }
  void CopyTicked() {
    test::Ending([&] { form().btCopySelectedFiles.UserClick(); });
  }
};

TEST_F(SelectedFiles, TickedEntriesAreCopiedAndLoseTheirTicks) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\from\\s\\b", "2");
  Report(u"T:\\from", u"T:\\to");
  form().lbLog.UserCheck(1, true);
  front.yields = 0;
  CopyTicked();
  EXPECT_EQ(Content(u"T:\\to\\s\\b"), "2");
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\a"));
  EXPECT_FALSE(form().lbLog.Checked(1));
  EXPECT_TRUE(form().clExit.active());
  EXPECT_TRUE(form().btCopySelectedFiles.enabled());
  EXPECT_EQ(front.yields, 0);
}

TEST_F(SelectedFiles, ASecondClickServesFurtherTicks) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Report(u"T:\\from", u"T:\\to");
  CopyTicked();
  EXPECT_TRUE(form().clExit.active());
  form().lbLog.UserCheck(0, true);
  front.changes.clear();
  CopyTicked();
  EXPECT_EQ(Content(u"T:\\to\\a"), "1");
  for (const std::string& change : front.changes) {
    EXPECT_EQ(change.find("clExit"), std::string::npos) << "the timer isn't restarted";
  }
}

TEST_F(SelectedFiles, NothingTickedAndAnEmptyListOnlyStartTheExit) {
  Report(u"T:\\from", u"T:\\to");
  host.files.changes.clear();
  CopyTicked();
  EXPECT_TRUE(host.files.changes.empty());
  EXPECT_TRUE(form().clExit.active());
}

TEST_F(SelectedFiles, AnExistingTargetIsReplacedWithoutAQuestion) {
  host.files.AddFile(u"T:\\from\\a", "new");
  host.files.AddFile(u"T:\\to\\a", "old");
  Report(u"T:\\from", u"T:\\to");
  form().lbLog.UserCheck(0, true);
  CopyTicked();
  EXPECT_EQ(Content(u"T:\\to\\a"), "new");
}

// Texts are joined as they stand.
TEST_F(SelectedFiles, AClosingBackslashOnTheSourceAloneGluesTheNames) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\from\\s\\b", "2");
  Report(u"T:\\from\\", u"T:\\to");
  form().lbLog.UserCheck(0, true);
  form().lbLog.UserCheck(1, true);
  CopyTicked();
  EXPECT_EQ(Content(u"T:\\toa"), "1");
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\s\\b"));
  EXPECT_FALSE(form().lbLog.Checked(1));
}

TEST_F(SelectedFiles, AFailureLeavesNoTrace) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Report(u"T:\\from", u"T:\\to");
  host.files.Take(u"T:\\from\\a");
  form().lbLog.UserCheck(0, true);
  const Text title = form().caption();
  CopyTicked();
  EXPECT_FALSE(form().lbLog.Checked(0));
  EXPECT_EQ(form().caption(), title);
}

TEST_F(SelectedFiles, FlatteningInTheReportLeavesTheTreesPlace) {
  host.files.AddFile(u"T:\\from\\s\\a", "1");
  Run(u"/SCH T:\\from");
  form().cxReport.UserClick();
  form().cxBreakFolderTree.UserClick();
  Start();
  form().lbLog.UserCheck(0, true);
  CopyTicked();
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\a"));
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\s\\a"));
}

}  // namespace
}  // namespace orvik::mdlMain
