#include "platform/punto.h"

#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

const std::string kTitle = "|zKelmar's Orvik  v 0.9.8.3 FN|";
const Text kVerb = u"exefile\\Shell\\Отключить в Punto";

class Punto : public test::ProgramTest {
 protected:
  void Install(const Text& folder, const std::string& list) {
    host.files.AddFile(folder + u"\\prog_ex.dat", list);
  }
  std::string List(const Text& folder) { return host.files.Content(folder + u"\\prog_ex.dat"); }
  const Text programs = u"C:\\Program Files\\Punto Switcher";
  const Text windows = u"C:\\Windows\\Punto Switcher";
  const std::vector<std::string> added = {"message Программа добавлена в списк Punto" + kTitle +
                                          "information|ok"};
  const std::vector<std::string> missing = {
      "message Punto Switcher не найден, отключить данную возможность" + kTitle +
      "question|okcancel"};
};

TEST_F(Punto, TheFolderIsLookedForInTwoPlaces) {
  EXPECT_EQ(PuntoFolder(), u"");
  host.files.AddFolder(programs);
  EXPECT_EQ(PuntoFolder(), programs);
  host.files.AddFolder(windows);
  EXPECT_EQ(PuntoFolder(), windows);
}

TEST_F(Punto, WithoutAnEnvironmentTheRootIsLookedAt) {
  host.system.environment.clear();
  EXPECT_EQ(PuntoFolder(), u"");
  host.files.AddFolder(u"C:\\Punto Switcher");
  EXPECT_EQ(PuntoFolder(), u"\\Punto Switcher");
}

TEST_F(Punto, AProgramIsAddedAndPuntoSwitcherBeginsAnew) {
  Install(programs, "C:\\old.exe\r\n");
  host.processes.running = {{1, u"PS.EXE"}, {2, u"explorer.exe"}};
  EXPECT_EQ(Run(u"/NPS T:\\Мои программы\\новая.exe"), std::nullopt);
  EXPECT_EQ(List(programs), "C:\\old.exe\r\nT:\\" +
                                CodePage::Numbered(1251).Encode(u"Мои программы\\новая.exe") +
                                "\r\n");
  EXPECT_EQ(host.processes.ended, (std::vector<Text>{u"PS.EXE"}));
  ASSERT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(host.shell.started[0].command_line, programs + u"\\PS.exe");
  EXPECT_EQ(host.shell.started[0].window, host::WindowState::kNormal);
  EXPECT_EQ(front.events, added);
}

TEST_F(Punto, WithoutARunningOneItIsStartedAllTheSame) {
  Install(programs, "");
  host.shell.starts = false;
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(List(programs), "T:\\a.exe\r\n");
  EXPECT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(front.events, added);
}

TEST_F(Punto, AProgramInTheListIsLeftThere) {
  Install(programs, "D:\\T:\\a.exe.old\r\n");
  host.processes.running = {{1, u"ps.exe"}};
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(List(programs), "D:\\T:\\a.exe.old\r\n");
  EXPECT_TRUE(host.processes.ended.empty());
  EXPECT_TRUE(host.shell.started.empty());
  EXPECT_EQ(front.events, (std::vector<std::string>{"message Программа уже имеется в списке Punto" +
                                                    kTitle + "information|ok"}));
}

TEST_F(Punto, TheListIsSearchedWithLetterCase) {
  Install(programs, "t:\\A.EXE\r\n");
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(List(programs), "t:\\A.EXE\r\nT:\\a.exe\r\n");
}

TEST_F(Punto, ALastLineWithoutAnEndGrowsTogether) {
  Install(programs, "C:\\x.exe");
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(List(programs), "C:\\x.exeT:\\a.exe\r\n");
}

TEST_F(Punto, AReadOnlyListIsReplaced) {
  host.files.AddFile(programs + u"\\prog_ex.dat", "C:\\x.exe\r\n", host::attribute::kReadOnly);
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(List(programs), "C:\\x.exe\r\nT:\\a.exe\r\n");
  EXPECT_EQ(front.events, added);
}

TEST_F(Punto, AListThatCannotBeWrittenIsNoReasonToStop) {
  Install(programs, "C:\\x.exe\r\n");
  const auto held = host.files.Open(programs + u"\\prog_ex.dat", host::OpenMode::kHold);
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(List(programs), "C:\\x.exe\r\n");
  EXPECT_EQ(host.shell.started.size(), 1U);
  EXPECT_EQ(front.events, added);
}

TEST_F(Punto, WhateverIsAnsweredWithoutPuntoSwitcherNothingHappens) {
  host.registry.Write(host::kClassesRoot, kVerb, u"", u"x");
  for (const forms::Answer answer : {forms::Answer::kOk, forms::Answer::kCancel}) {
    front.events.clear();
    front.message_answers = {answer};
    EXPECT_EQ(Run(u"/NPS T:\\a.exe"), std::nullopt);
    EXPECT_EQ(front.events, missing);
    EXPECT_TRUE(host.registry.Values(host::kClassesRoot, kVerb));
  }
  EXPECT_TRUE(host.shell.started.empty());
}

// The buttons can't give it, but the branch behind it is there.
TEST_F(Punto, AYesWouldTakeTheMenuEntryAway) {
  host.registry.Write(host::kClassesRoot, kVerb, u"", u"x");
  front.message_answers = {forms::Answer::kYes};
  EXPECT_EQ(Run(u"/NPS T:\\a.exe"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.registry.Values(host::kClassesRoot, kVerb));
}

TEST_F(Punto, AListInTheRootServesWithoutAFolder) {
  host.files.AddFile(u"C:\\prog_ex.dat", "");
  Run(u"/NPS T:\\a.exe");
  EXPECT_EQ(host.files.Content(u"C:\\prog_ex.dat"), "T:\\a.exe\r\n");
  EXPECT_EQ(host.shell.started.at(0).command_line, u"\\PS.exe");
}

}  // namespace
}  // namespace orvik::mdlMain
