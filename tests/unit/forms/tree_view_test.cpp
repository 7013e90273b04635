#include "forms/tree_view.h"

#include "base/failure.h"
#include "forms/form.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik::forms {
namespace {

struct frmTree : Form {
  frmTree() : Form("frmTree", u"", 1000, 1000) {}
  TreeView tv{*this, "tv", {}};
};

class Tree : public test::ProgramTest {
 protected:
  Tree() { The<frmTree>().Show(); }
  TreeView& tv = The<frmTree>().tv;
};

TEST_F(Tree, PositionsAreThoseOfAdditionWhateverTheParents) {
  EXPECT_EQ(tv.Add(u"a", u"ka"), 1);
  EXPECT_EQ(tv.Add(u"b", u"kb"), 2);
  EXPECT_EQ(tv.Add(u"a1", u"", 1), 3);
  EXPECT_EQ(tv.At(3).parent, 1);
  EXPECT_EQ(tv.Find(u"KB"), 2);
  EXPECT_EQ(tv.Find(u"kc"), 0);
}

TEST_F(Tree, AKeyIsUniqueAndAParentMustBeThere) {
  tv.Add(u"a", u"k");
  EXPECT_THROW(tv.Add(u"b", u"K"), Failure);
  EXPECT_THROW(tv.Add(u"b", u"", 2), Failure);
  EXPECT_THROW(tv.At(0), Failure);
  EXPECT_THROW(tv.SetText(2, u""), Failure);
  EXPECT_THROW(tv.SetChecked(2, true), Failure);
  EXPECT_THROW(tv.Remove(2), Failure);
  EXPECT_EQ(tv.count(), 1);
}

TEST_F(Tree, RemovalTakesWhatHangsOnANodeAndMovesTheRestUp) {
  tv.Add(u"a", u"a");
  tv.Add(u"b", u"b");
  tv.Add(u"a1", u"a1", 1);
  tv.Add(u"b1", u"b1", 2);
  tv.Add(u"a11", u"a11", 3);
  tv.Add(u"b11", u"b11", 4);
  const std::uint32_t id = tv.At(4).id;
  tv.UserSelect(6);
  tv.Remove(1);
  ASSERT_EQ(tv.count(), 3);
  EXPECT_EQ(tv.At(1).text, u"b");
  EXPECT_EQ(tv.At(2).parent, 1);
  EXPECT_EQ(tv.At(3).parent, 2);
  EXPECT_EQ(tv.selected(), 3);
  EXPECT_EQ(tv.Find(u"b11"), 3);
  EXPECT_EQ(tv.Find(u"a1"), 0);
  EXPECT_EQ(tv.PositionOf(id), 2);
  tv.Remove(3);
  EXPECT_EQ(tv.selected(), 0);
  tv.Add(u"a1", u"a1");
  EXPECT_EQ(tv.Find(u"a1"), 3);
}

TEST_F(Tree, ClearForgetsSelectionAndKeysButNoIds) {
  tv.Add(u"a", u"a");
  const std::uint32_t id = tv.At(1).id;
  tv.UserClick(1);
  tv.Clear();
  EXPECT_EQ(tv.selected(), 0);
  tv.Add(u"a", u"a");
  EXPECT_GT(tv.At(1).id, id);
  EXPECT_EQ(tv.PositionOf(id), 0);
}

TEST_F(Tree, TheSpaceBarTurnsTheSelectedBoxOver) {
  tv.Add(u"a", u"a");
  tv.UserSpace();
  EXPECT_FALSE(tv.At(1).checked);
  tv.UserSelect(1);
  tv.UserSpace();
  EXPECT_TRUE(tv.At(1).checked);
}

TEST_F(Tree, AClickSelectsAndIsHeard) {
  std::string heard;
  tv.on_mouse_down = [&](Mouse) { heard += "d"; };
  tv.on_mouse_up = [&](Mouse) { heard += "u" + std::to_string(tv.selected()); };
  tv.on_click = [&] { heard += "c"; };
  tv.Add(u"a", u"a");
  tv.Add(u"b", u"b");
  tv.UserClick(2);
  EXPECT_EQ(heard, "du2c");
}

}  // namespace
}  // namespace orvik::forms
