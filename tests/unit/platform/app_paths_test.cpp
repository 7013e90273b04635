#include "platform/app_paths.h"

#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

const Text kKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

class AppPaths : public test::ProgramTest {
 protected:
  void Register(const Text& file_name, TextView path) {
    host.registry.Write(host::kLocalMachine, kKey + file_name, u"", path);
  }
  static Text Normalised(Text name) {
    NormaliseExeName(name);
    return name;
  }
};

TEST_F(AppPaths, ANameGetsItsExtension) {
  EXPECT_EQ(Normalised(u"explorer"), u"explorer.exe");
  EXPECT_EQ(Normalised(u"explorer.exe"), u"explorer.exe");
  EXPECT_EQ(Normalised(u"command.com"), u"command.com");
  EXPECT_EQ(Normalised(u"T:\\a.b\\c"), u"T:\\a.b\\c.exe");
}

TEST_F(AppPaths, ABlankAtTheEndStaysInFrontOfTheExtension) {
  EXPECT_EQ(Normalised(u"explorer "), u"explorer .exe");
}

TEST_F(AppPaths, AnEmptyNameStaysEmpty) { EXPECT_EQ(Normalised(u""), u""); }

TEST_F(AppPaths, WhatFollowsTheExtensionGoes) {
  EXPECT_EQ(Normalised(u"a.exe /x b.txt"), u"a.exe");
  EXPECT_EQ(Normalised(u"a.com /x"), u"a.com");
  EXPECT_EQ(Normalised(u"a.exe b.exe c"), u"a.exe b.exe");
  EXPECT_EQ(Normalised(u"a.exefile"), u"a.exe");
}

TEST_F(AppPaths, ANameWithBothExtensionsIsCutTwice) {
  EXPECT_EQ(Normalised(u"a.com b.exe c"), u"a.com");
  EXPECT_EQ(Normalised(u"a.exe b.com c"), u"a.exe");
}

TEST_F(AppPaths, CapitalsGetASecondExtension) {
  EXPECT_EQ(Normalised(u"EXPLORER.EXE"), u"EXPLORER.EXE.exe");
  EXPECT_EQ(Normalised(u"A.Com /x"), u"A.Com.exe");
}

TEST_F(AppPaths, APathIsFoundByTheFileNameAlone) {
  Register(u"explorer.exe", u"C:\\W\\explorer.exe");
  EXPECT_EQ(GetAppPath(u"explorer"), u"C:\\W\\explorer.exe");
  EXPECT_EQ(GetAppPath(u"X:\\elsewhere\\Explorer.exe /e"), u"C:\\W\\explorer.exe");
  EXPECT_EQ(GetAppPath(u"explorer "), u"");
  EXPECT_EQ(GetAppPath(u"notepad"), u"");
}

TEST_F(AppPaths, AnEmptyNameFindsNothing) {
  Register(u"explorer.exe", u"C:\\W\\explorer.exe");
  EXPECT_EQ(GetAppPath(u""), u"");
}

TEST_F(AppPaths, TheWindowsFolderStandsInOnlyForThisSpelling) {
  Register(u"a.exe", u"%SystemRoot%\\a.exe");
  Register(u"b.exe", u"%systemroot%\\b.exe");
  EXPECT_EQ(GetAppPath(u"a"), u"C:\\Windows\\a.exe");
  EXPECT_EQ(GetAppPath(u"b"), u"%systemroot%\\b.exe");
  host.system.environment.clear();
  EXPECT_EQ(GetAppPath(u"a"), u"\\a.exe");
}

TEST_F(AppPaths, AnEntryIsWrittenUnderTheNameAsItStands) {
  SetAppPath(u"explorer", u"C:\\W\\explorer.exe /e");
  const auto values = host.registry.Values(host::kLocalMachine, kKey + u"explorer.exe");
  ASSERT_TRUE(values && values->size() == 1);
  EXPECT_EQ(values->at(0).name, u"");
  EXPECT_EQ(values->at(0).data, u"C:\\W\\explorer.exe /e");
  SetAppPath(u"sub\\x.exe", u"C:\\x.exe");
  EXPECT_TRUE(host.registry.Values(host::kLocalMachine, kKey + u"sub\\x.exe"));
  EXPECT_EQ(GetAppPath(u"sub\\x.exe"), u"");
}

TEST_F(AppPaths, TheCallersNameIsNotChanged) {
  const Text name = u"explorer";
  GetAppPath(name);
  SetAppPath(name, u"");
  EXPECT_EQ(name, u"explorer");
}

}  // namespace
}  // namespace orvik::mdlSupport
