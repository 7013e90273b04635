// Runs of the demo form behind a script: the message loop, events inside yields, waits and ends.
#include "forms/headless/headless_front_end.h"

#include <gmock/gmock.h>

#include "base/failure.h"
#include "forms/instance.h"
#include "unit/forms/headless/demo.h"

namespace orvik::forms::headless {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kShow[] = R"({"event":"show","form":"frmDemo"})";
constexpr char kUnload[] = R"({"event":"unload","form":"frmDemo"})";
std::string End(const std::string& reason) {
  return R"({"event":"end","reason":")" + reason + "\"}";
}
std::string Note(const std::string& text) {
  return R"({"event":"clipboard","text":")" + text + "\"}";
}
auto Error(int line) {
  return HasSubstr(R"({"event":"error","line":)" + std::to_string(line) + R"(,"text":")");
}
void Noting(Control& control, const std::string& text) {
  control.on_click = [text] { Demo::Note(text); };
}
// Notes the time of the run.
std::string Time() { return std::to_string(host::TheSystem().Ticks()); }

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
  demo.Run("system \"echo done>" + file + "\"");
  const auto content = std::fopen(file.c_str(), "r");
  ASSERT_NE(content, nullptr);
  std::fclose(content);
  std::remove(file.c_str());
}

// Events inside yields.

TEST_F(FrontEndTest, DuringServesTheStartOfTheProgram) {
  demo.program = [](const Text&) {
    frmDemo& form = The<frmDemo>();
    form.load = [](frmDemo& loading) { Noting(loading.btStart, "clicked"); };
    form.Show();
    for (int i = 1; i <= 3; ++i) {
      Demo::Note(std::to_string(i));
      Yield();
    }
  };
  EXPECT_THAT(demo.Run("during 2 click frmDemo.btStart\nanswer message ok\n"
                       "during 3 dump frmOther\nwait 0")
                  .lines,
              ElementsAre(kShow, Note("1"), Note("2"), Note("clicked"), Note("3"), Error(3),
                          End("script")));
}

TEST_F(FrontEndTest, AYieldThatTheStartDidNotHaveIsOneOfTheFirstLine) {
  demo.program = [](const Text&) {
    frmDemo& form = The<frmDemo>();
    form.load = [](frmDemo& loading) {
      Noting(loading.pbDest, "inside");
      loading.btStart.on_click = [] {
        for (int i = 1; i <= 2; ++i) {
          Demo::Note(std::to_string(i));
          Yield();
        }
      };
    };
    form.Show();
    Yield();
  };
  EXPECT_THAT(
      demo.Run("during 2 click frmDemo.pbDest\nanswer message ok\nclick frmDemo.btStart").lines,
      ElementsAre(kShow, Note("1"), Note("2"), Note("inside"), End("script")));
}

TEST_F(FrontEndTest, WithoutAFormNoYieldCanComeAnyMore) {
  demo.program = [](const Text&) { Yield(); };
  EXPECT_THAT(demo.Run("during 2 dump\nwait 0").lines, ElementsAre(Error(1), End("returned")));
}

TEST_F(FrontEndTest, DuringCountsTheYieldsOfTheNextLine) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      Demo::Note("a");
      Yield();
      Demo::Note("b");
      Yield();
      Demo::Note("c");
    };
    Noting(form.pbDest, "inside");
  };
  EXPECT_THAT(
      demo.Run("click frmDemo.btStart\n"
               "during 2 click frmDemo.pbDest\nclick frmDemo.btStart\n"
               "click frmDemo.btStart")
          .lines,
      ElementsAre(kShow, Note("a"), Note("b"), Note("c"), Note("a"), Note("b"), Note("inside"),
                  Note("c"), Note("a"), Note("b"), Note("c"), End("script")));
}

TEST_F(FrontEndTest, SeveralMayBePendingInOneYield) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] { Yield(); };
    Noting(form.pbDest, "one");
    Noting(form.frCRC_0, "two");
  };
  EXPECT_THAT(demo.Run("during 1 click frmDemo.pbDest\nduring 1 click frmDemo.frCRC(0)\n"
                       "click frmDemo.btStart")
                  .lines,
              ElementsAre(kShow, Note("one"), Note("two"), End("script")));
}

TEST_F(FrontEndTest, WhatRunsInsideAYieldYieldsAgain) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      Demo::Note("outer");
      Yield();
      Demo::Note("outer done");
    };
    form.pbDest.on_click = [] {
      Demo::Note("inner");
      Yield();
      Demo::Note("inner done");
    };
    Noting(form.frCRC_0, "innermost");
  };
  EXPECT_THAT(demo.Run("during 1 click frmDemo.pbDest\nduring 2 click frmDemo.frCRC(0)\n"
                       "click frmDemo.btStart")
                  .lines,
              ElementsAre(kShow, Note("outer"), Note("inner"), Note("innermost"),
                          Note("inner done"), Note("outer done"), End("script")));
}

TEST_F(FrontEndTest, DuringAnAnswerQueuesItThen) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      Front().Message(u"1", u"", Icon::kNone, Buttons::kYesNo);
      Yield();
      Front().Message(u"2", u"", Icon::kNone, Buttons::kYesNo);
    };
  };
  EXPECT_THAT(demo.Run("wait 0\nduring 1 answer message yes\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, HasSubstr(R"("answer":"no")"), HasSubstr(R"("answer":"yes")"),
                          End("script")));
}

TEST_F(FrontEndTest, AnAnswerBetweenDoesNotTakeTheEventInsideAYield) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      Yield();
      Front().Message(u"1", u"", Icon::kNone, Buttons::kYesNo);
    };
    Noting(form.pbDest, "inside");
  };
  EXPECT_THAT(demo.Run("wait 0\nduring 1 click frmDemo.pbDest\nanswer message yes\n"
                       "click frmDemo.btStart")
                  .lines,
              ElementsAre(kShow, Note("inside"), HasSubstr(R"("answer":"yes")"), End("script")));
}

TEST_F(FrontEndTest, AYieldThatNeverComesIsAnError) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] { Yield(); };
    Noting(form.pbDest, "inside");
  };
  EXPECT_THAT(demo.Run("during 1 click frmDemo.pbDest\ncheck frmDemo.cxReport on\n"
                       "during 2 click frmDemo.pbDest\nclick frmDemo.btStart\n"
                       "click frmDemo.btStart\nduring 1 dump")
                  .lines,
              ElementsAre(kShow, Error(1), Error(3), Error(6), End("script")));
}

TEST_F(FrontEndTest, ThePassBehindALineIsNoYieldOfIt) {
  demo.prepare = [](frmDemo& form) { Noting(form.pbDest, "inside"); };
  EXPECT_THAT(demo.Run("dump frmOther\nduring 1 click frmDemo.pbDest\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Error(1), Error(2), End("script")));
}

// Time.

TEST_F(FrontEndTest, VirtualTimeBeginsAtZeroAndJumps) {
  demo.prepare = [](frmDemo& form) { form.btStart.on_click = [] { Demo::Note(Time()); }; };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\nwait 86400000\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Note("0"), Note("86400000"), End("script")));
}

TEST_F(FrontEndTest, RealTimePasses) {
  demo.prepare = [](frmDemo& form) {
    form.clInfo.SetInterval(20);
    form.clInfo.on_timer = [] { Demo::Note("tick"); };
    form.clInfo.SetActive(true);
  };
  const auto began = std::chrono::steady_clock::now();
  EXPECT_THAT(demo.Run("wait 30", {"--real-time"}).lines,
              ElementsAre(kShow, Note("tick"), End("script")));
  EXPECT_GE(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(30));
}

TEST_F(FrontEndTest, TimersFireInOrderWhileTheScriptWaits) {
  demo.prepare = [](frmDemo& form) {
    form.clExit.on_timer = [] { Demo::Note("exit " + Time()); };
    form.clInfo.on_timer = [] { Demo::Note("info " + Time()); };
    form.clExit.SetActive(true);
    form.clInfo.SetActive(true);
  };
  EXPECT_THAT(demo.Run("wait 1000").lines,
              ElementsAre(kShow, Note("info 300"), Note("info 600"), Note("info 900"),
                          Note("exit 1000"), End("script")));
}

TEST_F(FrontEndTest, ATimerThatIsOnFromTheBeginningRunsFromTheLoad) {
  class frmTicking : public Form {
   public:
    frmTicking() : Form("frmTicking", u"", 1, 1) {
      clOn.on_timer = [] { Demo::Note(Time()); };
    }
    Timer clOn{*this, "clOn", 50, true};
  };
  demo.program = [](const Text&) { The<frmTicking>().Show(); };
  EXPECT_THAT(demo.Run("wait 100").lines,
              ElementsAre(HasSubstr("show"), Note("50"), Note("100"), End("script")));
}

TEST_F(FrontEndTest, SwitchingOnAgainDoesNotRestartATimer) {
  demo.prepare = [](frmDemo& form) {
    form.clExit.on_timer = [] { Demo::Note(Time()); };
    form.btStart.on_click = [&form] { form.clExit.SetActive(true); };
  };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\nwait 900\nclick frmDemo.btStart\nwait 100").lines,
              ElementsAre(kShow, Note("1000"), End("script")));
}

TEST_F(FrontEndTest, TheTimersOfAFormThatGoesNeverFire) {
  class frmMore : public Form {
   public:
    frmMore() : Form("frmMore", u"", 1, 1) {}
  };
  demo.prepare = [](frmDemo& form) {
    form.clExit.on_timer = [] { Demo::Note("late"); };
    form.clExit.SetActive(true);
    form.unload = [](frmDemo& going) { going.clInfo.SetActive(true); };
    form.clInfo.on_timer = [] { Demo::Note("later"); };
  };
  demo.program = [this](const Text&) {
    The<frmMore>().Show();
    frmDemo& form = The<frmDemo>();
    form.load = demo.prepare;
    form.Show();
  };
  EXPECT_THAT(demo.Run("close frmDemo\nwait 5000").lines,
              ElementsAre(HasSubstr("frmMore"), kShow, kUnload, End("script")));
}

TEST_F(FrontEndTest, TimersFireInYieldsWhenTheirTimeHasCome) {
  demo.prepare = [](frmDemo& form) {
    form.clInfo.on_timer = [] { Demo::Note("tick " + Time()); };
    form.btStart.on_click = [&form] {
      form.clInfo.SetActive(true);
      Yield();
      const bool input = Front().WaitForInput(1000);
      Demo::Note(input ? "input" : "none");
      Yield();
      form.clInfo.SetActive(false);
      Demo::Note(Front().WaitForInput(1000) ? "input" : "none");
      Demo::Note(Time());
    };
  };
  EXPECT_THAT(demo.Run("click frmDemo.btStart").lines,
              ElementsAre(kShow, Note("input"), Note("tick 300"), Note("none"), Note("1300"),
                          End("script")));
}

// What WaitWithMessages does: wait, yield, and again while there is input and time left.
void WaitWithMessages(std::int32_t interval) {
  const std::int64_t end = std::int64_t{host::TheSystem().Ticks()} + interval;
  while (true) {
    const std::int64_t left = end - std::int64_t{host::TheSystem().Ticks()};
    if (left < 0) return;
    const bool input = Front().WaitForInput(static_cast<std::int32_t>(left));
    Yield();
    if (!input) return;
  }
}

TEST_F(FrontEndTest, AWaitOfTheProgramYieldsToo) {
  demo.prepare = [](frmDemo& form) {
    form.btStart.on_click = [] {
      WaitWithMessages(1000);
      Demo::Note("first over " + Time());
      WaitWithMessages(1000);
      Demo::Note("second over " + Time());
    };
    form.pbDest.on_click = [] { Demo::Note("inside " + Time()); };
  };
  // What the user does is there at the beginning of the wait whose yield it is.
  EXPECT_THAT(demo.Run("during 2 click frmDemo.pbDest\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Note("first over 1000"), Note("inside 1000"),
                          Note("second over 2000"), End("script")));
}

TEST_F(FrontEndTest, AWaitOfTheScriptYieldsToo) {
  demo.prepare = [](frmDemo& form) {
    form.pbDest.on_click = [] { Demo::Note("inside " + Time()); };
    form.clInfo.on_timer = [] { Demo::Note("tick " + Time()); };
    form.clInfo.SetActive(true);
  };
  EXPECT_THAT(demo.Run("wait 0\nduring 1 click frmDemo.pbDest\nwait 500").lines,
              ElementsAre(kShow, Note("inside 0"), Note("tick 300"), End("script")));
}

TEST_F(FrontEndTest, AnEndlessWaitWithNothingToComeEndsTheScript) {
  demo.prepare = [](frmDemo& form) { form.btStart.on_click = [] { Front().WaitForInput(-1); }; };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\ndump").lines, ElementsAre(kShow, End("script")));
  EXPECT_THAT(demo.Run("click frmDemo.btStart", {"--max-time", "50"}).lines,
              ElementsAre(kShow, End("time")));
}

}  // namespace
}  // namespace orvik::forms::headless
