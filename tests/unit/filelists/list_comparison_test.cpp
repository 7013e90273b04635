#include "filelists/frm_crc.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class ListComparison : public test::ProgramTest {
 protected:
  frmCRC& form() { return forms::The<frmCRC>(); }
  // A row in short: colour, text, sub-items.
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int position = 1; position <= form().lvMain.count(); ++position) {
      const auto& row = form().lvMain.At(position);
      std::string line = row.color == 32768 ? "green " : row.color == 255 ? "red " : "none ";
      line += ToUtf8(row.text);
      for (const auto& sub : row.sub) line += "|" + ToUtf8(sub.text);
      rows.push_back(line);
    }
    return rows;
  }
  std::optional<forms::EndReason> Compare(const std::string& chosen, const std::string& args) {
    forms::ForgetForms();
    front.events.clear();
    host.files.AddFile(u"T:\\chosen.qlx", chosen);
    host.files.AddFile(u"T:\\d\\args.qlx", args);
    front.file_answers.push_back(u"T:\\chosen.qlx");
    return Run(u"/CML T:\\d\\args.qlx");
  }
};

TEST_F(ListComparison, TwoListsOfOneFolderAreAllGreen) {
  Compare("X:\\a;1\r\nX:\\b;-2\r\n", "X:\\a;1\r\nX:\\b;-2\r\n");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"green X:\\a|1|1", "green X:\\b|-2|-2"}));
  EXPECT_EQ(form().caption(), u"zKelmar's Orvik  v 0.9.8.3 FN -  Сравнение файлов из Файл-Листов");
  EXPECT_EQ(front.events,
            (std::vector<std::string>{"open Файл-Лист Orvik *.qlx|*.qlx", "show frmCRC"}));
}

TEST_F(ListComparison, HeadsStandOppositeToTheData) {
  Compare("X:\\a;1\r\nX:\\z;0\r\n", "X:\\a;2\r\nX:\\z;0\r\n");
  EXPECT_EQ(form().lvMain.columns()[0].text, u"Файл из Файл-Листа");
  EXPECT_EQ(form().lvMain.columns()[1].text, u"T:\\...\\args.qlx");
  EXPECT_EQ(form().lvMain.columns()[2].text, u"T:\\chosen.qlx");
  EXPECT_EQ(form().lvMain.columns()[2].width, 2000);
  EXPECT_EQ(Rows()[0], "red X:\\a|1|2");  // the chosen list's value comes first
}

TEST_F(ListComparison, WidthOfTheFirstColumnFollowsTheFormOnceItShows) {
  Compare("X:\\a;1\r\n", "X:\\a;1\r\n");
  EXPECT_EQ(form().lvMain.columns()[0].width, form().width() - 4600);
}

TEST_F(ListComparison, LonelyFilesAreRedWithOneColumn) {
  Compare("X:\\only chosen;1\r\nX:\\z;0\r\n", "X:\\only args;2\r\nX:\\z;0\r\n");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"red X:\\only chosen|1", "green X:\\z|0|0",
                                              "red X:\\only args|2"}));
}

// The empty element behind the last line end looks at the last file's row once more.
TEST_F(ListComparison, TheLastFileOfTheChosenListIsAlwaysGreen) {
  Compare("X:\\a;1\r\n", "X:\\a;2\r\nX:\\b;3\r\n");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"green X:\\a|1|2", "green X:\\b|3"}));
  Compare("X:\\a;1\r\n", "X:\\b;3\r\nX:\\a;2\r\n");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"green X:\\a|1|2", "red X:\\b|3"}));
}

TEST_F(ListComparison, WithoutAFinalLineEndTheLastIsLikeTheOthers) {
  Compare("X:\\a;1", "X:\\a;2");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"red X:\\a|1|2"}));
}

TEST_F(ListComparison, ChecksumsCompareAsTexts) {
  Compare("X:\\a;0\r\nX:\\z;1\r\n", "X:\\a;00\r\nX:\\z;1\r\n");
  EXPECT_EQ(Rows()[0], "red X:\\a|0|00");
}

TEST_F(ListComparison, OneAndTheSameListTakesOnePass) {
  host.files.AddFile(u"T:\\l.qlx", "X:\\a;1\r\nX:\\b;2\r\n");
  front.file_answers.push_back(u"T:\\l.qlx");
  Run(u"/CML T:\\l.qlx");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"red X:\\a|1", "green X:\\b|2"}));
}

TEST_F(ListComparison, ANameTwiceInOneListPairsWithItself) {
  Compare("X:\\1\\n;5\r\nX:\\2\\N;5\r\nX:\\3\\n;6\r\nX:\\z;0\r\n", "X:\\z;0\r\n");
  EXPECT_EQ(Rows()[0], "green X:\\1\\n|5|5");
}

TEST_F(ListComparison, LinesWithoutSeparatorAndWithMore) {
  Compare("X:\\a\r\nX:\\b;c;7\r\nX:\\z;0\r\n", "X:\\a;1\r\nX:\\b;c;7\r\nX:\\z;0\r\n");
  EXPECT_EQ(Rows(),
            (std::vector<std::string>{"green X:\\a|1", "green X:\\b|c|c", "green X:\\z|0|0"}));
}

// A row without a path doesn't count as one that is there: it never pairs and stays red, even as
// the last of the chosen list.
TEST_F(ListComparison, ARowWithoutAPathNeverPairs) {
  Compare(";1\r\n;1\r\n", "X:\\a;1\r\n;1\r\nX:\\z;0\r\n");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"red |1", "red X:\\a|1", "green X:\\z|0"}));
}

TEST_F(ListComparison, ACancelledDialogEndsWithAMessage) {
  host.files.AddFile(u"T:\\l.qlx", "X:\\a;1\r\n");
  EXPECT_EQ(Run(u"/CML T:\\l.qlx"), forms::EndReason::kShutdown);
  EXPECT_EQ(front.events.back(),
            "message Папка не определена|zKelmar's Orvik  v 0.9.8.3 FN|information|ok");
}

TEST_F(ListComparison, AnEmptyListEndsWithItsName) {
  EXPECT_EQ(Compare("", "X:\\a;1\r\n"), forms::EndReason::kShutdown);
  EXPECT_EQ(front.events.back(),
            "message Файл-Лист T:\\chosen.qlx пуст|zKelmar's Orvik  v 0.9.8.3 FN|information|ok");
  EXPECT_EQ(Compare("X:\\a;1\r\n", ""), forms::EndReason::kShutdown);
  EXPECT_EQ(front.events.back(),
            "message Файл-Лист T:\\d\\args.qlx пуст|zKelmar's Orvik  v 0.9.8.3 FN|information|ok");
}

TEST_F(ListComparison, AMissingListOfTheCommandIsMadeEmptyAndRefused) {
  host.files.AddFile(u"T:\\chosen.qlx", "X:\\a;1\r\n");
  front.file_answers.push_back(u"T:\\chosen.qlx");
  EXPECT_EQ(Run(u"/CML T:\\new.qlx"), forms::EndReason::kShutdown);
  EXPECT_TRUE(host.files.Exists(u"T:\\new.qlx"));
}

TEST_F(ListComparison, AFolderIsAnEmptyList) {
  host.files.AddFolder(u"T:\\folder.qlx");
  host.files.AddFile(u"T:\\l.qlx", "X:\\a;1\r\n");
  front.file_answers.push_back(u"T:\\folder.qlx");
  EXPECT_EQ(Run(u"/CML T:\\l.qlx"), forms::EndReason::kShutdown);
  EXPECT_EQ(front.events.back(),
            "message Файл-Лист T:\\folder.qlx пуст|zKelmar's Orvik  v 0.9.8.3 FN|information|ok");
}

TEST_F(ListComparison, OneLineWithoutAnEnd) {
  Compare("X:\\a", "X:\\a;1");
  EXPECT_EQ(Rows(), (std::vector<std::string>{"green X:\\a|1"}));
}

TEST_F(ListComparison, RepaintsAtEveryLineButEachFiftieth) {
  std::string list;
  for (int i = 0; i < 100; ++i) list += "X:\\" + std::to_string(i) + ";1\r\n";
  front.repaints = 0;
  Compare(list, "X:\\a;1");
  EXPECT_EQ(front.repaints, 101 - 3);  // 0, 50 and 100 of 101 elements; one line of the other list
}

TEST_F(ListComparison, AnyBytesAndLongLines) {
  const std::string noise = std::string(100000, ';') + "\r\n" + std::string(100000, 'x') +
                            "\r\n;\r\n\r\n\xFF\xFE;\xFD\r\n";
  Compare(noise, noise + noise);
  EXPECT_GE(form().lvMain.count(), 2);
}

}  // namespace
}  // namespace orvik
