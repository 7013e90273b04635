#include "filelists/cells.h"
#include "filelists/frm_crc.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

constexpr std::uint32_t kGreen = 32768;

class FolderComparison : public test::ProgramTest {
 protected:
  FolderComparison() {
    host.files.AddFolder(u"T:\\A");
    host.files.AddFolder(u"T:\\B");
  }
  frmCRC& form() { return forms::The<frmCRC>(); }
  // A row in short: text, sub-items, and a star where it is green.
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int position = 1; position <= form().lvMain.count(); ++position) {
      const auto& row = form().lvMain.At(position);
      std::string line = ToUtf8(row.text);
      for (const auto& sub : row.sub) line += " | " + ToUtf8(sub.text);
      rows.push_back(line + (row.color == kGreen ? " *" : ""));
    }
    return rows;
  }
  std::optional<forms::EndReason> Compare() {
    front.folder_answers.push_back(u"T:\\B");
    return Run(u"/CPR T:\\A");
  }
};

TEST(Cells, SignAndLetter) {
  EXPECT_EQ(mdlMain::OneFolderCell(-1567561609, 1500), u"-x1567561609/1kb");
  EXPECT_EQ(mdlMain::TwoFolderCell(-1567561609, 1500), u"x-1567561609/1kb");
  EXPECT_EQ(mdlMain::OneFolderCell(123, 12345), u"x123/12kb");
  EXPECT_EQ(mdlMain::TwoFolderCell(123, 1023), u"x123/0kb");
  EXPECT_EQ(mdlMain::OneFolderCell(0, 0), u"x/0kb");
  EXPECT_EQ(mdlMain::TwoFolderCell(0, 0), u"x/0kb");
}

TEST_F(FolderComparison, TheViewOfOneFolder) {
  host.files.AddFile(u"T:\\A\\n", "123456789");
  host.files.AddFile(u"T:\\A\\s\\n", "123456789");
  Run(u"/CRC T:\\A");
  EXPECT_EQ(form().caption(),
            u"zKelmar's Orvik  v 0.9.8.3 FN -  Контрольные суммы файлов каталога T:\\...\\A");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"T:\\A\\n | -x1567561609/0kb",
                                              "T:\\A\\s\\n | -x1567561609/0kb"}));
  EXPECT_EQ(form().lvMain.column_count(), 2);
  EXPECT_EQ(form().sbMain.text(), u"");
  EXPECT_EQ(mdlMain::CommandArgs, u"T:\\A\\");
  EXPECT_EQ(form().lvMain.At(1).key, u"");
}

TEST_F(FolderComparison, WorkIsShownMeanwhile) {
  host.files.AddFile(u"T:\\A\\n");
  std::string first;
  front.on_yield = [&](int) {
    if (first.empty()) first = Rows().at(0);
  };
  Run(u"/CRC T:\\A");
  EXPECT_EQ(first, "Обработка ...");
}

TEST_F(FolderComparison, TheOneFolderJobYieldsAtEveryTenthRow) {
  for (int i = 0; i < 11; ++i) host.files.AddFile(u"T:\\A\\" + FromUtf8(std::to_string(i)));
  int while_filling = 0;
  front.on_yield = [&](int) {
    if (form().lvMain.count() > 0 && form().lvMain.At(1).text != u"Обработка ...") ++while_filling;
  };
  Run(u"/CRC T:\\A");
  EXPECT_EQ(while_filling, 2);  // behind rows 0 and 10
}

TEST_F(FolderComparison, EqualFoldersAreAllGreen) {
  for (const char16_t* path : {u"T:\\A\\x", u"T:\\B\\x", u"T:\\A\\s\\y", u"T:\\B\\s\\y"}) {
    host.files.AddFile(path, "123456789");
  }
  Compare();
  EXPECT_EQ(form().caption(), u"zKelmar's Orvik  v 0.9.8.3 FN -  Сравнение с каталогом T:\\...\\B");
  EXPECT_EQ(Rows(),
            (std::vector<std::string>{"T:\\A\\x | x-1567561609/0kb | x-1567561609/0kb *",
                                      "T:\\A\\s\\y | x-1567561609/0kb | x-1567561609/0kb *"}));
  EXPECT_EQ(form().sbMain.text(), u"Обработано 4 файлов");
  EXPECT_EQ(form().lvMain.columns()[2].text, u"CRC (Fast method)");
  EXPECT_EQ(form().lvMain.columns()[2].width, 2000);
  EXPECT_EQ(form().lvMain.columns()[0].width, 5000);
}

TEST_F(FolderComparison, DifferencesAndLonelyFiles) {
  host.files.AddFile(u"T:\\A\\both", "A");
  host.files.AddFile(u"T:\\B\\both", "123456789");
  host.files.AddFile(u"T:\\A\\first", "A");
  host.files.AddFile(u"T:\\B\\deep\\second", "A");
  Compare();
  EXPECT_EQ(Rows(), (std::vector<std::string>{"T:\\A\\both | x-1464111941/0kb | x-1567561609/0kb",
                                              "T:\\A\\first | x-1464111941/0kb",
                                              "T:\\B\\deep\\second |  | x-1464111941/0kb"}));
}

TEST_F(FolderComparison, PairsAreMadeByBareNamesWithoutLetterCase) {
  host.files.AddFile(u"T:\\A\\one\\X.txt", "A");
  host.files.AddFile(u"T:\\B\\two\\x.TXT", "A");
  Compare();
  EXPECT_EQ(Rows().size(), 1U);
  EXPECT_EQ(form().lvMain.At(1).color, kGreen);
}

// The size in the second cell is that of the first folder's file at the same place in its walk.
TEST_F(FolderComparison, TheSizeComesFromTheFirstFolder) {
  host.files.AddFile(u"T:\\A\\big", std::string(5000, 'a'));
  host.files.AddFile(u"T:\\A\\small", "A");
  host.files.AddFile(u"T:\\B\\small", "A");
  Compare();
  EXPECT_EQ(Rows()[1], "T:\\A\\small | x-1464111941/0kb | x-1464111941/4kb");
}

TEST_F(FolderComparison, ANameTwiceInTheFirstFolderCostsTheRowsBehindTheirCells) {
  host.files.AddFile(u"T:\\A\\a\\x", "A");
  host.files.AddFile(u"T:\\A\\b\\x", "A");
  host.files.AddFile(u"T:\\A\\c\\y", "A");
  host.files.AddFile(u"T:\\B\\y", "other");
  Compare();
  ASSERT_EQ(Rows().size(), 2U);
  EXPECT_EQ(Rows()[0], "T:\\A\\a\\x | x-1464111941/0kb");
  // One cell is missing, the comparison fails, and failing it turns green.
  EXPECT_EQ(Rows()[1].substr(0, 12), "T:\\A\\c\\y | x");
  EXPECT_EQ(form().lvMain.At(2).color, kGreen);
}

TEST_F(FolderComparison, BehindTheEndOfTheFirstListThereAreNoCells) {
  host.files.AddFile(u"T:\\A\\z", "A");
  host.files.AddFile(u"T:\\B\\new1", "A");
  host.files.AddFile(u"T:\\B\\new2", "A");
  host.files.AddFile(u"T:\\B\\z", "other");
  Compare();
  EXPECT_EQ(Rows(),
            (std::vector<std::string>{"T:\\A\\z | x-1464111941/0kb *",
                                      "T:\\B\\new1 |  | x-1464111941/0kb", "T:\\B\\new2 | "}));
}

TEST_F(FolderComparison, ANameTwiceInTheSecondFolderAddsAFurtherSubItem) {
  host.files.AddFile(u"T:\\A\\x", "A");
  host.files.AddFile(u"T:\\A\\y", "A");
  host.files.AddFile(u"T:\\B\\a\\x", "A");
  host.files.AddFile(u"T:\\B\\b\\x", "other");
  Compare();
  EXPECT_EQ(form().lvMain.At(1).sub.size(), 3U);
  EXPECT_EQ(form().lvMain.At(1).color, kGreen);
}

TEST_F(FolderComparison, EmptyFolders) {
  host.files.AddFile(u"T:\\B\\x", "A");
  Compare();
  EXPECT_EQ(Rows(), (std::vector<std::string>{"T:\\B\\x | "}));
  EXPECT_EQ(form().sbMain.text(), u"Обработано 1 файлов");
}

TEST_F(FolderComparison, AMissingFolderEndsTheProcess) {
  front.folder_answers.push_back(u"T:\\none");
  EXPECT_EQ(Run(u"/CPR T:\\A"), forms::EndReason::kShutdown);
  forms::ForgetForms();
  front.folder_answers.push_back(u"T:\\B");
  EXPECT_EQ(Run(u"/CPR T:\\none"), forms::EndReason::kShutdown);
  forms::ForgetForms();
  front.events.clear();
  EXPECT_EQ(Run(u"/CPR T:\\A"), forms::EndReason::kShutdown);  // cancelled
  EXPECT_EQ(form().caption(), u"Контрольные суммы");
  EXPECT_EQ(front.events, (std::vector<std::string>{"browse Выберите папку...", "show frmCRC"}));
}

TEST_F(FolderComparison, MoreThan24RowsMakeTheColumnsNarrower) {
  for (int i = 0; i < 24; ++i) host.files.AddFile(u"T:\\A\\" + FromUtf8(std::to_string(i)));
  Compare();
  EXPECT_EQ(form().lvMain.columns()[2].width, 2000);
  forms::ForgetForms();
  host.files.AddFile(u"T:\\A\\24");
  Compare();
  EXPECT_EQ(form().lvMain.columns()[0].width, 5000);
  EXPECT_EQ(form().lvMain.columns()[1].width, 1900);
  EXPECT_EQ(form().lvMain.columns()[2].width, 1900);
}

TEST_F(FolderComparison, AClickTellsTheLength) {
  host.files.AddFile(u"T:\\A\\x", "12345");
  host.files.AddFile(u"T:\\A\\gone", "12345");
  Run(u"/CRC T:\\A");
  form().lvMain.UserClick(1);
  EXPECT_EQ(form().sbMain.text(), u"T:\\A\\x - 5 Байт");
  host.files.Take(u"T:\\A\\gone");
  form().lvMain.UserClick(2);
  EXPECT_EQ(form().sbMain.text(), u"T:\\A\\x - 5 Байт");
}

TEST_F(FolderComparison, CtrlASelectsDefaultRowsButTheLast) {
  for (const char16_t* path : {u"T:\\A\\1", u"T:\\A\\2", u"T:\\A\\3"}) host.files.AddFile(path);
  Run(u"/CRC T:\\A");
  form().lvMain.SetColor(1, kGreen);
  form().lvMain.UserKeyDown({forms::kKeyA, forms::kCtrl});
  EXPECT_FALSE(form().lvMain.At(1).selected);
  EXPECT_TRUE(form().lvMain.At(2).selected);
  EXPECT_FALSE(form().lvMain.At(3).selected);
  form().lvMain.SetSelected(2, false);
  form().lvMain.UserKeyDown({forms::kKeyA, forms::kCtrl | forms::kShift});
  EXPECT_FALSE(form().lvMain.At(2).selected);
}

TEST_F(FolderComparison, TheListFollowsTheForm) {
  Run(u"/CRC T:\\A");
  form().UserResize(12000, 8000);
  EXPECT_EQ(form().lvMain.bounds().width, 12000 - 105);
  EXPECT_EQ(form().lvMain.bounds().height, 8000 - 480 - form().sbMain.bounds().height);
  EXPECT_EQ(form().lvMain.columns()[0].width, 12000 - 4600);
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kShutdown);
}

}  // namespace
}  // namespace orvik
