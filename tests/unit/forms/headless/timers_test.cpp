#include "forms/headless/timers.h"

#include <gtest/gtest.h>

#include "forms/form.h"

namespace orvik::forms::headless {
namespace {

class frmClocks : public Form {
 public:
  frmClocks() : Form("frmClocks", u"", 1000, 1000) {}
  Timer a{*this, "clA", 100, false};
  Timer b{*this, "clB", 100, false};
  Timer slow{*this, "clSlow", 250, false};
};

class TimersTest : public testing::Test {
 protected:
  void Switch(Timer& timer, bool on, std::int64_t now) {
    timer.SetActive(on);
    timers.Follow(timer, now);
  }
  std::string Fired(std::int64_t now) {
    std::string names;
    timers.FireDue(now, [&](Timer& timer) {
      names += timer.name() + " ";
      if (on_fire) on_fire(timer);
    });
    return names;
  }
  frmClocks form;
  Timers timers;
  std::function<void(Timer&)> on_fire;
};

TEST_F(TimersTest, FireEveryIntervalFromTheActivation) {
  EXPECT_EQ(timers.NextDue(), std::nullopt);
  Switch(form.a, true, 7);
  EXPECT_EQ(timers.NextDue(), 107);
  EXPECT_EQ(Fired(106), "");
  EXPECT_EQ(Fired(107), "clA ");
  EXPECT_EQ(Fired(107), "");
  EXPECT_EQ(timers.NextDue(), 207);
}

TEST_F(TimersTest, InOrderOfDueTimeThenOfActivation) {
  Switch(form.slow, true, 0);
  Switch(form.b, true, 150);
  Switch(form.a, true, 150);
  EXPECT_EQ(Fired(250), "clSlow clB clA ");
  Switch(form.slow, false, 250);
  Switch(form.slow, true, 251);
  EXPECT_EQ(Fired(501), "clB clA clSlow ");
}

TEST_F(TimersTest, ALateTimerKeepsItsBeatAndMissesWhatIsOver) {
  Switch(form.a, true, 0);
  EXPECT_EQ(Fired(350), "clA ");
  EXPECT_EQ(timers.NextDue(), 400);
}

TEST_F(TimersTest, OneSwitchedOffByAnotherDoesNotFire) {
  Switch(form.a, true, 0);
  Switch(form.b, true, 0);
  on_fire = [&](Timer& timer) {
    if (&timer == &form.a) Switch(form.b, false, 100);
  };
  EXPECT_EQ(Fired(100), "clA ");
  EXPECT_EQ(timers.NextDue(), 200);
}

TEST_F(TimersTest, OneSwitchedOnInAHandlerBeginsThere) {
  Switch(form.a, true, 0);
  on_fire = [&](Timer& timer) {
    if (&timer == &form.a && !form.b.active()) Switch(form.b, true, 100);
  };
  EXPECT_EQ(Fired(100), "clA ");
  EXPECT_EQ(Fired(200), "clA clB ");
}

TEST_F(TimersTest, AHandlerThatYieldsFiresTheOthersOnce) {
  Switch(form.a, true, 0);
  Switch(form.b, true, 0);
  std::string nested;
  on_fire = [&](Timer& timer) {
    if (&timer == &form.a) {
      timers.FireDue(100, [&](Timer& inner) { nested += inner.name() + " "; });
    }
  };
  EXPECT_EQ(Fired(100), "clA ");
  EXPECT_EQ(nested, "clB ");
}

TEST_F(TimersTest, AnIntervalOfZeroIsOff) {
  form.a.SetInterval(0);
  Switch(form.a, true, 0);
  EXPECT_EQ(timers.NextDue(), std::nullopt);
}

TEST_F(TimersTest, AFormThatGoesTakesItsTimersAlong) {
  frmClocks other;
  Switch(form.a, true, 0);
  Switch(other.b, true, 0);
  timers.Forget(form);
  EXPECT_EQ(Fired(100), "clB ");
}

}  // namespace
}  // namespace orvik::forms::headless
