#include "copying/frm_main.h"
#include "forms/instance.h"
#include "startup/commands.h"
#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

class CopyScript : public test::ProgramTest {
 protected:
  void Play(const std::string& script) {
    host.files.AddFile(u"T:\\job.txt", script);
    ending = Run(u"/SYF T:\\job.txt");
  }
  frmMain& form() { return forms::The<frmMain>(); }
  bool Shown() const { return !forms::LoadedForms().empty(); }
  std::optional<forms::EndReason> ending;
};

TEST_F(CopyScript, AMissingScriptIsRefused) {
  Run(u"/SYF T:\\none.txt");
  EXPECT_EQ(front.events, (std::vector<std::string>{
                              "message File not found|zKelmar's Orvik  v 0.9.8.3 FN|critical|ok"}));
  EXPECT_FALSE(host.files.Exists(u"T:\\none.txt"));
}

TEST_F(CopyScript, AQuotedPathIsNotFound) {
  host.files.AddFile(u"T:\\job.txt", "foldercopy\r\n\r\n");
  Run(u"/SYF \"T:\\job.txt\"");
  EXPECT_EQ(front.events.size(), 1U);
  EXPECT_FALSE(Shown());
}

TEST_F(CopyScript, FewerThanThreeLinesAreWrong) {
  for (const char* script : {"foldercopy", "foldercopy\r\nto:T:\\x", "FolderCopy\nto:x\nmov"}) {
    front.events.clear();
    Play(script);
    if (std::string(script).find("\r\n") == std::string::npos &&
        std::string(script).find('\n') != std::string::npos) {
      EXPECT_TRUE(front.events.empty()) << script;  // one line, and not the word
    } else {
      EXPECT_EQ(front.events,
                (std::vector<std::string>{
                    "message Wrong parameters|zKelmar's Orvik  v 0.9.8.3 FN|critical|ok"}))
          << script;
    }
    EXPECT_FALSE(Shown());
  }
}

TEST_F(CopyScript, AnotherFirstWordIsSilence) {
  for (const char* script : {"", "copy\r\nto:x\r\nmov", "foldercopy \r\na\r\nb", "\r\n\r\n\r\n"}) {
    Play(script);
    EXPECT_TRUE(front.events.empty()) << script;
    EXPECT_EQ(ending, std::nullopt);
    EXPECT_FALSE(Shown());
  }
}

TEST_F(CopyScript, ExactlyThreeLinesGetAFourthWithoutEffect) {
  host.files.AddFile(u"T:\\from\\a.txt", "1");
  Play("FolderCopy\r\nfrom:T:\\from\r\nto:T:\\to");
  EXPECT_EQ(ScriptLines.size(), 4U);
  EXPECT_EQ(ScriptLines.back(), u"*.*");
  EXPECT_EQ(form().caption(), u"Завершено. Скопировано 1 файлов, ошибок 0");
}

TEST_F(CopyScript, MoreLinesStayAsTheyAre) {
  Play("foldercopy\r\n\r\n\r\n");
  EXPECT_EQ(ScriptLines.size(), 4U);
}

TEST_F(CopyScript, AnyBytesAreReadWithoutHarm) {
  std::string bytes = "foldercopy\r\n";
  for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<char>(i));
  Play(bytes + "\r\nto:\r\n");
  EXPECT_TRUE(Shown());
  EXPECT_EQ(front.events.back().substr(0, 7), "message");  // no target
}

}  // namespace
}  // namespace orvik::mdlMain
