#include "cleaning/frm_empty_folders.h"

#include "cleaning/empty_folders.h"
#include "copying/frm_main.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class EmptyFolders : public test::ProgramTest {
 protected:
  frmEmptyFolders& form() { return forms::The<frmEmptyFolders>(); }
  std::vector<Text> Entries() {
    std::vector<Text> entries;
    for (int i = 0; i < form().lbMain.count(); ++i) entries.push_back(form().lbMain.Item(i));
    return entries;
  }
  void Limit(const Text& text) {
    host.registry.Write(host::kLocalMachine, u"SOFTWARE\\Ib Tarn\\Orvik", u"EmptyFolderSize", text);
  }
  Text StoredLimit() {
    return mdlSupport::ReadRegValue(host::kLocalMachine, mdlMain::RegRootPath, u"EmptyFolderSize");
  }
  void Open() { ASSERT_EQ(Run(u"/EFD T:\\d"), std::nullopt); }
  void Key(int code, int shift = 0) { form().lbMain.UserKeyUp({code, shift}); }
};

TEST_F(EmptyFolders, EmptyIsAMatterOfBytes) {
  host.files.AddFile(u"T:\\d\\zero\\file");
  host.files.AddFile(u"T:\\d\\one\\file", "x");
  host.files.AddFolder(u"T:\\d\\none\\deeper");
  Open();
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\d\\zero", u"T:\\d\\none", u"T:\\d\\none\\deeper"}));
  EXPECT_EQ(form().caption(), u"Пустые папки директории T:\\d");
  EXPECT_EQ(form().frRights.caption(), mdlMain::ProgramTitle);
  EXPECT_EQ(form().fr01.caption(), u"Пустыми считать папки не более 00 кб");
  EXPECT_EQ(form().frFilesCount.caption(), u"");
}

TEST_F(EmptyFolders, ATreeThatIsEmptyBeginsWithItsRoot) {
  host.files.AddFolder(u"T:\\d\\a\\b");
  Open();
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\d", u"T:\\d\\a", u"T:\\d\\a\\b"}));
}

TEST_F(EmptyFolders, TheLimitIsInKilobytesAndIncluded) {
  host.files.AddFile(u"T:\\d\\fits\\f", std::string(1024, 'x'));
  host.files.AddFile(u"T:\\d\\not\\f", std::string(1025, 'x'));
  Limit(u"1");
  Open();
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\d\\fits"}));
  EXPECT_EQ(form().fr01.caption(), u"Пустыми считать папки не более 01 кб");
}

TEST_F(EmptyFolders, AnyTextIsALimit) {
  host.files.AddFolder(u"T:\\d\\a");
  Limit(u"abc");
  Open();
  EXPECT_EQ(Entries().size(), 2U);
  EXPECT_EQ(form().fr01.caption(), u"Пустыми считать папки не более 00 кб");
  forms::ForgetForms();
  Limit(u"120");
  Open();
  EXPECT_EQ(form().fr01.caption(), u"Пустыми считать папки не более 120 кб");
}

TEST_F(EmptyFolders, ALimitBeyond32BitsFindsNothing) {
  host.files.AddFolder(u"T:\\d\\a");
  Limit(u"2097152");
  Open();
  EXPECT_TRUE(Entries().empty());
}

TEST_F(EmptyFolders, AFileOf2GiBTakesWeightAway) {
  host.files.AddLargeFile(u"T:\\d\\film\\f", 0x80000000);
  host.files.AddFile(u"T:\\d\\x", "1");
  Open();
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\d", u"T:\\d\\film"}));
}

TEST_F(EmptyFolders, SizesOfOnePassAreThoseOfAddingUpFromScratch) {
  unsigned seed = 7;
  const auto random = [&](unsigned bound) {
    return ((seed = seed * 1103515245 + 12345) >> 16) % bound;
  };
  std::vector<Text> folders = {u"T:\\d"};
  host.files.AddFolder(u"T:\\d");
  for (int i = 0; i < 150; ++i) {
    const Text parent = folders[random(static_cast<unsigned>(folders.size()))];
    const Text name = parent + u"\\n" + FromUtf8(std::to_string(i));
    if (random(2) == 0) {
      host.files.AddFolder(name);
      folders.push_back(name);
    } else if (random(10) == 0) {
      host.files.AddLargeFile(name, 0x7FFFFF00LL * (1 + random(5)));
    } else {
      host.files.AddFile(name, std::string(random(3000), 'x'));
    }
  }
  const mdlSupport::TreeSizes sizes(u"T:\\d\\");
  for (const Text& folder : folders) {
    EXPECT_EQ(sizes.Of(folder), mdlSupport::GetTreeSize(folder)) << ToUtf8(folder);
  }
  EXPECT_EQ(mdlMain::FindEmptyFolders(u"T:\\d", 0x7FFFFFFF).size() > 1, true);
}

TEST_F(EmptyFolders, AFolderThatCannotBeReadWeighsNothing) {
  host.files.AddFile(u"T:\\d\\secret\\f", "123");
  host.files.AddFile(u"T:\\d\\x", "1");
  test::FaultyFileSystem faulty(host.files);
  faulty.fail_path = u"T:\\d\\secret";
  auto services = host.services();
  services.files = &faulty;
  host::Install(services);
  Open();
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\d\\secret"}));
}

TEST_F(EmptyFolders, WithoutAFolderOnlyTheLastDriveIsJudged) {
  host.files.AddDrive(u"Z:");
  host.files.AddFolder(u"T:\\d\\a");
  host.files.AddFolder(u"Z:\\z");
  EXPECT_EQ(mdlMain::FindEmptyFolders(u"", 0), (std::vector<Text>{u"Z:", u"Z:\\z"}));
}

TEST_F(EmptyFolders, TheArrowsHaveNoStop) {
  host.files.AddFolder(u"T:\\d\\a");
  Open();
  form().udSize.UserDown();
  EXPECT_EQ(StoredLimit(), u"1");
  EXPECT_EQ(form().fr01.caption(), u"Пустыми считать папки не более 01 кб");
  form().udSize.UserDown();
  EXPECT_EQ(StoredLimit(), u"0");
  form().udSize.UserUp();
  form().udSize.UserUp();
  EXPECT_EQ(StoredLimit(), u"2");
}

TEST_F(EmptyFolders, TheListStaysUntilF5) {
  host.files.AddFile(u"T:\\d\\a\\f", "x");
  Open();
  EXPECT_TRUE(Entries().empty());
  form().udSize.UserUp();
  EXPECT_TRUE(Entries().empty());
  Key(forms::kKeyF5, forms::kShift);
  EXPECT_EQ(Entries().size(), 2U);
}

TEST_F(EmptyFolders, TheCountRunsOneShort) {
  for (int count = 0; count <= 3; ++count) {
    const Text folder = u"T:\\d\\" + FromUtf8(std::to_string(count));
    host.files.AddFolder(folder);
    for (int i = 0; i < count; ++i)
      host.files.AddFile(folder + u"\\s\\" + FromUtf8(std::to_string(i)));
  }
  Open();
  const std::vector<Text> entries = Entries();
  const auto count_of = [&](const char16_t* name) {
    for (int i = 0; i < form().lbMain.count(); ++i) {
      if (form().lbMain.Item(i) == name) form().lbMain.UserClick(i);
    }
    return form().frFilesCount.caption();
  };
  EXPECT_EQ(count_of(u"T:\\d\\0"), u"Файлов в выделенном каталоге 0");
  EXPECT_EQ(count_of(u"T:\\d\\1"), u"Файлов в выделенном каталоге 1");
  EXPECT_EQ(count_of(u"T:\\d\\2"), u"Файлов в выделенном каталоге 1");
  EXPECT_EQ(count_of(u"T:\\d\\3"), u"Файлов в выделенном каталоге 2");
  EXPECT_EQ(Entries(), entries);
}

TEST_F(EmptyFolders, WithoutACurrentEntryNothingHappens) {
  Open();
  form().frFilesCount.SetCaption(u"before");
  form().lbMain.UserMouse(true, {});
  EXPECT_EQ(form().frFilesCount.caption(), u"before");
  form().lbMain.UserDoubleClick();
  EXPECT_TRUE(host.shell.started.empty());
}

TEST_F(EmptyFolders, ADoubleClickOpensTheFolder) {
  host.files.AddFolder(u"T:\\d");
  Open();
  form().lbMain.UserSelect({0});
  form().lbMain.UserDoubleClick();
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, u"Explorer T:\\d");
  EXPECT_EQ(host.shell.started[0].window, host::WindowState::kNormal);
}

TEST_F(EmptyFolders, DeletionAsksAndLooksAfterwards) {
  host.files.AddFolder(u"T:\\d\\a\\b\\c");
  host.files.AddFile(u"T:\\d\\x", "1");
  Open();
  form().lbMain.UserSelect({0});
  front.message_answers.push_back(forms::Answer::kYes);
  Key(forms::kKeyDelete, forms::kShift);
  EXPECT_EQ(front.events.back(),
            "message Действительно удалить выделенные каталоги|Казнь папок|question|yesno");
  EXPECT_EQ(Entries(), (std::vector<Text>{u"Удален T:\\d\\a", u"T:\\d\\a\\b", u"T:\\d\\a\\b\\c"}));
  // Once more: nothing is found, and the text is put in front again.
  front.message_answers.push_back(forms::Answer::kYes);
  Key(forms::kKeyDelete);
  EXPECT_EQ(Entries()[0], u"Удален Удален T:\\d\\a");
}

TEST_F(EmptyFolders, AllSelectedAllReadAsRemoved) {
  host.files.AddFolder(u"T:\\d\\a\\b");
  host.files.AddFile(u"T:\\d\\x", "1");
  Open();
  Key(forms::kKeyA, forms::kCtrl);
  front.message_answers.push_back(forms::Answer::kYes);
  Key(forms::kKeyDelete);
  EXPECT_EQ(Entries(), (std::vector<Text>{u"Удален T:\\d\\a", u"Удален T:\\d\\a\\b"}));
}

TEST_F(EmptyFolders, AFolderThatStaysSaysSo) {
  host.files.AddFolder(u"T:\\d\\a", host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\d\\x", "1");
  Open();
  Key(forms::kKeyA, forms::kCtrl);
  front.message_answers.push_back(forms::Answer::kYes);
  Key(forms::kKeyDelete);
  EXPECT_EQ(Entries(), (std::vector<Text>{u"Нет доступа к T:\\d\\a"}));
}

TEST_F(EmptyFolders, AnyAnswerButYesLeavesAll) {
  host.files.AddFolder(u"T:\\d\\a");
  Open();
  Key(forms::kKeyA, forms::kCtrl);
  Key(forms::kKeyDelete);
  EXPECT_TRUE(host.files.Exists(u"T:\\d\\a"));
  EXPECT_EQ(Entries()[1], u"T:\\d\\a");
}

TEST_F(EmptyFolders, CtrlAIsExactlyThat) {
  host.files.AddFolder(u"T:\\d\\a");
  Open();
  Key(forms::kKeyA, forms::kCtrl | forms::kShift);
  EXPECT_FALSE(form().lbMain.Selected(0));
  Key(forms::kKeyA, forms::kCtrl);
  EXPECT_TRUE(form().lbMain.Selected(0));
  EXPECT_TRUE(form().lbMain.Selected(1));
}

TEST_F(EmptyFolders, TheTimerTellsTheLastFolderOnceThereIsOne) {
  host.files.AddFolder(u"T:\\d\\a");
  host.files.AddFile(u"T:\\d\\f", "1");
  std::vector<Text> shown;
  front.on_yield = [&](int) {
    if (!form().clInfo.active()) return;
    form().clInfo.Fire();
    shown.push_back(form().lbMain.Item(0));
  };
  Open();
  ASSERT_GE(shown.size(), 2U);
  EXPECT_EQ(shown.front(), u"Обработка ...");
  EXPECT_EQ(shown.back(), u"Обработка ... T:\\d\\a");
  EXPECT_FALSE(form().clInfo.active());
}

TEST_F(EmptyFolders, ASecondSearchInsideTheFirst) {
  host.files.AddFolder(u"T:\\d\\a");
  bool nested = false;
  front.on_yield = [&](int yield) {
    if (yield < 5 || nested) return;
    nested = true;
    Key(forms::kKeyF5);
  };
  Open();
  EXPECT_TRUE(nested);
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\d", u"T:\\d\\a"}));
}

TEST_F(EmptyFolders, ClosingEndsTheProcessAlsoInTheMiddle) {
  host.files.AddFolder(u"T:\\d\\a");
  front.on_yield = [&](int yield) {
    if (yield == 4) form().UserClose();
  };
  EXPECT_EQ(Run(u"/EFD T:\\d"), forms::EndReason::kShutdown);
}

TEST_F(EmptyFolders, ACopyJobHandsOver) {
  host.files.AddFolder(u"T:\\from\\empty");
  host.files.AddFile(u"T:\\from\\a", "1");
  Run(u"/SCH T:\\from");
  auto& copy = forms::The<frmMain>();
  copy.cbOut.UserType(u"T:\\to");
  copy.cxAfterEmptyFolderCheck.UserClick();
  test::Ending([&] { copy.btStart.UserClick(); });
  EXPECT_EQ(copy.caption(), u"Завершено. Скопировано 1 файлов, ошибок 0");
  EXPECT_FALSE(copy.clExit.active());
  EXPECT_EQ(Entries(), (std::vector<Text>{u"T:\\from\\empty"}));
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kShutdown);
}

}  // namespace
}  // namespace orvik
