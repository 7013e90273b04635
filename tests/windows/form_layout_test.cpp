#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class LayoutForm : public Form {
 public:
  LayoutForm() : Form("frmLayout", u"Форма", 6090, 3405) {
    right.SetAnchor(Control::Anchor::kRight);
    wide.SetAnchor(Control::Anchor::kStretch);
    frame.SetAnchor(Control::Anchor::kStretch);
    inside.SetAnchor(Control::Anchor::kRight);
    inside.PutInto(frame);
  }
  Button fixed{*this, "btFixed", {150, 300, 1500, 375}, u"Левая"};
  Button right{*this, "btRight", {4500, 300, 1350, 375}, u"Правая"};
  TextBox wide{*this, "txWide", {150, 900, 5700, 315}, u""};
  Frame frame{*this, "rmOne", {150, 1500, 5700, 1200}, u"Рамка"};
  Button inside{*this, "btInside", {3000, 300, 1500, 375}, u"Внутри"};
  ProgressBar bar{*this, "pbBar", {150, 2700, 5700, 255}};
  CheckBox over_bar{*this, "cxOverBar", {150, 2700, 5700, 255}, u"Поверх"};
  int resizes = 0;

 private:
  void OnResize() override { ++resizes; }
};

class FixedForm : public Form {
 public:
  FixedForm() : Form("frmFixed", u"Форма", 6090, 3405) {}
  Label label{*this, "mtOne", {150, 150, 3000, 210}, u"подпись"};
};

class FormLayout : public WindowsTest {
 protected:
  FormLayout() {
    form_.Show();
    Pump();
    EXPECT_EQ(form_.resizes, 1) << "the first showing";
    form_.resizes = 0;
  }
  SIZE Client(const Form& form) {
    RECT area;
    GetClientRect(WindowOf(form), &area);
    return {area.right, area.bottom};
  }
  int Pixels(int twips) { return MulDiv(twips, DpiOf(WindowOf(form_)), 1440); }
  void Drag(int wider) {
    RECT area;
    GetWindowRect(WindowOf(form_), &area);
    SetWindowPos(WindowOf(form_), nullptr, area.left, area.top, area.right - area.left + wider,
                 area.bottom - area.top, SWP_NOZORDER);
    Pump();
  }
  LayoutForm form_;
};

TEST_F(FormLayout, InnerSizeIsTheModels) {
  EXPECT_EQ(Client(form_).cx, Pixels(6000));
  EXPECT_EQ(Client(form_).cy, Pixels(3000));
  EXPECT_EQ(Area(form_.fixed).left, Pixels(150));
  EXPECT_EQ(Area(form_.fixed).right, Pixels(1650));
  EXPECT_EQ(Area(form_.inside).left, Pixels(3150));
}

TEST_F(FormLayout, AnchoredControlsFollowTheWidth) {
  Drag(60);
  EXPECT_EQ(Area(form_.fixed).left, Pixels(150));
  EXPECT_EQ(Area(form_.right).left, Pixels(4500) + 60);
  EXPECT_EQ(Area(form_.right).right, Pixels(5850) + 60);
  EXPECT_EQ(Area(form_.wide).left, Pixels(150));
  EXPECT_EQ(Area(form_.wide).right, Pixels(5850) + 60);
  EXPECT_EQ(Area(form_.inside).left, Pixels(3150) + 60);
}

TEST_F(FormLayout, ModelLearnsTheWidthInTwips) {
  Drag(60);
  EXPECT_EQ(form_.width(), 6090 + MulDiv(60, 1440, DpiOf(WindowOf(form_))));
  EXPECT_EQ(form_.height(), 3405);
  EXPECT_EQ(form_.resizes, 1);
}

TEST_F(FormLayout, ProgramChangesTheHeightOnceAndKeepsTheWidth) {
  Drag(60);
  form_.SetSize(form_.width(), 4905);
  Pump();
  EXPECT_EQ(form_.resizes, 2) << "one by the user, one by the program, no echo";
  EXPECT_EQ(Client(form_).cx, Pixels(6000) + 60);
  EXPECT_EQ(Client(form_).cy, Pixels(4500));
}

TEST_F(FormLayout, IsNeverNarrowerThanDesigned) {
  Drag(60);
  RECT outer;
  GetWindowRect(WindowOf(form_), &outer);
  MINMAXINFO limits{};
  SendMessageW(WindowOf(form_), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, outer.right - outer.left - 60);
  EXPECT_EQ(limits.ptMinTrackSize.y, outer.bottom - outer.top);
  EXPECT_EQ(limits.ptMaxTrackSize.y, outer.bottom - outer.top);
}

TEST_F(FormLayout, ASizableFormIsNeverNarrowerThanItSays) {
  FixedForm fixed;
  fixed.MakeSizable(fixed.width() - 600);
  fixed.Show();
  RECT outer;
  GetWindowRect(WindowOf(fixed), &outer);
  MINMAXINFO limits{};
  SendMessageW(WindowOf(fixed), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, outer.right - outer.left - Pixels(600));
}

TEST_F(FormLayout, FormWithoutAnchorsHasNoSizingBorder) {
  FixedForm fixed;
  fixed.Show();
  EXPECT_FALSE(GetWindowLongPtrW(WindowOf(fixed), GWL_STYLE) & WS_THICKFRAME);
  EXPECT_TRUE(GetWindowLongPtrW(WindowOf(form_), GWL_STYLE) & WS_THICKFRAME);
  EXPECT_EQ(Client(fixed).cx, Pixels(6000));
}

TEST_F(FormLayout, CentredFormIsInTheMiddleOfTheWorkArea) {
  RECT work;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  RECT area;
  GetWindowRect(WindowOf(form_), &area);
  EXPECT_NEAR(area.left - work.left, work.right - area.right, 1);
  EXPECT_NEAR(area.top - work.top, work.bottom - area.bottom, 1);
}

TEST_F(FormLayout, NewResolutionLaysOutAnew) {
  RECT suggested;
  GetWindowRect(WindowOf(form_), &suggested);
  SendMessageW(WindowOf(form_), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  Pump();
  RECT outer;
  GetWindowRect(WindowOf(form_), &outer);
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(WindowOf(form_), GWL_STYLE));
  const SIZE wanted = OuterSize({600, 300}, style, WS_EX_CONTROLPARENT, 144);
  EXPECT_EQ(outer.right - outer.left, wanted.cx);
  EXPECT_EQ(outer.bottom - outer.top, wanted.cy);
  EXPECT_EQ(Area(form_.fixed).left, 15);
  EXPECT_EQ(Area(form_.right).right, 585);
  EXPECT_EQ(form_.width(), 6090);
  EXPECT_EQ(form_.resizes, 0);
}

TEST_F(FormLayout, LaterControlLiesOverAnEarlierOne) {
  EXPECT_EQ(GetWindow(WindowOf(form_.bar), GW_HWNDPREV), WindowOf(form_.over_bar));
}

}  // namespace
}  // namespace orvik::forms::win32
