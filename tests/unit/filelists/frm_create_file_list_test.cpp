#include "filelists/frm_create_file_list.h"

#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class CreateFileList : public test::ProgramTest {
 protected:
  CreateFileList() { host.files.AddFolder(u"T:\\d"); }
  void Create(std::optional<Text> name = u"T:\\l.qlx") {
    front.file_answers.push_back(std::move(name));
    Run(u"/CRL T:\\d");
  }
  frmCreateFileList& form() { return forms::The<frmCreateFileList>(); }
  std::vector<std::string> Captions() {
    std::vector<std::string> captions;
    for (const std::string& change : front.changes) {
      const std::string head = "frmCreateFileList.frMain.caption ";
      if (change.starts_with(head)) captions.push_back(change.substr(head.size()));
    }
    return captions;
  }
};

TEST_F(CreateFileList, ALineAFileInTheWalksOrder) {
  host.files.AddFile(u"T:\\d\\sub\\b", "123456789");
  host.files.AddFile(u"T:\\d\\Ы.txt");
  host.files.AddFile(u"T:\\d\\c", std::string(2000, 'a'));
  Create();
  EXPECT_EQ(host.files.Content(u"T:\\l.qlx"),
            "T:\\d\\\xDB.txt;0\r\nT:\\d\\c;537835939\r\nT:\\d\\sub\\b;-1567561609\r\n");
  EXPECT_EQ(front.events, (std::vector<std::string>{"show frmCreateFileList",
                                                    "save Orvik FileList *.qlx|*.qlx"}));
}

TEST_F(CreateFileList, CaptionsTellThePhaseAndOneLessThanTheCount) {
  for (int i = 0; i < 12; ++i) {
    host.files.AddFile(u"T:\\d\\" + FromUtf8(std::to_string(i)), "x");
  }
  Create();
  EXPECT_EQ(Captions(), (std::vector<std::string>{"Обзор файлов каталога ...",
                                                  "Найдено  11 файлов. Создание контрольных сумм",
                                                  "Завершено."}));
  EXPECT_EQ(form().pbMain.max(), 11);
  EXPECT_EQ(form().pbMain.value(), 11);
  EXPECT_EQ(front.repaints, 2);  // at 1 and at 11
}

TEST_F(CreateFileList, AnEmptyFolderGivesAnEmptyList) {
  Create();
  EXPECT_EQ(Captions()[1], "Найдено -1 файлов. Создание контрольных сумм");
  EXPECT_TRUE(host.files.Exists(u"T:\\l.qlx"));
  EXPECT_EQ(host.files.Content(u"T:\\l.qlx"), "");
  EXPECT_EQ(form().pbMain.value(), 0);
}

TEST_F(CreateFileList, OneFileLeavesTheBar) {
  host.files.AddFile(u"T:\\d\\a", "x");
  Create();
  EXPECT_EQ(form().pbMain.max(), 100);
  EXPECT_EQ(form().pbMain.value(), 0);
}

TEST_F(CreateFileList, ACancelLeavesTheFormWaiting) {
  Create(std::nullopt);
  EXPECT_EQ(form().frMain.caption(), u"Ожидание ...");
  EXPECT_TRUE(form().visible());
}

TEST_F(CreateFileList, AReadOnlyListIsReplaced) {
  host.files.AddFile(u"T:\\l.qlx", "old", host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\d\\a;b", "A");
  Create();
  EXPECT_EQ(host.files.Content(u"T:\\l.qlx"), "T:\\d\\a;b;-1464111941\r\n");
}

TEST_F(CreateFileList, AListThatCannotBeWrittenIsSilent) {
  host.files.AddFile(u"T:\\d\\a", "x");
  Create(u"T:\\none\\l.qlx");
  EXPECT_EQ(form().frMain.caption(), u"Завершено.");
  front.file_answers.push_back(u"T:\\d");  // a folder
}

TEST_F(CreateFileList, AFileThatVanishesHasTheChecksumZero) {
  host.files.AddFile(u"T:\\d\\a", "x");
  front.on_yield = [&](int) {
    if (front.yields > 8) host.files.Take(u"T:\\d\\a");
  };
  Create();
  EXPECT_EQ(host.files.Content(u"T:\\l.qlx"), "T:\\d\\a;0\r\n");
}

}  // namespace
}  // namespace orvik
