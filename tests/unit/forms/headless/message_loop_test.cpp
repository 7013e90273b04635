// Runs of the demo form behind a script: events inside yields, timers and waits.
#include <gmock/gmock.h>

#include "forms/headless/headless_front_end.h"
#include "forms/instance.h"
#include "unit/forms/headless/demo_lines.h"

namespace orvik::forms::headless {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class MessageLoopTest : public testing::Test {
 protected:
  Demo demo;
};

// Events inside yields.

TEST_F(MessageLoopTest, DuringServesTheStartOfTheProgram) {
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

TEST_F(MessageLoopTest, AYieldThatTheStartDidNotHaveIsOneOfTheFirstLine) {
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

TEST_F(MessageLoopTest, WithoutAFormNoYieldCanComeAnyMore) {
  demo.program = [](const Text&) { Yield(); };
  EXPECT_THAT(demo.Run("during 2 dump\nwait 0").lines, ElementsAre(Error(1), End("returned")));
}

TEST_F(MessageLoopTest, DuringCountsTheYieldsOfTheNextLine) {
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

TEST_F(MessageLoopTest, SeveralMayBePendingInOneYield) {
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

TEST_F(MessageLoopTest, WhatRunsInsideAYieldYieldsAgain) {
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

TEST_F(MessageLoopTest, DuringAnAnswerQueuesItThen) {
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

TEST_F(MessageLoopTest, AnAnswerBetweenDoesNotTakeTheEventInsideAYield) {
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

TEST_F(MessageLoopTest, AYieldThatNeverComesIsAnError) {
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

TEST_F(MessageLoopTest, ThePassBehindALineIsNoYieldOfIt) {
  demo.prepare = [](frmDemo& form) { Noting(form.pbDest, "inside"); };
  EXPECT_THAT(demo.Run("dump frmOther\nduring 1 click frmDemo.pbDest\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Error(1), Error(2), End("script")));
}

// Time.

TEST_F(MessageLoopTest, VirtualTimeBeginsAtZeroAndJumps) {
  demo.prepare = [](frmDemo& form) { form.btStart.on_click = [] { Demo::Note(Time()); }; };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\nwait 86400000\nclick frmDemo.btStart").lines,
              ElementsAre(kShow, Note("0"), Note("86400000"), End("script")));
}

TEST_F(MessageLoopTest, RealTimePasses) {
  demo.prepare = [](frmDemo& form) {
    form.clInfo.SetInterval(100);
    form.clInfo.on_timer = [] { Demo::Note("tick"); };
    form.clInfo.SetActive(true);
  };
  const auto began = std::chrono::steady_clock::now();
  EXPECT_THAT(demo.Run("wait 120", {"--real-time"}).lines,
              ElementsAre(kShow, Note("tick"), End("script")));
  EXPECT_GE(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(120));
}

TEST_F(MessageLoopTest, TimersFireInOrderWhileTheScriptWaits) {
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

TEST_F(MessageLoopTest, ATimerThatIsOnFromTheBeginningRunsFromTheLoad) {
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

TEST_F(MessageLoopTest, SwitchingOnAgainDoesNotRestartATimer) {
  demo.prepare = [](frmDemo& form) {
    form.clExit.on_timer = [] { Demo::Note(Time()); };
    form.btStart.on_click = [&form] { form.clExit.SetActive(true); };
  };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\nwait 900\nclick frmDemo.btStart\nwait 100").lines,
              ElementsAre(kShow, Note("1000"), End("script")));
}

TEST_F(MessageLoopTest, TheTimersOfAFormThatGoesNeverFire) {
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

TEST_F(MessageLoopTest, TimersFireInYieldsWhenTheirTimeHasCome) {
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

TEST_F(MessageLoopTest, APassOfTheMessageLoopFollowsEachLine) {
  demo.prepare = [](frmDemo& form) {
    form.clExit.on_timer = [] { Demo::Note("tick"); };
    form.btStart.on_click = [&form] {
      form.clExit.SetActive(true);
      Front().WaitForInput(1000);
    };
    form.pbDest.on_click = [] { Demo::Note("next line"); };
  };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\nclick frmDemo.pbDest").lines,
              ElementsAre(kShow, Note("tick"), Note("next line"), End("script")));
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

TEST_F(MessageLoopTest, AWaitOfTheProgramYieldsToo) {
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

TEST_F(MessageLoopTest, AWaitOfTheScriptYieldsToo) {
  demo.prepare = [](frmDemo& form) {
    form.pbDest.on_click = [] { Demo::Note("inside " + Time()); };
    form.clInfo.on_timer = [] { Demo::Note("tick " + Time()); };
    form.clInfo.SetActive(true);
  };
  EXPECT_THAT(demo.Run("wait 0\nduring 1 click frmDemo.pbDest\nwait 500").lines,
              ElementsAre(kShow, Note("inside 0"), Note("tick 300"), End("script")));
}

TEST_F(MessageLoopTest, AnEndlessWaitWithNothingToComeEndsTheScript) {
  demo.prepare = [](frmDemo& form) { form.btStart.on_click = [] { Front().WaitForInput(-1); }; };
  EXPECT_THAT(demo.Run("click frmDemo.btStart\ndump").lines, ElementsAre(kShow, End("script")));
  EXPECT_THAT(demo.Run("click frmDemo.btStart", {"--max-time", "50"}).lines,
              ElementsAre(kShow, End("time")));
}

}  // namespace
}  // namespace orvik::forms::headless
