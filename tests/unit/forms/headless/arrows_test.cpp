// Up-down controls under a script.
#include <gtest/gtest.h>

#include "forms/headless/user.h"
#include "forms/instance.h"
#include "forms/simple_controls.h"
#include "unit/support/test_front_end.h"

namespace orvik::forms::headless {
namespace {

class frmArrows : public Form {
 public:
  frmArrows() : Form("frmArrows", u"Arrows", 6000, 4000) {}
  UpDown udSize{*this, "udSize", {0, 0, 270, 375}};
  Label frOne{*this, "frOne", {0, 500, 1000, 200}, u"one"};
};

class ArrowsTest : public testing::Test {
 protected:
  ArrowsTest() : form(The<frmArrows>()) {
    form.Show();
    form.udSize.on_up = [this] { ++ups; };
    form.udSize.on_down = [this] { ++downs; };
  }
  orvik::test::TestFrontEnd front;
  frmArrows& form;
  int ups = 0, downs = 0;
};

TEST_F(ArrowsTest, EachArrowHasItsHandler) {
  EXPECT_EQ(Do(Arrow{{"frmArrows", "udSize"}, true}), "");
  EXPECT_EQ(ups, 1);
  EXPECT_EQ(downs, 0);
  EXPECT_EQ(Do(Arrow{{"frmArrows", "udSize"}, false}), "");
  EXPECT_EQ(Do(Arrow{{"frmArrows", "udSize"}, false}), "");
  EXPECT_EQ(ups, 1);
  EXPECT_EQ(downs, 2);
}

TEST_F(ArrowsTest, DisabledOnesArentReached) {
  form.udSize.SetEnabled(false);
  EXPECT_EQ(Do(Arrow{{"frmArrows", "udSize"}, true}), "frmArrows.udSize can't be reached");
  EXPECT_EQ(ups, 0);
}

TEST_F(ArrowsTest, OtherControlsHaveNone) {
  EXPECT_EQ(Do(Arrow{{"frmArrows", "frOne"}, true}), "frmArrows.frOne has no arrows");
  EXPECT_EQ(Do(Arrow{{"frmArrows", "none"}, true}), "no control frmArrows.none");
}

}  // namespace
}  // namespace orvik::forms::headless
