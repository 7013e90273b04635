#include "copying/frm_main.h"

#include "unit/copying/copy_test.h"

namespace orvik {
namespace {

using mdlMain::CommandArgs;
using mdlMain::ScriptLines;

class CopyForm : public test::CopyTest {
 protected:
  // A script job, by its lines behind the first.
  void Play(const std::vector<Text>& lines) {
    ScriptLines = {u"FolderCopy"};
    ScriptLines.insert(ScriptLines.end(), lines.begin(), lines.end());
    CommandArgs = u"T:\\scripts\\Job.txt";
    ending = test::Ending([&] { form().Show(); });
  }
  std::optional<forms::EndReason> ending;
};

TEST_F(CopyForm, OpensLowWithItsTitleAndTheReportAtTheTop) {
  Open();
  EXPECT_EQ(form().height(), 3030);
  EXPECT_EQ(form().caption(), u"Копирование ... T:\\...\\from");
  EXPECT_EQ(form().frRights.caption(), mdlMain::ProgramTitle);
  EXPECT_EQ(form().frLog.bounds().top, 15);
  EXPECT_FALSE(form().frLog.visible());
  EXPECT_EQ(form().cbMask.text(), u"*.*");
  EXPECT_EQ(form().cbOut.text(), u"");
  EXPECT_EQ(front.events, (std::vector<std::string>{"show frmMain"}));
}

TEST_F(CopyForm, WithoutASourceTheTitleStays) {
  Run(u"/SCH ");
  EXPECT_EQ(form().caption(), u"Копирование ...");
}

TEST_F(CopyForm, EverythingFromTheReportBoxOnLiesUnderTheLowEdge) {
  Open();
  const int edge = form().height() - forms::kFrameHeight;
  for (const forms::Control* control : form().controls()) {
    if (control->container() != nullptr || control->kind() == forms::Kind::kTimer) continue;
    const bool low = control->bounds().top + control->bounds().height > edge;
    const bool expected =
        control->name() == "cxReport" || control->bounds().top > 2655 || control->name() == "frLog";
    EXPECT_EQ(low, expected || control->name() == "lnTwo") << control->name();
  }
}

TEST_F(CopyForm, OtherOptionsOpenForGood) {
  Open();
  form().pbOtherOptions.UserClick();
  EXPECT_EQ(form().height(), form().lnHeight.bounds().top + 405);
  EXPECT_FALSE(form().pbOtherOptions.visible());
}

TEST_F(CopyForm, TheReportCoversTheOpenForm) {
  Open();
  form().pbOtherOptions.UserClick();
  form().frLog.SetVisible(true);
  EXPECT_EQ(form().frLog.bounds().top + form().frLog.bounds().height, form().lnHeight.bounds().top);
  for (const forms::Control* control : form().controls()) {
    if (control->container() != nullptr || control == &form().frLog) continue;
    if (control->kind() == forms::Kind::kTimer || control == &form().lnHeight) continue;
    EXPECT_FALSE(control->Reachable()) << control->name();
  }
  EXPECT_TRUE(form().lbLog.Reachable());
  EXPECT_TRUE(form().btCopySelectedFiles.Reachable());
}

TEST_F(CopyForm, WithoutATargetTheStartIsRefused) {
  Open();
  form().cxBreakFolderTree.UserClick();
  Start(u"   ");
  EXPECT_EQ(front.events.back(),
            "message Выберите папку, в которую будем копировать|Ошибка|information|ok");
  EXPECT_TRUE(form().btStart.enabled());
  EXPECT_TRUE(form().cxOnlyMissed.visible());
  EXPECT_EQ(form().btStart.caption(), u"Начать копирование");
  EXPECT_FALSE(host.registry.Values(host::kLocalMachine, mdlMain::RecentPathKey).has_value());
}

TEST_F(CopyForm, AJobFreezesTheFormCountsAndSwitchesTheExitOn) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\from\\b", "1");
  host.files.AddFile(u"T:\\to\\b", "old", host::attribute::kReadOnly);
  Open();
  form().cbMask.UserType(u"  ");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(form().caption(), u"Завершено. Скопировано 1 файлов, ошибок 1");
  EXPECT_EQ(form().cbMask.text(), u"*.*");
  EXPECT_FALSE(form().cxOnlyMissed.visible());
  EXPECT_FALSE(form().pbOtherOptions.visible());
  for (const forms::Control* frozen : std::vector<const forms::Control*>{
           &form().cxAfterEmptyFolderCheck, &form().cxBreakFolderTree, &form().cxMoveFiles,
           &form().cxRemoveToRecycler, &form().cxReport, &form().pbDest, &form().btStart}) {
    EXPECT_FALSE(frozen->enabled()) << frozen->name();
  }
  EXPECT_TRUE(form().cbMask.locked());
  EXPECT_TRUE(form().cbOut.locked());
  EXPECT_EQ(form().btStart.caption(), u"Копирование ...");
  for (const forms::Control* free :
       std::vector<const forms::Control*>{&form().opNewFilesToNewFolder, &form().pbDest2}) {
    EXPECT_TRUE(free->enabled()) << free->name();
  }
  EXPECT_FALSE(form().cbOut2.locked());
  EXPECT_TRUE(form().topmost());
  EXPECT_TRUE(form().clExit.active());
  EXPECT_EQ(form().clExit.interval(), 10000);
  EXPECT_EQ(test::Ending([&] { form().clExit.Fire(); }), forms::EndReason::kShutdown);
}

TEST_F(CopyForm, TheExitIsOffAndTheFormFrozenWhileTheJobRuns) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Open();
  bool seen = false;
  front.on_yield = [&](int) {
    EXPECT_FALSE(form().clExit.active());
    EXPECT_FALSE(form().btStart.Reachable());
    seen = true;
  };
  Start();
  EXPECT_TRUE(seen);
}

TEST_F(CopyForm, AReportLeavesTheTitleAndTheExit) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Open();
  form().cxReport.UserClick();
  form().cxAfterEmptyFolderCheck.UserClick();
  Start();
  EXPECT_EQ(form().caption(), u"Копирование ... T:\\...\\from");
  EXPECT_TRUE(form().frLog.visible());
  EXPECT_FALSE(form().clExit.active());
  EXPECT_FALSE(form().topmost());
}

TEST_F(CopyForm, HandingOverLeavesTheExitOff) {
  Open();
  form().cxAfterEmptyFolderCheck.UserClick();
  Start();
  EXPECT_EQ(form().caption(), u"Завершено. Скопировано 0 файлов, ошибок 0");
  EXPECT_FALSE(form().clExit.active());
  EXPECT_FALSE(form().topmost());
}

TEST_F(CopyForm, OptionsReachTheJob) {
  host.files.AddFile(u"T:\\from\\s\\a", "1");
  Open();
  form().cxBreakFolderTree.UserClick();
  form().cxMoveFiles.UserClick();
  form().cxRemoveToRecycler.UserClick();
  form().cbOut2.SetText(u"T:\\extra");  // its box isn't checked: that only enables it
  Start();
  EXPECT_EQ(Content(u"T:\\to\\a"), "1");
  EXPECT_EQ(Content(u"T:\\extra\\a"), "1");
  EXPECT_EQ(host.shell.recycled.size(), 1U);
}

TEST_F(CopyForm, TheBoxOnlyEnablesTheSecondFolder) {
  Open();
  EXPECT_FALSE(form().cbOut2.enabled());
  form().opNewFilesToNewFolder.UserClick();
  EXPECT_TRUE(form().cbOut2.enabled());
  form().opNewFilesToNewFolder.UserClick();
  EXPECT_FALSE(form().cbOut2.enabled());
  EXPECT_FALSE(form().cbFileList.enabled());
  form().opFileList.UserClick();
  form().pbOpenFileList.UserClick();
  EXPECT_FALSE(form().cbFileList.enabled());
}

TEST_F(CopyForm, TheFolderButtonAddsAndSaves) {
  Open();
  front.folder_answers.push_back(u"T:\\picked");
  form().pbDest.UserClick();
  EXPECT_EQ(form().cbOut.text(), u"T:\\picked");
  EXPECT_EQ(form().cbOut.items(), (std::vector<Text>{u"T:\\picked", u"T:\\picked"}));
  const auto saved = host.registry.Values(host::kLocalMachine, mdlMain::RecentPathKey).value();
  ASSERT_EQ(saved.size(), 1U);
  EXPECT_EQ(saved[0].name, u"T:\\picked");
  front.folder_answers.push_back(u"T:\\second");
  form().pbDest2.UserClick();
  EXPECT_EQ(form().cbOut2.text(), u"T:\\second");
}

TEST_F(CopyForm, ACancelledDialogLeavesABlankEntry) {
  Open();
  form().cbOut.Add(u"T:\\first");
  form().pbDest.UserClick();
  const Text blanks(260, u' ');
  EXPECT_EQ(form().cbOut.items(), (std::vector<Text>{u"T:\\first", blanks, u"T:\\first"}));
  EXPECT_EQ(form().cbOut.text(), u"T:\\first");
}

TEST_F(CopyForm, ScriptLinesReachTheJobInLowerCase) {
  host.files.AddFile(u"T:\\From\\A.TXT", "1");
  host.files.AddFile(u"T:\\From\\b.doc", "1");
  Play({u"FROM:T:\\From", u"To:T:\\Путь", u"PAT:*.Txt", u"Ntf:T:\\Extra", u"Shell:Calc /X Ы",
        u"unknown", u"", u"onlymiss"});
  EXPECT_EQ(CommandArgs, u"t:\\from");
  EXPECT_EQ(form().cbOut.text(), u"t:\\путь");
  EXPECT_EQ(form().cbMask.text(), u"*.txt");
  EXPECT_TRUE(form().opNewFilesToNewFolder.checked());
  EXPECT_TRUE(form().cbOut2.enabled());
  EXPECT_EQ(form().cbOut2.text(), u"t:\\extra");
  EXPECT_TRUE(form().cxOnlyMissed.checked());
  EXPECT_EQ(form().caption(), u"Завершено. Скопировано 1 файлов, ошибок 0");
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, u"calc /x ы");
  EXPECT_EQ(host.shell.started[0].window, host::WindowState::kNormal);
}

TEST_F(CopyForm, ScriptMovesWithAndWithoutTheBin) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Play({u"from:T:\\from", u"to:T:\\to", u"torecycle"});
  EXPECT_TRUE(host.files.Exists(u"T:\\from\\a"));
  forms::ForgetForms();
  Play({u"from:T:\\from", u"to:T:\\to", u"mov", u"torecycle"});
  EXPECT_EQ(host.shell.recycled.size(), 1U);
  forms::ForgetForms();
  host.files.AddFile(u"T:\\from\\b", "1");
  Play({u"from:T:\\from", u"to:T:\\to", u"MOV"});
  EXPECT_FALSE(host.files.Exists(u"T:\\from\\b"));
  EXPECT_EQ(host.shell.recycled.size(), 1U);
}

TEST_F(CopyForm, WordsMatchAsWholeLinesOnly) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Play({u"from:T:\\from", u"to:T:\\to", u"mov ", u"move", u" torecycle", u"onlymissed"});
  EXPECT_FALSE(form().cxMoveFiles.checked());
  EXPECT_FALSE(form().cxRemoveToRecycler.checked());
  EXPECT_FALSE(form().cxOnlyMissed.checked());
}

TEST_F(CopyForm, AScriptsTitleKeepsTheScriptsPathUntilTheJobEnds) {
  std::vector<Text> titles;
  front.on_yield = [&](int) { titles.push_back(form().caption()); };
  host.files.AddFile(u"T:\\from\\a", "1");
  Play({u"from:T:\\from", u"to:T:\\to"});
  ASSERT_FALSE(titles.empty());
  EXPECT_EQ(titles.front(), u"Копирование ... T:\\...\\Job.txt");
}

TEST_F(CopyForm, AScriptWithoutATargetTakesTheFirstEntryOrIsRefused) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Play({u"from:T:\\from", u"shell:x"});
  EXPECT_EQ(front.events.back().substr(0, 7), "message");
  EXPECT_EQ(host.shell.started.size(), 1U);
  EXPECT_TRUE(form().btStart.enabled());
  forms::ForgetForms();
  mdlMain::RecentPathKey = u"SOFTWARE\\Recent";
  host.registry.Write(host::kLocalMachine, mdlMain::RecentPathKey, u"T:\\recent", u"T:\\recent");
  Play({u"from:T:\\from"});
  EXPECT_TRUE(host.files.Exists(u"T:\\recent\\a"));
  forms::ForgetForms();
  Play({u"from:T:\\from", u"to:"});
  EXPECT_EQ(front.events.back().substr(0, 7), "message");
}

TEST_F(CopyForm, AFileListComesInByAScript) {
  host.files.AddFile(u"T:\\from\\a", "123456789");
  host.files.AddFile(u"T:\\l.qlx", "T:\\else\\x\r\n-1567561609");
  Play({u"from:T:\\from", u"to:T:\\to", u"filelist: T:\\l.qlx "});
  EXPECT_EQ(Content(u"T:\\else\\x"), "123456789");
}

TEST_F(CopyForm, TheShellCommandRunsOnlyAfterTheJob) {
  host.files.AddFile(u"T:\\from\\a", "1");
  front.on_yield = [&](int) { EXPECT_TRUE(host.shell.started.empty()); };
  Play({u"shell:x", u"from:T:\\from", u"to:T:\\to"});
  EXPECT_EQ(host.shell.started.size(), 1U);
}

TEST_F(CopyForm, ClosingEndsTheProcessAlsoInTheMiddleOfAJob) {
  host.files.AddFile(u"T:\\from\\a", "1");
  host.files.AddFile(u"T:\\from\\b", "1");
  Open();
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kClosed);
  forms::ForgetForms();
  Open();
  front.on_yield = [&](int) {
    if (host.files.Exists(u"T:\\to\\a")) form().UserClose();
  };
  EXPECT_EQ(Start(), forms::EndReason::kClosed);
  EXPECT_FALSE(host.files.Exists(u"T:\\to\\b"));
}

}  // namespace
}  // namespace orvik
