#include "platform/system_launch.h"

#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

const Text kBatch = u"C:\\Windows\\Temp\\wb240229130509.bat";

class SystemLaunch : public test::ProgramTest {
 protected:
  SystemLaunch() { host.files.AddFolder(u"C:\\Windows\\Temp"); }
  // The batch file's lines, read as DOS reads them; what stands behind the last line end is the
  // last entry.
  std::vector<std::string> Lines(const Text& batch = kBatch) {
    std::vector<std::string> lines;
    const Text text = CodePage::Numbered(866).Decode(host.files.Content(batch));
    for (const TextView line : Split(text, kCrLf)) lines.push_back(ToUtf8(line));
    return lines;
  }
};

TEST_F(SystemLaunch, SevenLines) {
  host.files.AddDrive(u"D:");
  host.files.AddFile(u"D:\\Some Folder\\prog.exe");
  EXPECT_EQ(Run(u"/EAS D:\\Some Folder\\prog.exe"), std::nullopt);
  EXPECT_EQ(Lines(),
            (std::vector<std::string>{
                "taskkill /F /IM explorer.exe", "D:", "chdir \"D:\\Some Folder\\\"",
                "start /wait " + ToUtf8(*host.files.ShortName(u"D:\\Some Folder\\prog.exe")),
                "C:", "chdir C:\\Windows", "start explorer.exe", ""}));
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, kBatch);
  EXPECT_EQ(host.shell.started[0].window, host::WindowState::kMinimised);
  EXPECT_TRUE(front.events.empty());
}

TEST_F(SystemLaunch, RussianLettersAreWrittenInTheCodePageOfDos) {
  host.files.AddFile(u"T:\\Абя\\п.exe");
  Run(u"/EAS T:\\Абя\\п.exe");
  const std::string content = host.files.Content(kBatch);
  EXPECT_NE(content.find("chdir \"T:\\\x80\xA1\xEF\\\"\r\n"), std::string::npos);
}

TEST_F(SystemLaunch, AMissingProgramHasNoShortName) {
  EXPECT_EQ(mdlSupport::GetShortName(u"T:\\none.exe"), u"");
  Run(u"/EAS T:\\none.exe");
  EXPECT_EQ(Lines().at(3), "start /wait ");
  EXPECT_EQ(host.shell.started.size(), 1U);
}

TEST_F(SystemLaunch, NoProgramAtAll) {
  Run(u"/EAS ");
  EXPECT_EQ(Lines(), (std::vector<std::string>{"taskkill /F /IM explorer.exe", "C:", "chdir \"",
                                               "start /wait ", "C:", "chdir C:\\Windows",
                                               "start explorer.exe", ""}));
}

TEST_F(SystemLaunch, TheWindowsFolderIsNotQuoted) {
  host.system.environment[0] = u"windir=D:\\My Windows";
  Run(u"/EAS T:\\a.exe");
  EXPECT_EQ(Lines().at(4), "D:");
  EXPECT_EQ(Lines().at(5), "chdir D:\\My Windows");
}

TEST_F(SystemLaunch, WithoutAnEnvironmentTheRootIsWrittenTo) {
  host.system.environment.clear();
  Run(u"/EAS T:\\a.exe");
  EXPECT_EQ(host.shell.started.at(0).command_line, u"\\wb240229130509.bat");
  EXPECT_EQ(Lines(u"C:\\wb240229130509.bat").at(5), "chdir ");
}

TEST_F(SystemLaunch, TheNameHasTwoDigitsForEachPart) {
  host.system.now = {2009, 1, 2, 3, 4, 5};
  Run(u"/EAS T:\\a.exe");
  EXPECT_EQ(host.shell.started.at(0).command_line, u"C:\\Windows\\Temp\\wb090102030405.bat");
}

TEST_F(SystemLaunch, TwoRunsInOneSecondShareAName) {
  Run(u"/EAS T:\\first.exe");
  Run(u"/EAS D:\\x\\second.exe");
  EXPECT_EQ(Lines().at(1), "D:");
  EXPECT_EQ(Lines().size(), 8U);
}

TEST_F(SystemLaunch, ABatchFileThatCannotBeWrittenIsStartedAllTheSame) {
  host.system.environment[1] = u"TEMP=T:\\none";
  Run(u"/EAS T:\\a.exe");
  EXPECT_FALSE(host.files.Exists(u"T:\\none"));
  EXPECT_EQ(host.shell.started.size(), 1U);
}

TEST_F(SystemLaunch, TheTargetOfAShortcut) {
  host.shell.AddShortcut(u"T:\\a b.lnk", test::LeadingTo(u"T:\\dir\\prog.exe"));
  EXPECT_EQ(Run(u"/RAS T:\\a b.lnk"), std::nullopt);
  EXPECT_EQ(Lines().at(2), "chdir \"T:\\dir\\\"");
  Run(u"/RAS T:\\none.lnk");
  EXPECT_EQ(Lines().at(2), "chdir \"");
}

class Redirection : public SystemLaunch {
 protected:
  void Redirect(const Text& target) {
    host.shell.AddShortcut(u"T:\\a.lnk", {target, u"/old", u"old", u"T:\\old", u"T:\\old.ico", 3});
    EXPECT_EQ(Run(u"/CHS T:\\a.lnk"), forms::EndReason::kShutdown);
    now = *host.shell.ReadShortcut(u"T:\\a.lnk");
  }
  host::Shortcut now;
};

TEST_F(Redirection, TheOldOneGoesToTheBinAndANewOneTakesItsPlace) {
  Redirect(u"T:\\My Programs\\x.exe");
  EXPECT_EQ(host.shell.recycled, (std::vector<Text>{u"T:\\a.lnk"}));
  EXPECT_EQ(now.arguments, u" /EAS T:\\My Programs\\x.exe");
  EXPECT_EQ(now.description, u"");
  EXPECT_EQ(now.window_style, 0);
  EXPECT_EQ(now.target, u"C:\\Windows\\Orvik.exe");
  EXPECT_EQ(now.working_folder, u"T:\\My Programs\\");
  EXPECT_EQ(now.icon_location, u"T:\\My Programs\\x.exe");
}

TEST_F(Redirection, TwiceIsOnce) {
  Redirect(u"T:\\x.exe");
  EXPECT_EQ(Run(u"/CHS T:\\a.lnk"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.shell.recycled.size(), 1U);
  EXPECT_EQ(host.shell.ReadShortcut(u"T:\\a.lnk")->arguments, u" /EAS T:\\x.exe");
}

TEST_F(Redirection, AnyPathWithTheNameInTheseCapitalsCounts) {
  Redirect(u"T:\\Orvik data\\x.exe");
  EXPECT_TRUE(host.shell.recycled.empty());
  EXPECT_EQ(now.arguments, u"/old");
  Redirect(u"T:\\ORVIK\\x.exe");
  EXPECT_EQ(host.shell.recycled.size(), 1U);
  EXPECT_EQ(now.arguments, u" /EAS T:\\ORVIK\\x.exe");
}

TEST_F(Redirection, AnUnreadableOneIsReplacedByOneWithoutAProgram) {
  host.files.AddFile(u"T:\\bad.lnk", "no shortcut");
  Run(u"/CHS T:\\bad.lnk");
  const auto made = host.shell.ReadShortcut(u"T:\\bad.lnk");
  ASSERT_TRUE(made);
  EXPECT_EQ(made->arguments, u" /EAS ");
  EXPECT_EQ(made->icon_location, u"");
  EXPECT_EQ(made->working_folder, u"");
}

TEST_F(Redirection, WhenTheBinRefusesTheShortcutIsOverwritten) {
  host.shell.refuses = true;
  Redirect(u"T:\\x.exe");
  EXPECT_EQ(now.arguments, u" /EAS T:\\x.exe");
  EXPECT_EQ(now.target, u"C:\\Windows\\Orvik.exe");
}

}  // namespace
}  // namespace orvik::mdlMain
