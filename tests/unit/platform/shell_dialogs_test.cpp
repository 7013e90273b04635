#include "platform/shell_dialogs.h"

#include "unit/support/program_test.h"

namespace orvik {
namespace {

using ShellDialogs = test::ProgramTest;

TEST_F(ShellDialogs, TheFolderPicked) {
  forms::Form form("frmTest", u"", 1, 1);
  front.folder_answers.push_back(u"T:\\x");
  EXPECT_EQ(mdlSupport::BrowseFolder(form), u"T:\\x");
  EXPECT_EQ(front.events.back(), "browse Выберите папку...");
}

TEST_F(ShellDialogs, ACancelIsARunOfBlanks) {
  forms::Form form("frmTest", u"", 1, 1);
  EXPECT_EQ(mdlSupport::BrowseFolder(form), Text(260, u' '));
}

TEST_F(ShellDialogs, Topmost) {
  forms::Form form("frmTest", u"", 1, 1);
  WindowZposition::SetWindowTopmost(form, true);
  EXPECT_TRUE(form.topmost());
  WindowZposition::SetWindowTopmost(form, false);
  EXPECT_FALSE(form.topmost());
}

}  // namespace
}  // namespace orvik
