#include "monitors/frm_file_lock.h"

#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class FileLock : public test::ProgramTest {
 protected:
  frmFileLock& form() { return forms::The<frmFileLock>(); }
  void Open(const Text& path) { ASSERT_EQ(Run(u"/LCK " + path), std::nullopt); }
};

TEST_F(FileLock, ShowsThePathInFull) {
  host.files.AddFile(u"T:\\a\\b\\c.txt", "content");
  Open(u"T:\\a\\b\\c.txt");
  EXPECT_EQ(form().caption(), Text(mdlMain::ProgramTitle) + u" - Блокирование файла");
  EXPECT_EQ(form().frMain.caption(), u"T:\\a\\b\\c.txt");
  EXPECT_EQ(host.files.Content(u"T:\\a\\b\\c.txt"), "content");
}

TEST_F(FileLock, HoldsTheFileUntilTheFormGoes) {
  host.files.AddFile(u"T:\\a", "content");
  Open(u"T:\\a");
  EXPECT_FALSE(host.files.DeleteFile(u"T:\\a"));
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kShutdown);
  EXPECT_TRUE(host.files.DeleteFile(u"T:\\a"));
}

TEST_F(FileLock, AMissingFileIsMadeEmpty) {
  Open(u"T:\\new");
  EXPECT_TRUE(host.files.Exists(u"T:\\new"));
  EXPECT_EQ(host.files.Content(u"T:\\new"), "");
}

TEST_F(FileLock, AFileThatCantBeHeldIsShownAllTheSame) {
  host.files.AddFolder(u"T:\\folder");
  for (const Text& path : {Text(u"T:\\folder"), Text(u"Q:\\x"), Text()}) {
    Open(path);
    EXPECT_EQ(form().frMain.caption(), path);
    EXPECT_TRUE(form().visible());
    forms::ForgetForms();
  }
  EXPECT_EQ(front.events, (std::vector<std::string>(3, "show frmFileLock"))) << "no message";
}

}  // namespace
}  // namespace orvik
