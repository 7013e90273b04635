#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "unit/duplicates/doubles_test.h"

namespace orvik {
namespace {

class Review : public test::DoublesTest {
 protected:
  // T:\d\1 is the group, 2 and 3 hang on it.
  void ThreeEqual(std::size_t length = 10) {
    for (const char16_t* path : {u"T:\\d\\1", u"T:\\d\\2", u"T:\\d\\3"}) {
      host.files.AddFile(path, std::string(length, 'x'));
    }
    OpenAndSearch();
    ASSERT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 T:\\d\\2", "+1 T:\\d\\3"}));
  }
  void Kill() { form().btKill.UserClick(); }
  void Press(int code) { form().tvMain.UserKeyDown({code, 0}); }
  void Release(int button, int shift) { form().tvMain.UserMouse(false, {button, shift}); }
  void Answer(const Text& mask) {
    front.on_modal = [mask](forms::Form& modal) {
      auto& box = dynamic_cast<frmInputBox&>(modal);
      box.txAnswer.UserType(mask);
      box.btAnswer.UserClick();
    };
  }
  Text Report(const Text& folder, const Text& rest) {
    return Text(mdlMain::ProgramTitle) + u" -  Дубликаты файлов каталога " + folder + u" - " + rest;
  }
};

TEST_F(Review, AnEmptyTreeHasNothingToDelete) {
  Open();
  const Text before = form().caption();
  Kill();
  EXPECT_EQ(form().caption(), before);
}

TEST_F(Review, MarkedFilesGoToTheBinAndTheCaptionReports) {
  ThreeEqual(2500);
  Kill();
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\d\\2", u"T:\\d\\3"}));
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 Удален T:\\d\\2", "+1 Удален T:\\d\\3"}));
  // The search gave the folder a backslash, so that it has no last name to show.
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 2 удалено. Их размер 4 Kb"));
  EXPECT_TRUE(front.events == (Lines{"show frmDoubles"})) << "nothing is asked or told";
}

TEST_F(Review, ASecondClickFindsNothing) {
  ThreeEqual();
  Kill();
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 2 удалено. Их размер 0 Kb"));
  Kill();
  EXPECT_EQ(host.shell.recycled.size(), 2U);
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 0 удалено. Их размер 0 Kb"));
}

TEST_F(Review, NothingMarkedReportsNothing) {
  ThreeEqual();
  form().mnUnselect.UserClick();
  Kill();
  EXPECT_TRUE(host.shell.recycled.empty());
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 0 удалено. Их размер 0 Kb"));
}

TEST_F(Review, NoRuleKeepsALastCopy) {
  ThreeEqual();
  form().tvMain.UserCheck(1, true);
  Kill();
  EXPECT_EQ(host.shell.recycled.size(), 3U);
}

TEST_F(Review, WhatTheBinRefusesStaysMarked) {
  ThreeEqual();
  host.shell.refuses = true;
  Kill();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 T:\\d\\2", "+1 T:\\d\\3"}));
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 0 удалено. Их размер 0 Kb"));
}

TEST_F(Review, WhatSomebodyElseRemovedIsLeftAsItIs) {
  ThreeEqual();
  host.files.DeleteFile(u"T:\\d\\2");
  Kill();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 T:\\d\\2", "+1 Удален T:\\d\\3"}));
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 1 удалено. Их размер 0 Kb"));
}

TEST_F(Review, WithoutAFolderTheCaptionStays) {
  host.files.AddFile(u"T:\\x\\1", "a");
  host.files.AddFile(u"T:\\x\\2", "a");
  mdlMain::DoublesExtraFolders.Add(u"T:\\x");
  Open(u"");
  form().FindDoubles();
  Kill();
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\x\\2"}));
  EXPECT_EQ(form().caption(), u"Дубликаты");
}

TEST_F(Review, ASumBeyond32BitsLeavesAFileOutAndCountsIt) {
  // Two lengths that don't fit together.
  host.files.AddLargeFile(u"T:\\d\\1", 0x7FFFFFFF);
  host.files.AddLargeFile(u"T:\\d\\2", 0x7FFFFFFF);
  host.files.AddLargeFile(u"T:\\d\\3", 0x7FFFFFFF);
  OpenAndSearch();
  ASSERT_EQ(tree().count(), 3);
  Kill();
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 2 удалено. Их размер 2097151 Kb"));
}

TEST_F(Review, ALengthThatCantBeReadIsTheOneBefore) {
  ThreeEqual(3000);
  struct WithoutOneLength : host::ForwardingFileSystem {
    using ForwardingFileSystem::ForwardingFileSystem;
    std::optional<std::int64_t> FileLength(const Text& path) override {
      return path == u"T:\\d\\3" ? std::nullopt : inner_.FileLength(path);
    }
  } faulty(host.files);
  auto services = host.services();
  services.files = &faulty;
  host::Install(services);
  Kill();
  EXPECT_EQ(form().caption(), Report(u"T:\\...\\", u" 2 удалено. Их размер 5 Kb"));
}

TEST_F(Review, TheProgressNodeIsNoPath) {
  Open();
  Search();
  form().tvMain.UserCheck(1, true);
  Kill();
  EXPECT_TRUE(host.shell.recycled.empty());
  EXPECT_EQ(Nodes(), (Lines{"+0 Обработка ... обзор каталогов"}));
}

TEST_F(Review, DeleteTakesTheSelectedFileWhateverItsBox) {
  ThreeEqual();
  const Text caption = form().caption();
  form().tvMain.UserClick(1);
  Press(forms::kKeyDelete);
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\d\\1"}));
  EXPECT_EQ(tree().At(1).text, u"Удален T:\\d\\1");
  EXPECT_FALSE(tree().At(1).checked);
  EXPECT_EQ(form().caption(), caption);
  Press(forms::kKeyDelete);
  EXPECT_EQ(host.shell.recycled.size(), 1U);
  EXPECT_EQ(tree().At(1).text, u"Удален T:\\d\\1");
}

TEST_F(Review, DeleteWithoutASelectionAndOtherKeysDoNothing) {
  ThreeEqual();
  Press(forms::kKeyDelete);
  form().tvMain.UserClick(1);
  Press(forms::kKeyEnter);
  EXPECT_TRUE(host.shell.recycled.empty());
  host.shell.refuses = true;
  Press(forms::kKeyDelete);
  EXPECT_EQ(tree().At(1).text, u"T:\\d\\1");
}

TEST_F(Review, ShiftAndLeftLooksAtTheFile) {
  host.registry.Write(host::kClassesRoot, u".txt", u"", u"txtfile");
  host.registry.Write(host::kClassesRoot, u"txtfile\\Shell\\Open\\Command", u"",
                      u"C:\\view.exe %1");
  host.files.AddFile(u"T:\\d\\1.txt", "a");
  host.files.AddFile(u"T:\\d\\2.txt", "a");
  OpenAndSearch();
  form().tvMain.UserSelect(2);
  Release(forms::kLeftButton, forms::kShift);
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, u"\"C:\\view.exe\" \"T:\\d\\2.txt\"");
  EXPECT_EQ(tree().tooltip(), SpacedDecimal(mdlSupport::GetFileCRC(u"T:\\d\\2.txt")));
}

TEST_F(Review, ShiftAndRightOpensTheFolder) {
  ThreeEqual();
  form().tvMain.UserSelect(3);
  Release(forms::kRightButton, forms::kShift);
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, u"Explorer T:\\d\\");
  EXPECT_EQ(host.shell.started[0].window, host::WindowState::kNormal);
  EXPECT_EQ(tree().tooltip(), SpacedDecimal(mdlSupport::GetFileCRC(u"T:\\d\\3")));
  EXPECT_EQ(front.events.back(), "show frmDoubles") << "no menu";
}

TEST_F(Review, ShiftAndMiddleTellsTheChecksumAlone) {
  ThreeEqual();
  form().tvMain.UserSelect(1);
  Release(forms::kMiddleButton, forms::kShift);
  EXPECT_TRUE(host.shell.started.empty());
  EXPECT_EQ(tree().tooltip(), SpacedDecimal(mdlSupport::GetFileCRC(u"T:\\d\\1")));
}

TEST_F(Review, ARemovedNodeIsNoPath) {
  ThreeEqual();
  form().tvMain.UserSelect(2);
  Press(forms::kKeyDelete);
  Release(forms::kRightButton, forms::kShift);
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, u"Explorer Удален T:\\d\\");
  EXPECT_EQ(tree().tooltip(), u" 0");
}

TEST_F(Review, WithoutASelectionShiftDoesNothing) {
  ThreeEqual();
  for (int button : {forms::kLeftButton, forms::kRightButton, forms::kMiddleButton}) {
    Release(button, forms::kShift);
  }
  EXPECT_TRUE(host.shell.started.empty());
  EXPECT_EQ(tree().tooltip(), u"");
}

TEST_F(Review, TheRightButtonOpensTheMenuUnlessShiftStandsAlone) {
  ThreeEqual();
  Release(forms::kRightButton, 0);
  Release(forms::kRightButton, forms::kShift + forms::kCtrl);
  Release(forms::kLeftButton, 0);
  Release(forms::kLeftButton, forms::kShift + forms::kAlt);
  EXPECT_EQ(front.events, (Lines{"show frmDoubles", "popup mnMain", "popup mnMain"}));
}

TEST_F(Review, MarkingByMaskTakesAnyPartOfThePath) {
  host.files.AddFile(u"T:\\d\\Имя\\1", "a");
  host.files.AddFile(u"T:\\d\\имя\\2", "a");
  host.files.AddFile(u"T:\\d\\имя\\3", "a");
  OpenAndSearch();
  form().mnUnselect.UserClick();
  form().tvMain.UserSelect(2);
  Answer(u"имя");
  form().mnSelByMask[0].UserClick();
  const auto exact = Checked();
  for (int i = 1; i <= tree().count(); ++i) {
    EXPECT_EQ(exact[static_cast<std::size_t>(i) - 1], tree().At(i).text.find(u"имя") != Text::npos);
  }
  Answer(u"я\\[23]");
  form().mnSelByMask[1].UserClick();
  EXPECT_EQ(Checked(), (std::vector<bool>{false, false, false}));
}

TEST_F(Review, TheQuestionTellsWhatFor) {
  ThreeEqual();
  form().tvMain.UserSelect(2);
  std::vector<Text> seen;
  front.on_modal = [&](forms::Form& modal) {
    seen.push_back(modal.caption());
    seen.push_back(dynamic_cast<frmInputBox&>(modal).txAnswer.text());
    dynamic_cast<frmInputBox&>(modal).btAnswer.UserClick();
  };
  form().mnSelByMask[0].UserClick();
  form().tvMain.UserSelect(0);
  form().mnSelByMask[1].UserClick();
  EXPECT_EQ(seen, (std::vector<Text>{u"Введите маску для выделения...", u"T:\\d\\2",
                                     u"Введите маску для снятия выделения", u""}));
}

TEST_F(Review, EnterDoesNotAnswer) {
  frmInputBox box;
  EXPECT_FALSE(box.btAnswer.is_default());
}

TEST_F(Review, AClosedQuestionKeepsTheLastAnswer) {
  ThreeEqual();
  form().mnUnselect.UserClick();
  // Nothing was answered yet: every node fits.
  form().mnSelByMask[0].UserClick();
  EXPECT_EQ(Checked(), (std::vector<bool>{true, true, true}));
  Answer(u"3");
  form().mnSelByMask[1].UserClick();
  EXPECT_EQ(Checked(), (std::vector<bool>{true, true, false}));
  front.on_modal = nullptr;
  form().mnSelByMask[0].UserClick();
  EXPECT_EQ(Checked(), (std::vector<bool>{true, true, true}));
  EXPECT_EQ(mdlMain::InputAnswer, u"3");
}

TEST_F(Review, AMalformedMaskFitsEveryNode) {
  ThreeEqual();
  form().mnUnselect.UserClick();
  Answer(u"[abc");
  form().mnSelByMask[0].UserClick();
  EXPECT_EQ(Checked(), (std::vector<bool>{true, true, true}));
}

TEST_F(Review, InvertingTurnsEveryBoxOver) {
  ThreeEqual();
  form().mnReSel.UserClick();
  EXPECT_EQ(Checked(), (std::vector<bool>{true, false, false}));
  Kill();
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\d\\1"}));
}

TEST_F(Review, RemovedNodesCanBeMarkedToNoEffect) {
  ThreeEqual();
  form().tvMain.UserSelect(1);
  Press(forms::kKeyDelete);
  Answer(u"T:\\d\\1");
  form().mnSelByMask[0].UserClick();
  EXPECT_TRUE(tree().At(1).checked);
  EXPECT_EQ(tree().At(1).text, u"Удален T:\\d\\1");
}

TEST_F(Review, MarkingYieldsAtEverySixtyFourthNode) {
  for (int i = 0; i < 130; ++i) host.files.AddFile(u"T:\\d\\" + Padded(i, 3), "x");
  OpenAndSearch();
  front.yields = 0;
  form().mnReSel.UserClick();
  EXPECT_EQ(front.yields, 2);
  form().mnUnselect.UserClick();
  EXPECT_EQ(front.yields, 2);
  Answer(u"x");
  form().mnSelByMask[0].UserClick();
  EXPECT_EQ(front.yields, 4);
}

TEST_F(Review, ASearchInTheMiddleOfMarkingEndsItQuietly) {
  for (int i = 0; i < 130; ++i) host.files.AddFile(u"T:\\d\\" + Padded(i, 3), "x");
  OpenAndSearch();
  front.yields = 0;
  front.on_yield = [&](int) {
    front.on_yield = nullptr;
    for (int i = 0; i < 129; ++i) host.files.DeleteFile(u"T:\\d\\" + Padded(i, 3));
    Search();
  };
  form().mnReSel.UserClick();
  EXPECT_EQ(tree().count(), 0);
}

}  // namespace
}  // namespace orvik
