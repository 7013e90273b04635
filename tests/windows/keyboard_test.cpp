#include <vector>

#include "base/failure.h"
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class KeyForm : public Form {
 public:
  KeyForm() : Form("frmKeys", u"Форма", 6090, 3000) {
    cover.SetVisible(false);
    inside.PutInto(cover);
    start.MakeDefault();
    start.on_click = [this] { ++starts; };
    other.on_click = [this] { ++others; };
  }
  Label label{*this, "mtOne", {120, 60, 3000, 210}, u"подпись"};
  ComboBox first{*this, "cbOut", {120, 300, 3000, 315}, u""};
  Picture picture{*this, "pbDest", {3300, 300, 375, 315}, Picture::Image::kFolder};
  CheckBox box{*this, "cxOne", {120, 720, 3000, 255}, u"Да"};
  Button start{*this, "btStart", {120, 1080, 1500, 375}, u"Начать"};
  Button other{*this, "btOther", {1800, 1080, 1500, 375}, u"Другое"};
  CheckBox below{*this, "cxBelow", {120, 4000, 3000, 255}, u"Ниже края"};
  Frame cover{*this, "frCover", {0, 0, 6000, 2595}, u""};
  Button inside{*this, "btInside", {120, 120, 1500, 375}, u"Внутри"};
  int starts = 0, others = 0;
};

class Keyboard : public WindowsTest {
 protected:
  Keyboard() {
    form_.Show();
    Pump();
  }
  Control* Focused() { return win32::WindowOf(form_).Focused(); }
  KeyForm form_;
};

TEST_F(Keyboard, ComesUpInTheFirstField) { EXPECT_EQ(Focused(), &form_.first); }

TEST_F(Keyboard, TabGoesThroughWhatCanBeReached) {
  form_.picture.SetEnabled(false);
  Pump();
  std::vector<Control*> seen;
  for (int i = 0; i < 4; ++i) {
    Press(VK_TAB);
    seen.push_back(Focused());
  }
  EXPECT_EQ(seen, (std::vector<Control*>{&form_.box, &form_.start, &form_.other, &form_.first}));
}

TEST_F(Keyboard, ShiftTabGoesBack) {
  Press(VK_TAB, kShift);
  EXPECT_EQ(Focused(), &form_.other) << "what lies below the edge is passed over";
}

TEST_F(Keyboard, FrameTakesTheKeyboardFromWhatItCovers) {
  form_.cover.SetVisible(true);
  Pump();
  EXPECT_EQ(Focused(), &form_.inside);
  Press(VK_TAB);
  EXPECT_EQ(Focused(), &form_.inside);
}

TEST_F(Keyboard, DisabledControlPassesTheKeyboardOn) {
  Press(VK_TAB);
  ASSERT_EQ(Focused(), &form_.picture);
  form_.picture.SetEnabled(false);
  Pump();
  EXPECT_EQ(Focused(), &form_.box);
}

TEST_F(Keyboard, ArrowsMoveBetweenButtons) {
  Press(VK_TAB);
  Press(VK_TAB);
  Press(VK_DOWN);
  EXPECT_EQ(Focused(), &form_.start);
  Press(VK_LEFT);
  EXPECT_EQ(Focused(), &form_.box);
}

TEST_F(Keyboard, SpaceToggles) {
  Press(VK_TAB);
  Press(VK_TAB);
  Press(VK_SPACE);
  EXPECT_TRUE(form_.box.checked());
}

TEST_F(Keyboard, EnterPressesTheDefaultButton) {
  Press(VK_RETURN);
  EXPECT_EQ(form_.starts, 1);
  form_.start.SetEnabled(false);
  Press(VK_RETURN);
  EXPECT_EQ(form_.starts, 1);
}

TEST_F(Keyboard, EnterPressesTheButtonWithTheFocus) {
  for (int i = 0; i < 4; ++i) Press(VK_TAB);
  ASSERT_EQ(Focused(), &form_.other);
  Press(VK_RETURN);
  EXPECT_EQ(form_.others, 1);
  EXPECT_EQ(form_.starts, 0);
}

TEST_F(Keyboard, KeyReachesTheControlThenTheForm) {
  std::vector<std::u16string> order;
  form_.first.on_key_down = [&](Key& key) {
    order.push_back(u"control " + Text(1, static_cast<char16_t>(key.code)));
  };
  form_.on_key_down = [&](Key&) { order.push_back(u"form"); };
  form_.on_key_press = [&](int) { order.push_back(u"press"); };
  form_.on_key_up = [&](Key&) { order.push_back(u"up"); };
  Press('A');
  EXPECT_EQ(order, (std::vector<std::u16string>{u"control A", u"form", u"press", u"up"}));
}

TEST_F(Keyboard, CharactersAreTypedBehindTheHandlers) {
  Press('A');
  EXPECT_EQ(form_.first.text().size(), 1U);
}

TEST_F(Keyboard, KeyThatIsTakenAwayLeavesNoCharacter) {
  form_.first.on_key_down = [](Key& key) { key.code = 0; };
  bool form_saw_it = false;
  form_.on_key_down = [&](Key&) { form_saw_it = true; };
  Press('A');
  EXPECT_EQ(form_.first.text(), u"");
  EXPECT_FALSE(form_saw_it);
}

TEST_F(Keyboard, ShiftStateArrives) {
  Key got;
  form_.first.on_key_down = [&](Key& key) {
    if (key.code == kKeyBackspace) got = key;
  };
  Press(VK_BACK, kShift);
  EXPECT_EQ(got.shift, kShift);
}

TEST_F(Keyboard, FailingHandlerTakesNothingAway) {
  form_.first.on_key_down = [](Key&) { throw Failure{}; };
  Press('A');
  EXPECT_EQ(form_.first.text().size(), 1U);
}

class LabelForm : public Form {
 public:
  LabelForm() : Form("frmLabels", u"Форма", 6090, 3000) {}
  Label label{*this, "mtOne", {120, 60, 3000, 210}, u"подпись"};
};

TEST_F(Keyboard, EscReachesAFormWithoutFields) {
  LabelForm form;
  form.Show();
  Pump();
  int down = 0;
  int press = 0;
  form.on_key_down = [&](Key& key) { down = key.code; };
  form.on_key_press = [&](int character) { press = character; };
  ASSERT_EQ(GetFocus(), WindowOf(form));
  Press(VK_ESCAPE);
  EXPECT_EQ(down, kKeyEscape);
  EXPECT_EQ(press, kKeyEscape);
}

TEST_F(Keyboard, LabelThatDoesSomethingIsPressedByKeys) {
  LabelForm form;
  int clicks = 0;
  form.label.on_click = [&] { ++clicks; };
  form.Show();
  Pump();
  ASSERT_EQ(win32::WindowOf(form).Focused(), &form.label);
  Press(VK_RETURN);
  Press(VK_SPACE);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace orvik::forms::win32
