// Runs of the demo form behind a script: ends, answers and lines.
#include "forms/headless/headless_front_end.h"

#include <gmock/gmock.h>

#include "base/failure.h"
#include "forms/instance.h"
#include "unit/forms/headless/demo_lines.h"

namespace orvik::forms::headless {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class FrontEndTest : public testing::Test {
 protected:
  Demo demo;
};

// How a run ends.

TEST_F(FrontEndTest, WithoutAScriptTheRunEndsWithTheFormOpen) {
  const Played played = demo.Run("");
  EXPECT_THAT(played.lines, ElementsAre(kShow, End("script")));
  EXPECT_EQ(played.status, 0);
}

TEST_F(FrontEndTest, AProgramWithoutAFormReturns) {
  demo.program = [](const Text& line) { Demo::Note(ToUtf8(line)); };
  const Played played = demo.Run("wait 5\ndump\n");
  EXPECT_THAT(played.lines,
              ElementsAre(R"({"event":"clipboard","text":"/SCH T:\\x"})", End("returned")));
  EXPECT_EQ(played.status, 0);
}

TEST_F(FrontEndTest, TheLastFormThatGoesClosesTheRun) {
  demo.prepare = [](frmDemo& form) { form.unload = [](frmDemo&) { Demo::Note("unloading"); }; };
  const Played played = demo.Run("close frmDemo\ndump\n");
  EXPECT_THAT(played.lines, ElementsAre(kShow, kUnload, Note("unloading"), End("closed")));
}

TEST_F(FrontEndTest, TheProgramMayShutItselfDown) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] { Front().EndProcess(EndReason::kShutdown); };
  };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\ndump\n").lines, ElementsAre(kShow, End("shutdown")));
}

TEST_F(FrontEndTest, ShutdownAtUnloadIsAShutdown) {
  demo.prepare = [](frmDemo& form) {
    form.unload = [](frmDemo&) { Front().EndProcess(EndReason::kShutdown); };
  };
  EXPECT_THAT(demo.Run("close frmDemo").lines, ElementsAre(kShow, kUnload, End("shutdown")));
}

TEST_F(FrontEndTest, AFormThatWasNeverShownGoesInSilence) {
  demo.prepare = [](frmDemo& form) { form.Unload(); };
  EXPECT_THAT(demo.Run("").lines, ElementsAre(End("closed")));
}

TEST_F(FrontEndTest, AClosedFormEndsAJobInItsMiddle) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      for (int i = 0; i < 5; ++i) {
        Demo::Note(std::to_string(i));
        Yield();
      }
    };
  };
  EXPECT_THAT(demo.Run("during 2 close frmDemo\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Note("0"), Note("1"), kUnload, End("closed")));
}

TEST_F(FrontEndTest, ALoopEndsAfterItsCalls) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      while (true) Passes([] { return host::Files().PathExists(u"T:\\x"); });
    };
  };
  const Played played = demo.Run("click frmDemo.btStart", {"--max-calls", "1000"});
  EXPECT_THAT(played.lines, ElementsAre(kShow, End("calls")));
  EXPECT_EQ(played.status, 3);
  EXPECT_EQ(demo.host.files.calls.size(), 1000U);
}

TEST_F(FrontEndTest, ARunEndsAfterItsTime) {
  demo.prepare = [](frmDemo& form) {
    form.clExit.on_timer = [] { Demo::Note(Time()); };
    form.clExit.SetActive(true);
  };
  const Played played = demo.Run("wait 100000", {"--max-time", "2500"});
  EXPECT_THAT(played.lines, ElementsAre(kShow, Note("1000"), Note("2000"), End("time")));
  EXPECT_EQ(played.status, 4);
}

TEST_F(FrontEndTest, ALoopOfWaitsEndsAfterItsTime) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      while (true) {
        Front().WaitForInput(1000);
        Yield();
      }
    };
  };
  const Played played = demo.Run("click frmDemo.btStart", {"--max-time", "2500"});
  EXPECT_THAT(played.lines, ElementsAre(kShow, End("time")));
  EXPECT_EQ(played.status, 4);
}

TEST_F(FrontEndTest, ALoopWithoutWaitsEndsAfterItsRealTime) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      while (true) host::Files().PathExists(u"T:\\x");
    };
  };
  const Played played = demo.Run("click frmDemo.btStart", {"--real-time", "--max-time", "30"});
  EXPECT_THAT(played.lines, ElementsAre(kShow, End("time")));
}

TEST_F(FrontEndTest, AFailingStatementEndsItsHandlerOnly) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      Demo::Note("before");
      throw Failure{};
    };
    form.clExit.on_timer = [] { throw Failure{}; };
    form.clExit.SetActive(true);
  };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\nwait 1000\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Note("before"), Note("before"), End("script")));
}

// Answers.

TEST_F(FrontEndTest, AnswersAheadServeTheStart) {
  demo.prepare = [](frmDemo&) {
    const Answer answer = Front().Message(u"T\n", u"Title", Icon::kCritical, Buttons::kYesNo);
    Demo::Note(answer == Answer::kYes ? "yes" : "other");
  };
  EXPECT_THAT(demo.Run("# first\nanswer message yes\n").lines,
              ElementsAre(R"({"event":"message","text":"T\n","title":"Title","icon":"critical",)"
                          R"("buttons":"yesno","answer":"yes"})",
                          Note("yes"), kShow, End("script")));
}

TEST_F(FrontEndTest, WithoutAnAnswerABoxIsOkOrNo) {
  demo.prepare = [](frmDemo&) {
    Front().Message(u"a", u"", Icon::kNone, Buttons::kOk);
    Front().Message(u"b", u"", Icon::kInformation, Buttons::kOkCancel);
    Front().Message(u"c", u"", Icon::kQuestion, Buttons::kYesNo);
  };
  EXPECT_THAT(
      demo.Run("").lines,
      ElementsAre(
          R"({"event":"message","text":"a","title":"","icon":"none","buttons":"ok","answer":"ok"})",
          R"({"event":"message","text":"b","title":"","icon":"information","buttons":"okcancel","answer":"ok"})",
          R"({"event":"message","text":"c","title":"","icon":"question","buttons":"yesno","answer":"no"})",
          kShow, End("script")));
}

TEST_F(FrontEndTest, AnAnswerWithoutItsButtonIsAnError) {
  demo.prepare = [](frmDemo&) { Front().Message(u"a", u"", Icon::kNone, Buttons::kYesNo); };
  EXPECT_THAT(demo.Run("\nanswer message ok").lines,
              ElementsAre(Error(2), HasSubstr(R"("answer":"no")"), kShow, End("script")));
}

TEST_F(FrontEndTest, TextsFoldersAndFilesAreAnsweredInTheirQueues) {
  demo.prepare = [](frmDemo&) {
    for (int i = 0; i < 3; ++i) {
      Front().AskFolder(u"Folder", nullptr);
      Front().AskText(u"Prompt", u"Title");
    }
    Front().AskFileName(FileDialog::kOpen, u"d|*.*", nullptr);
    Front().AskFileName(FileDialog::kSave, u"d|*.*", nullptr);
    Front().AskFileName(FileDialog::kSave, u"d|*.*", nullptr);
  };
  EXPECT_THAT(
      demo.Run("answer input \"one\"\nanswer input cancel\nanswer browse \"T:\\x\"\n"
               "answer browse cancel\nanswer file \"T:\\a.qlx\"\nanswer file cancel")
          .lines,
      ElementsAre(R"({"event":"browse","title":"Folder","answer":"T:\\x"})",
                  R"({"event":"input","prompt":"Prompt","title":"Title","answer":"one"})",
                  R"({"event":"browse","title":"Folder","answer":null})",
                  R"({"event":"input","prompt":"Prompt","title":"Title","answer":""})",
                  R"({"event":"browse","title":"Folder","answer":null})",
                  R"({"event":"input","prompt":"Prompt","title":"Title","answer":""})",
                  R"({"event":"open","filter":"d|*.*","answer":"T:\\a.qlx"})",
                  R"({"event":"save","filter":"d|*.*","answer":null})",
                  R"({"event":"save","filter":"d|*.*","answer":null})", kShow, End("script")));
}

// Lines.

TEST_F(FrontEndTest, ALineThatCannotBePlayedIsPassedOver) {
  demo.prepare = [](frmDemo& form) { Noting(form.btStart, "clicked"); };
  EXPECT_THAT(demo.Run("click frmOther.x\n\nclick frmDemo.none\nclick frmDemo.btStart\n"
                       "dump frmOther\n")
                  .lines,
              ElementsAre(kShow, Error(1), Error(3), Note("clicked"), Error(5), End("script")));
}

TEST_F(FrontEndTest, DumpsOneFormOrAll) {
  class frmMore : public Form {
   public:
    frmMore() : Form("frmMore", u"More", 1, 2) {}
  };
  demo.program = [](const Text&) {
    The<frmDemo>().Show();
    The<frmMore>().Show();
  };
  const auto lines = demo.Run("dump frmMore\ndump").lines;
  const std::string more =
      R"({"event":"dump","form":"frmMore","caption":"More","visible":true,"width":1,"height":2,)"
      R"("topmost":false,"controls":{}})";
  EXPECT_THAT(lines,
              ElementsAre(kShow, HasSubstr("frmMore"), more,
                          HasSubstr(R"({"event":"dump","form":"frmDemo")"), more, End("script")));
}

TEST_F(FrontEndTest, ShowsTheValuesOfAKey) {
  demo.host.registry.Write(host::kLocalMachine, u"SOFTWARE\\X", u"б", u"2");
  demo.host.registry.Write(host::kLocalMachine, u"SOFTWARE\\X", u"", u"1");
  demo.host.registry.CreateKey(host::kClassesRoot, u"empty");
  EXPECT_THAT(
      demo.Run("registry \"HKEY_LOCAL_MACHINE\\\\SOFTWARE\\\\X\"\n"
               "registry \"HKEY_CLASSES_ROOT\\\\empty\"\nregistry \"HKEY_CLASSES_ROOT\\\\none\"\n"
               "registry \"HKEY_USERS\\\\x\"")
          .lines,
      ElementsAre(
          kShow,
          R"({"event":"registry","key":"HKEY_LOCAL_MACHINE\\SOFTWARE\\X","values":[["б","2"],["","1"]]})",
          R"({"event":"registry","key":"HKEY_CLASSES_ROOT\\empty","values":[]})",
          R"({"event":"registry","key":"HKEY_CLASSES_ROOT\\none","values":null})", Error(4),
          End("script")));
}

TEST_F(FrontEndTest, ACommandOutsideRunsToItsEnd) {
  const std::string file = testing::TempDir() + "orvik_headless_command";
  std::remove(file.c_str());
  std::string quoted;
  for (char c : file) quoted += c == '\\' ? std::string("\\\\") : std::string(1, c);
  demo.Run("system \"echo done>" + quoted + "\"");
  const auto content = std::fopen(file.c_str(), "r");
  ASSERT_NE(content, nullptr);
  std::fclose(content);
  std::remove(file.c_str());
}

}  // namespace
}  // namespace orvik::forms::headless
