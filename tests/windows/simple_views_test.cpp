// Labels, buttons, check boxes, fields, bars, timers.
#include "base/failure.h"
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class SimpleForm : public Form {
 public:
  SimpleForm() : Form("frmSimple", u"Форма", 6090, 4905) {
    over.SetVisible(false);
    inside.PutInto(over);
    start.on_click = [this] { ++starts; };
    label.on_click = [this] { ++label_clicks; };
    box.on_click = [this] { ++box_clicks; };
  }
  Label label{*this, "frCRC", {120, 120, 3000, 210}, u"x & y", 0};
  Button start{*this, "btStart", {120, 480, 1500, 375}, u"Начать"};
  CheckBox box{*this, "cxOne", {120, 960, 3000, 255}, u"Да"};
  TextBox text{*this, "txOne", {120, 1440, 3000, 315}, u"начало"};
  ProgressBar bar{*this, "pbMain", {120, 1920, 3000, 255}};
  Frame over{*this, "frOver", {0, 0, 6000, 4500}, u""};
  Button inside{*this, "btInside", {120, 120, 1500, 375}, u"Внутри"};
  Timer timer{*this, "clOne", 20, false};
  int starts = 0, label_clicks = 0, box_clicks = 0;
};

class SimpleViews : public WindowsTest {
 protected:
  SimpleViews() { form_.Show(); }
  SimpleForm form_;
};

TEST_F(SimpleViews, CarryTheirNames) {
  wchar_t name[64];
  const HANDLE atom = GetPropW(WindowOf(form_.label), L"Orvik.Name");
  GlobalGetAtomNameW(static_cast<ATOM>(reinterpret_cast<UINT_PTR>(atom)), name, 64);
  EXPECT_STREQ(name, L"frCRC(0)");
  GetClassNameW(WindowOf(form_), name, 64);
  EXPECT_STREQ(name, L"Orvik.frmSimple");
}

TEST_F(SimpleViews, ButtonReportsAClick) {
  Send(form_.start, BM_CLICK);
  EXPECT_EQ(form_.starts, 1);
}

TEST_F(SimpleViews, DisabledButtonReportsNone) {
  form_.start.SetEnabled(false);
  Send(form_.start, BM_CLICK);
  EXPECT_EQ(form_.starts, 0);
  Pump();
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form_.start)));
}

TEST_F(SimpleViews, WaitingClickFindsTheButtonDisabled) {
  const LPARAM at = MAKELPARAM(5, 5);
  PostMessageW(WindowOf(form_.start), WM_LBUTTONDOWN, MK_LBUTTON, at);
  PostMessageW(WindowOf(form_.start), WM_LBUTTONUP, 0, at);
  form_.start.SetEnabled(false);
  Pump();
  EXPECT_EQ(form_.starts, 0);
}

TEST_F(SimpleViews, CoveredButtonReportsNone) {
  form_.over.SetVisible(true);
  Pump();
  Send(form_.start, BM_CLICK);
  EXPECT_EQ(form_.starts, 0);
  EXPECT_TRUE(IsWindowVisible(WindowOf(form_.inside)));
  RECT area;
  GetWindowRect(WindowOf(form_.start), &area);
  POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
  EXPECT_NE(WindowFromPoint(middle), WindowOf(form_.start));
}

TEST_F(SimpleViews, LabelReportsAClickAndShowsAmpersands) {
  SendMessageW(WindowOf(form_.label), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  SendMessageW(WindowOf(form_.label), WM_LBUTTONUP, 0, 0);
  EXPECT_EQ(form_.label_clicks, 1);
  EXPECT_TRUE(GetWindowLongPtrW(WindowOf(form_.label), GWL_STYLE) & SS_NOPREFIX);
}

TEST_F(SimpleViews, CheckBoxShowsWhatTheModelHas) {
  Send(form_.box, BM_CLICK);
  EXPECT_TRUE(form_.box.checked());
  EXPECT_EQ(Send(form_.box, BM_GETCHECK), BST_CHECKED);
  form_.box.on_click = [this] { form_.box.SetValue(1); };
  Send(form_.box, BM_CLICK);
  EXPECT_EQ(Send(form_.box, BM_GETCHECK), BST_CHECKED) << "a handler may have the last word";
}

TEST_F(SimpleViews, CheckBoxSetByTheProgramIsNoClickOfItsOwn) {
  form_.box.SetValue(1);
  Pump();
  EXPECT_EQ(form_.box_clicks, 1) << "the model's own, no echo";
  EXPECT_EQ(Send(form_.box, BM_GETCHECK), BST_CHECKED);
}

TEST_F(SimpleViews, FieldTakesWhatIsTyped) {
  TypeInto(WindowOf(form_.text), L"Ёж");
  EXPECT_EQ(form_.text.text(), u"Ёж");
}

TEST_F(SimpleViews, DisabledFieldKeepsItsText) {
  form_.text.SetEnabled(false);
  TypeInto(WindowOf(form_.text), L"чужое");
  EXPECT_EQ(form_.text.text(), u"начало");
  EXPECT_EQ(WindowText(WindowOf(form_.text)), u"начало");
}

TEST_F(SimpleViews, BarFollowsTheModel) {
  form_.bar.SetMax(200000);
  form_.bar.SetValue(150000);
  Pump();
  EXPECT_EQ(Send(form_.bar, PBM_GETRANGE, FALSE), 200000);
  EXPECT_EQ(Send(form_.bar, PBM_GETPOS), 150000);
  form_.bar.SetValue(200000);
  Pump();
  EXPECT_EQ(Send(form_.bar, PBM_GETPOS), 200000);
}

TEST_F(SimpleViews, TimerFiresUntilItIsSwitchedOff) {
  int fired = 0;
  form_.timer.on_timer = [&] {
    if (++fired == 3) form_.timer.SetActive(false);
  };
  PumpFor(60);
  EXPECT_EQ(fired, 0);
  form_.timer.SetActive(true);
  PumpFor(400);
  EXPECT_EQ(fired, 3);
}

TEST_F(SimpleViews, FailingHandlerEndsItsEventOnly) {
  form_.start.on_click = [] { throw Failure{}; };
  Send(form_.start, BM_CLICK);
  Send(form_.box, BM_CLICK);
  EXPECT_TRUE(form_.box.checked());
}

TEST_F(SimpleViews, FormMayGoFromWithinItsOwnEvent) {
  SimpleForm other;
  other.Show();
  other.start.on_click = [&] { other.Unload(); };
  const HWND window = WindowOf(other);
  Send(other.start, BM_CLICK);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(other.unloaded());
}

TEST_F(SimpleViews, TitleBarClosesTheForm) {
  SimpleForm other;
  other.Show();
  SendMessageW(WindowOf(other), WM_CLOSE, 0, 0);
  EXPECT_TRUE(other.unloaded());
}

TEST_F(SimpleViews, LastFormEndsTheProcess) {
  try {
    form_.Unload();
    FAIL() << "the process goes on";
  } catch (const Ended& ended) {
    EXPECT_EQ(ended.reason, EndReason::kClosed);
  }
}

TEST_F(SimpleViews, FormGoesOnTop) {
  form_.SetTopmost(true);
  Pump();
  EXPECT_TRUE(GetWindowLongPtrW(WindowOf(form_), GWL_EXSTYLE) & WS_EX_TOPMOST);
  form_.SetTopmost(false);
  Pump();
  EXPECT_FALSE(GetWindowLongPtrW(WindowOf(form_), GWL_EXSTYLE) & WS_EX_TOPMOST);
}

TEST_F(SimpleViews, ClipboardTakesAText) {
  front_.PutOnClipboard(u"x-1567561609 Байт");
  ASSERT_TRUE(OpenClipboard(nullptr));
  const auto* text = static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  EXPECT_STREQ(text, L"x-1567561609 Байт");
  CloseClipboard();
}

}  // namespace
}  // namespace orvik::forms::win32
