// Pairs of arrows.
#include "windows_test.h"

namespace orvik::forms::win32 {
namespace {

class ArrowForm : public Form {
 public:
  ArrowForm() : Form("frmArrows", u"Форма", 6090, 4905) {
    arrows.on_up = [this] { ++ups; };
    arrows.on_down = [this] { ++downs; };
  }
  UpDown arrows{*this, "udSize", {120, 120, 270, 375}};
  int ups = 0, downs = 0;
};

class UpDownArrows : public WindowsTest {
 protected:
  UpDownArrows() { form_.Show(); }
  void Click(int quarter) {
    RECT area;
    GetClientRect(WindowOf(form_.arrows), &area);
    const LPARAM at = MAKELPARAM(area.right / 2, area.bottom * quarter / 4);
    Send(form_.arrows, WM_LBUTTONDOWN, MK_LBUTTON, at);
    Send(form_.arrows, WM_LBUTTONUP, 0, at);
  }
  ArrowForm form_;
};

TEST_F(UpDownArrows, UpperAndLowerArrowArePressed) {
  Click(1);
  EXPECT_EQ(form_.ups, 1);
  EXPECT_EQ(form_.downs, 0);
  Click(3);
  Click(3);
  EXPECT_EQ(form_.ups, 1);
  EXPECT_EQ(form_.downs, 2);
}

// The window has a value of its own, which must not run into an end.
TEST_F(UpDownArrows, HaveNoStop) {
  for (int i = 0; i < 1200; ++i) Click(1);
  EXPECT_EQ(form_.ups, 1200);
  EXPECT_EQ(Send(form_.arrows, UDM_GETPOS32), 0);
}

TEST_F(UpDownArrows, ArePressedByKeyboard) {
  SetFocus(WindowOf(form_.arrows));
  Press(VK_UP);
  EXPECT_EQ(form_.ups, 1);
  Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_EQ(form_.downs, 2);
}

TEST_F(UpDownArrows, DisabledOnesDoNothing) {
  form_.arrows.SetEnabled(false);
  Pump();
  Click(1);
  EXPECT_EQ(form_.ups, 0);
}

}  // namespace
}  // namespace orvik::forms::win32
