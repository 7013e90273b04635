#include "startup/main.h"

#include "copying/frm_main.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

using MainRoutine = test::ProgramTest;

TEST_F(MainRoutine, SwitchInLowerCaseWithTheArgumentAsItIs) {
  EXPECT_EQ(Run(u"/sch T:\\Some Folder\\Ы"), std::nullopt);
  EXPECT_EQ(CommandArgs, u"T:\\Some Folder\\Ы");
  EXPECT_EQ(front.events, (std::vector<std::string>{"show frmMain"}));
}

TEST_F(MainRoutine, QuotesAndBlanksStay) {
  Run(u"/FCR \"T:\\a b\" ");
  EXPECT_EQ(CommandArgs, u"\"T:\\a b\" ");
}

TEST_F(MainRoutine, FiveCharactersLeaveNoArgument) {
  EXPECT_EQ(Run(u"/SCH "), std::nullopt);
  EXPECT_EQ(CommandArgs, u"");
  EXPECT_TRUE(forms::The<frmMain>().visible());
}

TEST_F(MainRoutine, UnknownSwitchesEndSilently) {
  for (const char16_t* line :
       {u"/SCH", u"/XXX T:\\a", u"/XXX ", u"/SCHT:\\a", u"hello", u" ", u"     ", u"SCH  T:\\a"}) {
    EXPECT_EQ(Run(line), forms::EndReason::kShutdown) << ToUtf8(line);
  }
  EXPECT_TRUE(front.events.empty());
}

TEST_F(MainRoutine, AShortLineStaysWhole) {
  Run(u"/sch");
  EXPECT_EQ(CommandArgs, u"/sch");
}

TEST_F(MainRoutine, PlacesAreSet) {
  Run(u"/FCR T:\\x");
  EXPECT_EQ(InstalledExePath, u"C:\\Windows\\Orvik.exe");
  EXPECT_EQ(RegRootKey, 0x80000002U);
  EXPECT_EQ(RegRootPath, u"SOFTWARE\\Ib Tarn\\Orvik");
  EXPECT_EQ(RecentPathKey, u"SOFTWARE\\Ib Tarn\\Orvik\\Recent Path");
  EXPECT_EQ(RecentMaskKey, u"SOFTWARE\\Ib Tarn\\Orvik\\Recent Mask");
  EXPECT_EQ(RecentPath2Key, u"SOFTWARE\\Ib Tarn\\Orvik\\Recent Path2");
  EXPECT_EQ(FileListKey, u"SOFTWARE\\Ib Tarn\\Orvik\\FileList");
  EXPECT_EQ(DoublesSourcesKey, u"SOFTWARE\\Ib Tarn\\Orvik\\Doubles Sources");
  EXPECT_EQ(DoublesPatternKey, u"SOFTWARE\\Ib Tarn\\Orvik\\Doubles Pattern List");
}

TEST_F(MainRoutine, EnvironmentFields) {
  host.system.environment = {u"CommonProgramFiles=C:\\CPF",
                             u"USERNAME=me",
                             u"COMPUTERNAME=box",
                             u"HOMEDRIVE=H:",
                             u"OS=Windows_NT",
                             u"ProgramFiles=C:\\PF",
                             u"windir=C:\\W",
                             u"TEMP=C:\\T"};
  const EnvironmentInfo info = ReadEnvironment();
  EXPECT_EQ(info.CommonProgramFiles, u"C:\\CPF");
  EXPECT_EQ(info.UserName, u"me");
  EXPECT_EQ(info.ComputerName, u"box");
  EXPECT_EQ(info.SystemDrive, u"H:");
  EXPECT_EQ(info.OS, u"Windows_NT");
  EXPECT_EQ(info.ProgramFiles, u"C:\\PF");
  EXPECT_EQ(info.WindowsFolder, u"C:\\W");
  EXPECT_EQ(info.TEMP, u"C:\\T");
}

TEST_F(MainRoutine, TheLaterOfBothDriveEntriesWins) {
  host.system.environment = {u"SystemDrive=S:", u"HOMEDRIVE=H:"};
  EXPECT_EQ(ReadEnvironment().SystemDrive, u"H:");
  host.system.environment = {u"HOMEDRIVE=H:", u"SystemDrive=S:"};
  EXPECT_EQ(ReadEnvironment().SystemDrive, u"S:");
}

TEST_F(MainRoutine, EnvironmentNamesAreExactAndValuesWithoutEqualSigns) {
  host.system.environment = {u"WINDIR=C:\\W", u"TEMP=a=b", u"OS"};
  const EnvironmentInfo info = ReadEnvironment();
  EXPECT_EQ(info.WindowsFolder, u"");
  EXPECT_EQ(info.TEMP, u"");
  EXPECT_EQ(info.OS, u"");
}

TEST_F(MainRoutine, OnlyAHundredEntriesAreRead) {
  host.system.environment.assign(99, u"X=1");
  host.system.environment.emplace_back(u"OS=100");
  EXPECT_EQ(ReadEnvironment().OS, u"100");
  host.system.environment.insert(host.system.environment.begin(), u"Y=1");
  EXPECT_EQ(ReadEnvironment().OS, u"");
}

TEST_F(MainRoutine, OnlyThePlatformIdTellsNT) {
  EXPECT_TRUE(IsWinNT());
  host.system.platform_id = 1;
  EXPECT_FALSE(IsWinNT());
}

TEST_F(MainRoutine, ShutdownForgetsTheScan) {
  mdlSupport::ScanFiles.emplace(1, u"x");
  EXPECT_EQ(test::Ending([] { Shutdown(); }), forms::EndReason::kShutdown);
  EXPECT_FALSE(mdlSupport::ScanFiles.has_value());
}

}  // namespace
}  // namespace orvik::mdlMain
