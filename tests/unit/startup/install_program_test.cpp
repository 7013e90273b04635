#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

const Text kExplorer = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\explorer.exe";

class Installation : public test::ProgramTest {
 protected:
  Installation() {
    host.files.AddFolder(u"C:\\Windows");
    host.system.own_path = u"T:\\My programs\\Orvik new.exe";
    host.files.AddFile(host.system.own_path, "program");
    // As at the start of a process: nothing has told where the program's own keys are.
    RegRootKey = 0;
    RegRootPath.clear();
  }
  void Install() { EXPECT_EQ(Run(u""), forms::EndReason::kShutdown); }
  // The unnamed value of a key in the classes; "missing" when there is none.
  Text Command(const Text& key) {
    const auto values = host.registry.Values(host::kClassesRoot, key);
    if (!values || values->size() != 1 || !values->at(0).name.empty()) return u"missing";
    return values->at(0).data;
  }
  std::string Installed() { return host.files.Content(u"C:\\Windows\\Orvik.exe"); }
  const std::vector<std::string> done = {
      "message Программа установлена|zKelmar's Orvik  v 0.9.8.3 FN|information|ok"};
  const std::vector<std::string> known = {
      "message Версия zKelmar's Orvik  v 0.9.8.3 FN уже установлена|Orvik|information|ok"};
};

TEST_F(Installation, CopiesItselfAndWritesFiveCommands) {
  Install();
  EXPECT_EQ(Installed(), "program");
  EXPECT_EQ(Command(u"*\\Shell\\Посмотреть как DOS текст\\command"),
            u"C:\\Windows\\Orvik.exe /ASD %L");
  EXPECT_EQ(Command(u"*\\Shell\\Посмотреть как текст\\command"), u"C:\\Windows\\Orvik.exe /SHT %L");
  EXPECT_EQ(Command(u"lnkfile\\Shell\\Показать объект\\command"),
            u"C:\\Windows\\Orvik.exe /GOP %L");
  EXPECT_EQ(Command(u"exefile\\Shell\\Запуск Системным\\command"),
            u"C:\\Windows\\Orvik.exe /EAS %L");
  EXPECT_EQ(Command(u"lnkfile\\Shell\\Запуск Системным\\command"),
            u"C:\\Windows\\Orvik.exe /RAS %L");
  EXPECT_EQ(front.events, done);
}

TEST_F(Installation, TheLastCommandOnlyOnSystemsOfTheNTLine) {
  host.system.platform_id = 1;
  Install();
  EXPECT_EQ(Command(u"exefile\\Shell\\Запуск Системным\\command"),
            u"C:\\Windows\\Orvik.exe /EAS %L");
  EXPECT_EQ(Command(u"lnkfile\\Shell\\Запуск Системным\\command"), u"missing");
}

TEST_F(Installation, ASecondOneFindsItselfInstalledAndWritesNothing) {
  Install();
  host.registry.Write(host::kClassesRoot, u"*\\Shell\\Посмотреть как текст\\command", u"", u"mine");
  front.events.clear();
  const std::size_t changes = host.files.changes.size();
  Install();
  EXPECT_EQ(front.events, known);
  EXPECT_EQ(host.files.changes.size(), changes);
  EXPECT_EQ(Command(u"*\\Shell\\Посмотреть как текст\\command"), u"mine");
}

TEST_F(Installation, TheInstalledProgramItselfIsInstalled) {
  host.files.AddFile(u"C:\\Windows\\Orvik.exe", "program");
  host.system.own_path = u"C:\\Windows\\Orvik.exe";
  Install();
  EXPECT_EQ(front.events, known);
  EXPECT_EQ(Command(u"*\\Shell\\Посмотреть как текст\\command"), u"missing");
}

TEST_F(Installation, AnyOtherChecksumIsANewVersion) {
  host.files.AddFile(u"C:\\Windows\\Orvik.exe", "PROGRAM of another day",
                     host::attribute::kArchive);
  Install();
  EXPECT_EQ(Installed(), "program");
  EXPECT_EQ(front.events, done);
}

TEST_F(Installation, AFailedCopyIsASuccessAllTheSame) {
  host.files.AddFile(u"C:\\Windows\\Orvik.exe", "old", host::attribute::kReadOnly);
  Install();
  EXPECT_EQ(Installed(), "old");
  EXPECT_EQ(front.events, done);
  EXPECT_EQ(Command(u"*\\Shell\\Посмотреть как текст\\command"), u"C:\\Windows\\Orvik.exe /SHT %L");
}

TEST_F(Installation, AProgramThatCannotBeReadCountsAsAMissingOne) {
  host.system.own_path = u"T:\\none.exe";
  Install();
  EXPECT_EQ(front.events, known);
}

TEST_F(Installation, WithoutAWindowsFolderTheRootIsInstalledTo) {
  host.system.environment.clear();
  Install();
  EXPECT_EQ(host.files.Content(u"C:\\Orvik.exe"), "program");
  EXPECT_EQ(Command(u"*\\Shell\\Посмотреть как текст\\command"), u"\\Orvik.exe /SHT %L");
}

TEST_F(Installation, ExplorerIsRegisteredFromTheSearchOfDrives) {
  host.registry.Write(host::kClassesRoot, u"Drive\\shell\\find\\command", u"",
                      u"%SystemRoot%\\explorer.exe");
  // The entry of Explorer itself isn't what is asked for.
  host.files.AddFile(u"C:\\Windows\\explorer.exe");
  host.registry.Write(host::kLocalMachine, kExplorer, u"", u"C:\\Windows\\explorer.exe");
  Install();
  EXPECT_EQ(host.registry.Values(host::kLocalMachine, kExplorer)->at(0).data,
            u"%SystemRoot%\\explorer.exe");
}

TEST_F(Installation, OnlyANameWithABlankKeepsTheEntryOfExplorer) {
  host.files.AddFile(u"C:\\e.exe");
  host.registry.Write(host::kLocalMachine,
                      u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\explorer .exe",
                      u"", u"C:\\e.exe");
  Install();
  EXPECT_FALSE(host.registry.Values(host::kLocalMachine, kExplorer));
}

TEST_F(Installation, WithoutASearchOfDrivesTheEntryIsEmpty) {
  Install();
  EXPECT_EQ(host.registry.Values(host::kLocalMachine, kExplorer)->at(0).data, u"");
}

TEST_F(Installation, BlanksAreNoEmptyCommandLine) {
  EXPECT_EQ(Run(u" "), forms::EndReason::kShutdown);
  EXPECT_TRUE(front.events.empty());
  EXPECT_FALSE(host.files.Exists(u"C:\\Windows\\Orvik.exe"));
}

TEST_F(Installation, ComesBeforeTheProgramsOwnKeysAreSet) {
  Install();
  EXPECT_EQ(RegRootKey, 0U);
  EXPECT_EQ(RegRootPath, u"");
}

TEST_F(Installation, EveryFailureIsPassedOver) {
  test::FaultyFileSystem files(host.files);
  auto services = host.services();
  services.files = &files;
  host::Install(services);
  for (files.fail_call = 1; files.fail_call < 100; ++files.fail_call) {
    files.calls = 0;
    front.events.clear();
    host.files.SetAttributes(u"C:\\Windows\\Orvik.exe", 0);
    host.files.DeleteFile(u"C:\\Windows\\Orvik.exe");
    Install();
    ASSERT_EQ(front.events.size(), 1U);
    if (files.calls < files.fail_call) return;
  }
  FAIL() << "it never ended";
}

}  // namespace
}  // namespace orvik::mdlMain
