#include "forms/headless/user.h"

#include <gmock/gmock.h>

#include "base/failure.h"
#include "forms/instance.h"
#include "unit/forms/headless/demo.h"
#include "unit/support/test_front_end.h"

namespace orvik::forms::headless {
namespace {

using testing::ElementsAre;

class UserTest : public testing::Test {
 protected:
  UserTest() : form(The<frmDemo>()) {
    form.Show();
    for (TextView item : {u"a", u"b", u"c"}) {
      form.cbOut.Add(item);
      form.lbPlain.Add(item);
      form.lbBoxes.Add(item);
      form.lvMain.Add(item);
    }
    Listen(form.btStart, "start");
    Listen(form.lbPlain, "plain");
    Listen(form.lbBoxes, "boxes");
    Listen(form.txAnswer, "answer");
    Listen(form.lvMain, "view");
    form.on_mouse_down = [this](Mouse mouse) { Hear("form down", mouse.button, mouse.shift); };
    form.on_mouse_up = [this](Mouse mouse) { Hear("form up", mouse.button, mouse.shift); };
    form.on_key_down = [this](Key& key) { Hear("form keydown", key.code, key.shift); };
    form.on_key_press = [this](int character) { Hear("form keypress", character); };
    form.on_key_up = [this](Key& key) { Hear("form keyup", key.code, key.shift); };
  }
  void Hear(const std::string& what, int a, int b = -1) {
    heard.push_back(what + " " + std::to_string(a) + (b < 0 ? "" : " " + std::to_string(b)));
  }
  void Listen(Control& control, const std::string& name) {
    control.on_click = [this, name] { heard.push_back(name + " click"); };
    control.on_double_click = [this, name] { heard.push_back(name + " dblclick"); };
    control.on_mouse_down = [this, name](Mouse m) { Hear(name + " down", m.button, m.shift); };
    control.on_mouse_up = [this, name](Mouse m) { Hear(name + " up", m.button, m.shift); };
    control.on_key_down = [this, name](Key& key) {
      Hear(name + " keydown", key.code, key.shift);
      if (key.code == kKeyDelete) key.code = 0;
    };
    control.on_key_press = [this, name](int character) { Hear(name + " keypress", character); };
    control.on_key_up = [this, name](Key& key) { Hear(name + " keyup", key.code, key.shift); };
  }
  // Plays one line as the front end does; the answer is why it couldn't be.
  std::string Line(const std::string& text) {
    std::string reason;
    const auto script = ParseScript(text, reason);
    EXPECT_TRUE(script) << reason;
    if (!script) return reason;
    std::string why = "not the user's doing";
    std::visit(
        [&](const auto& event) {
          if constexpr (requires { Do(event); }) why = Do(event);
        },
        script->at(0).event);
    return why;
  }
  void Works(const std::string& text) { EXPECT_EQ(Line(text), "") << text; }
  void Refused(const std::string& text) {
    const auto before = heard;
    EXPECT_NE(Line(text), "") << text;
    EXPECT_EQ(heard, before) << text;
  }

  test::TestFrontEnd front;
  frmDemo& form;
  std::vector<std::string> heard;
};

TEST_F(UserTest, PressesAButton) {
  Works("click frmDemo.btStart");
  EXPECT_THAT(heard, ElementsAre("start click"));
  Works("click frmDemo.pbDest");
  Works("click frmDemo.frCRC(1)");
  Refused("click frmDemo.btStart 0");
}

TEST_F(UserTest, TogglesACheckBox) {
  form.cxReport.on_click = [this] { heard.emplace_back("box click"); };
  Works("click frmDemo.cxReport");
  EXPECT_EQ(form.cxReport.value(), 1);
  Works("click frmDemo.cxReport");
  EXPECT_EQ(form.cxReport.value(), 0);
  Works("check frmDemo.cxReport off");
  EXPECT_THAT(heard, ElementsAre("box click", "box click"));
  Works("check frmDemo.cxReport on");
  Works("check frmDemo.cxReport on");
  EXPECT_EQ(form.cxReport.value(), 1);
  EXPECT_EQ(heard.size(), 3U);
  Refused("check frmDemo.cxReport 0 on");
  Refused("check frmDemo.btStart on");
}

TEST_F(UserTest, AClickOnAnEntryBringsDownUpAndClick) {
  Works("click frmDemo.lbPlain 1");
  EXPECT_THAT(heard, ElementsAre("plain down 1 0", "plain up 1 0", "plain click"));
  EXPECT_EQ(form.lbPlain.index(), 1);
  EXPECT_TRUE(form.lbPlain.Selected(1));
  Works("click frmDemo.lbPlain 2");
  EXPECT_FALSE(form.lbPlain.Selected(1));
  Refused("click frmDemo.lbPlain 3");
  Refused("click frmDemo.lbPlain");
  EXPECT_EQ(form.lbPlain.index(), 2);
}

TEST_F(UserTest, ChecksTheBoxOfAnEntry) {
  Works("check frmDemo.lbBoxes 2 on");
  EXPECT_TRUE(form.lbBoxes.Checked(2));
  Works("check frmDemo.lbBoxes 2 off");
  EXPECT_FALSE(form.lbBoxes.Checked(2));
  Refused("check frmDemo.lbBoxes 3 on");
  Refused("check frmDemo.lbBoxes on");
  Refused("check frmDemo.lbPlain 0 on");
}

TEST_F(UserTest, TypesIntoBoxesOnly) {
  Works("type frmDemo.txAnswer \"новый\"");
  EXPECT_EQ(form.txAnswer.text(), u"новый");
  Works("type frmDemo.cbOut \"T:\\\\x\"");
  EXPECT_EQ(form.cbOut.text(), u"T:\\x");
  EXPECT_EQ(form.cbOut.index(), -1);
  Refused("type frmDemo.btStart \"x\"");
}

TEST_F(UserTest, ALockedComboBoxRefuses) {
  form.cbOut.SetLocked(true);
  Refused("type frmDemo.cbOut \"x\"");
  Refused("select frmDemo.cbOut 1");
  Refused("click frmDemo.cbOut 1");
  EXPECT_EQ(form.cbOut.text(), u"out");
}

TEST_F(UserTest, SelectsAsByKeyboard) {
  Works("select frmDemo.lbBoxes 2 0");
  EXPECT_THAT(heard, ElementsAre("boxes click"));
  EXPECT_TRUE(form.lbBoxes.Selected(0));
  EXPECT_FALSE(form.lbBoxes.Selected(1));
  EXPECT_TRUE(form.lbBoxes.Selected(2));
  EXPECT_EQ(form.lbBoxes.index(), 0);
  Works("select frmDemo.lbBoxes");
  EXPECT_FALSE(form.lbBoxes.Selected(0));
  EXPECT_EQ(form.lbBoxes.index(), -1);
  Refused("select frmDemo.lbBoxes 0 3");
  Refused("select frmDemo.lbPlain 0 1");
  Refused("select frmDemo.btStart 0");
}

TEST_F(UserTest, RowsOfAListViewCountFromOne) {
  Works("click frmDemo.lvMain 1");
  EXPECT_THAT(heard, ElementsAre("view down 1 0", "view up 1 0", "view click"));
  EXPECT_EQ(form.lvMain.current(), 1);
  EXPECT_TRUE(form.lvMain.At(1).selected);
  Refused("click frmDemo.lvMain 0");
  Refused("click frmDemo.lvMain 4");
  Refused("click frmDemo.lvMain");
  heard.clear();
  Works("select frmDemo.lvMain 3 2");
  EXPECT_TRUE(heard.empty());
  EXPECT_FALSE(form.lvMain.At(1).selected);
  EXPECT_TRUE(form.lvMain.At(3).selected);
  EXPECT_EQ(form.lvMain.current(), 2);
  Refused("select frmDemo.lvMain 0 1");
  Works("select frmDemo.lvMain");
  EXPECT_EQ(form.lvMain.current(), 0);
  Works("dblclick frmDemo.lvMain 3");
  EXPECT_THAT(heard, ElementsAre("view down 1 0", "view up 1 0", "view click", "view dblclick"));
  heard.clear();
  Works("mouse frmDemo.lvMain down 2 0 2");
  EXPECT_THAT(heard, ElementsAre("view down 2 0"));
  EXPECT_EQ(form.lvMain.current(), 2);
}

TEST_F(UserTest, ACommonDialogIsNothingToPointAt) { Refused("click frmDemo.cdMain"); }

TEST_F(UserTest, InAComboBoxTheEntryBecomesTheText) {
  Works("select frmDemo.cbOut 1");
  EXPECT_EQ(form.cbOut.text(), u"b");
  EXPECT_EQ(form.cbOut.index(), 1);
  Refused("select frmDemo.cbOut 3");
  Refused("select frmDemo.cbOut");
  Refused("select frmDemo.cbOut 0 1");
}

TEST_F(UserTest, DoubleClicks) {
  Works("dblclick frmDemo.lbPlain 2");
  EXPECT_THAT(heard,
              ElementsAre("plain down 1 0", "plain up 1 0", "plain click", "plain dblclick"));
  EXPECT_EQ(form.lbPlain.index(), 2);
  heard.clear();
  Works("dblclick frmDemo.lbPlain");
  EXPECT_THAT(heard, ElementsAre("plain dblclick"));
  heard.clear();
  Refused("dblclick frmDemo.lbPlain 3");
  Works("dblclick frmDemo.btStart");
  EXPECT_THAT(heard, ElementsAre("start click", "start dblclick"));
}

TEST_F(UserTest, MouseButtonsAtFormsControlsAndEntries) {
  Works("mouse frmDemo down 2 3");
  Works("mouse frmDemo up 1");
  Works("mouse frmDemo.btStart up 4 4");
  Works("mouse frmDemo.lbPlain down 2 1 1");
  EXPECT_THAT(heard, ElementsAre("form down 2 3", "form up 1 0", "start up 4 4", "plain down 2 1"));
  EXPECT_EQ(form.lbPlain.index(), 1);
  Works("mouse frmDemo.lbPlain up 2 0 0");
  EXPECT_EQ(form.lbPlain.index(), 0);
  Refused("mouse frmDemo.lbPlain down 1 0 3");
  Refused("mouse frmDemo.btStart down 1 0 0");
}

TEST_F(UserTest, AFormSeesAKeyAfterItsControl) {
  Works("key frmDemo.btStart 13 1");
  EXPECT_THAT(heard, ElementsAre("start keydown 13 1", "form keydown 13 1", "start keypress 13",
                                 "form keypress 13", "start keyup 13 1", "form keyup 13 1"));
  heard.clear();
  Works("key frmDemo 27");
  EXPECT_THAT(heard, ElementsAre("form keydown 27 0", "form keypress 27", "form keyup 27 0"));
}

TEST_F(UserTest, AKeyWithoutACharacterBringsNoPress) {
  Works("key frmDemo 116");
  EXPECT_THAT(heard, ElementsAre("form keydown 116 0", "form keyup 116 0"));
}

TEST_F(UserTest, AKeyThatIsTakenAwayTypesNothing) {
  form.btStart.on_key_down = [](Key& key) { key.code = 0; };
  Works("key frmDemo.btStart 13");
  EXPECT_THAT(heard, ElementsAre("start keyup 13 0", "form keyup 13 0"));
  heard.clear();
  form.on_key_down = [](Key& key) { key.code = 0; };
  Works("key frmDemo 13");
  EXPECT_THAT(heard, ElementsAre("form keyup 13 0"));
}

TEST_F(UserTest, AFormThatGoesAtAKeyHearsNoMore) {
  class frmOther : public Form {
   public:
    frmOther() : Form("frmOther", u"", 1, 1) {}
  } other;
  other.Show();
  form.on_key_down = [this](Key&) { form.Unload(); };
  Works("key frmDemo 13");
  EXPECT_TRUE(heard.empty());
}

TEST_F(UserTest, ChoosesAMenuItemOpenOrNot) {
  form.mnItem.on_click = [this] { heard.emplace_back("menu"); };
  form.mnItem.SetVisible(false);
  Works("menu frmDemo.mnItem(0)");
  EXPECT_THAT(heard, ElementsAre("menu"));
  Refused("menu frmDemo.btStart");
  Refused("menu frmDemo.mnItem");
  Refused("click frmDemo.mnItem(0)");
  form.mnItem.SetEnabled(false);
  Refused("menu frmDemo.mnItem(0)");
}

TEST_F(UserTest, DragsAndCloses) {
  Works("resize frmDemo 700 800");
  EXPECT_EQ(form.width(), 700);
  EXPECT_EQ(form.height(), 800);
  EXPECT_THROW(Line("close frmDemo"), test::ProcessEnded);
  EXPECT_TRUE(form.unloaded());
}

TEST_F(UserTest, NobodyReachesWhatIsNotThere) {
  for (const char* line :
       {"click frmNone.btStart", "click frmDemo.btNone", "click frmDemo.btstart", "key frmNone 27",
        "mouse frmNone down 1", "resize frmNone 1 1", "close frmNone", "menu frmNone.x",
        "click frmDemo.frCRC", "click frmDemo.clExit", "click frmDemo.lnOne(0)",
        "up frmDemo.btStart", "down frmDemo.btStart"}) {
    Refused(line);
  }
}

TEST_F(UserTest, NobodyReachesWhatIsHiddenOrDisabled) {
  const std::vector<std::string> lines = {"click frmDemo.btStart", "key frmDemo.btStart 13",
                                          "mouse frmDemo.btStart down 1",
                                          "dblclick frmDemo.btStart"};
  form.btStart.SetEnabled(false);
  for (const std::string& line : lines) Refused(line);
  form.btStart.SetEnabled(true);
  form.btStart.SetVisible(false);
  for (const std::string& line : lines) Refused(line);
  form.btStart.SetVisible(true);
  // The frame over the form covers what lies under it and shows what is in it.
  Refused("click frmDemo.btInside");
  form.frLog.SetVisible(true);
  for (const std::string& line : lines) Refused(line);
  Works("click frmDemo.btInside");
  form.frLog.SetEnabled(false);
  Refused("click frmDemo.btInside");
}

TEST_F(UserTest, AFormThatIsNotShownYetIsOutOfReach) {
  class frmLate : public Form {
   public:
    frmLate() : Form("frmLate", u"", 1, 1) {}
    std::string why;

   protected:
    void OnLoad() override {
      why = Do(Close{{"frmLate", ""}});
      EXPECT_EQ(FindForm("frmLate"), this);
    }
  } late;
  late.Show();
  EXPECT_NE(late.why, "");
  EXPECT_EQ(Do(Resize{{"frmLate", ""}, 5, 5}), "");
}

TEST(Keyboard, LettersAndDigitsComeAsTyped) {
  EXPECT_EQ(CharacterOf({65, 0}), 'a');
  EXPECT_EQ(CharacterOf({90, kShift}), 'Z');
  EXPECT_EQ(CharacterOf({48, 0}), '0');
  EXPECT_EQ(CharacterOf({49, kShift}), '!');
  EXPECT_EQ(CharacterOf({105, 0}), '9');
}

TEST(Keyboard, EditingKeysHaveCharacters) {
  EXPECT_EQ(CharacterOf({8, 0}), 8);
  EXPECT_EQ(CharacterOf({8, kShift}), 8);
  EXPECT_EQ(CharacterOf({13, 0}), 13);
  EXPECT_EQ(CharacterOf({27, 0}), 27);
  EXPECT_EQ(CharacterOf({32, 0}), 32);
}

TEST(Keyboard, OthersHaveNone) {
  for (int code : {16, 37, 46, 112, 116, 255}) EXPECT_EQ(CharacterOf({code, 0}), 0) << code;
  EXPECT_EQ(CharacterOf({65, kAlt}), 0);
  EXPECT_EQ(CharacterOf({48, kCtrl}), 0);
  EXPECT_EQ(CharacterOf({65, kCtrl}), 1);
}

}  // namespace
}  // namespace orvik::forms::headless
