#include "forms/form.h"
#include "forms/instance.h"
#include "forms/list_controls.h"
#include "forms/simple_controls.h"
#include "unit/support/program_test.h"

namespace orvik::forms {
namespace {

struct frmTest : Form {
  frmTest() : Form("frmTest", u"Title", 5000, 3000) { lbIn.PutInto(rmBox); }
  Label frText{*this, "frText", {0, 0, 500, 200}, u"text"};
  CheckBox cxOne{*this, "cxOne", {0, 200, 500, 200}, u"one"};
  ComboBox cbOne{*this, "cbOne", {0, 400, 500, 300}, u"*.*"};
  ProgressBar pbBar{*this, "pbBar", {0, 700, 500, 200}};
  Timer clOne{*this, "clOne", 100, false};
  Frame rmBox{*this, "rmBox", {0, 0, 1000, 1000}, u""};
  ListBox lbIn{
      *this, "lbIn", {0, 0, 900, 900}, ListBox::Boxes::kCheck, ListBox::Selection::kExtended};
  std::vector<std::string> log;

 protected:
  void OnLoad() override { log.emplace_back("load"); }
  void OnUnload() override { log.emplace_back("unload"); }
  void OnResize() override { log.emplace_back("resize"); }
};

class Controls : public test::ProgramTest {
 protected:
  Controls() { form().Show(); }
  frmTest& form() { return The<frmTest>(); }
};

TEST_F(Controls, AnUnchangedValueIsNotTold) {
  front.changes.clear();
  form().frText.SetCaption(u"text");
  form().cbOne.SetText(u"*.*");
  EXPECT_TRUE(front.changes.empty());
  form().frText.SetCaption(u"other");
  EXPECT_EQ(front.changes, (std::vector<std::string>{"frmTest.frText.caption other"}));
}

TEST_F(Controls, ABarRefusesWhatItCannotShow) {
  EXPECT_THROW(form().pbBar.SetMax(0), Failure);
  EXPECT_THROW(form().pbBar.SetMax(-1), Failure);
  EXPECT_EQ(form().pbBar.max(), 100);
  EXPECT_THROW(form().pbBar.SetValue(101), Failure);
  EXPECT_THROW(form().pbBar.SetValue(-1), Failure);
  form().pbBar.SetValue(50);
  form().pbBar.SetMax(20);
  EXPECT_EQ(form().pbBar.value(), 20);
}

TEST_F(Controls, CheckingByTheProgramClicksToo) {
  int clicks = 0;
  form().cxOne.on_click = [&] { ++clicks; };
  form().cxOne.SetValue(1);
  form().cxOne.SetValue(1);
  form().cxOne.UserClick();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form().cxOne.value(), 0);
}

TEST_F(Controls, ComboEntriesAndText) {
  ComboBox& combo = form().cbOne;
  combo.Add(u"a");
  combo.Add(u"b");
  EXPECT_EQ(combo.index(), -1);
  combo.UserSelect(1);
  EXPECT_EQ(combo.text(), u"b");
  EXPECT_EQ(combo.index(), 1);
  combo.Remove(0);
  EXPECT_EQ(combo.index(), 0);
  combo.Remove(0);
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(combo.text(), u"b");
  EXPECT_THROW(combo.Remove(0), Failure);
  EXPECT_THROW(combo.UserSelect(0), Failure);
  EXPECT_THROW((void)combo.Item(0), Failure);
  combo.Add(u"c");
  combo.UserSelect(0);
  combo.UserType(u"typed");
  EXPECT_EQ(combo.index(), -1);
  combo.Clear();
  EXPECT_EQ(combo.text(), u"typed");
  EXPECT_EQ(combo.count(), 0);
}

TEST_F(Controls, ListEntriesSelectionAndBoxes) {
  ListBox& list = form().lbIn;
  for (const char16_t* text : {u"a", u"b", u"c"}) list.Add(text);
  std::vector<std::string> log;
  list.on_mouse_down = [&](Mouse mouse) { log.push_back("down" + std::to_string(mouse.button)); };
  list.on_mouse_up = [&](Mouse) { log.emplace_back("up"); };
  list.on_click = [&] { log.push_back("click" + std::to_string(list.index())); };
  list.UserClick(1);
  EXPECT_EQ(log, (std::vector<std::string>{"down1", "up", "click1"}));
  EXPECT_TRUE(list.Selected(1));
  list.UserSelect({0, 2});
  EXPECT_EQ(list.index(), 2);
  EXPECT_FALSE(list.Selected(1));
  EXPECT_TRUE(list.Selected(0));
  list.UserSelect({});
  EXPECT_FALSE(list.Selected(0));
  EXPECT_THROW(list.UserClick(3), Failure);
  EXPECT_THROW(list.UserCheck(-1, true), Failure);
  list.UserCheck(2, true);
  EXPECT_TRUE(list.Checked(2));
  list.SetItem(0, u"A");
  EXPECT_EQ(list.Item(0), u"A");
  list.Remove(0);
  EXPECT_EQ(list.Item(0), u"b");
  EXPECT_TRUE(list.Checked(1));
  list.Clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.index(), -1);
  EXPECT_THROW(list.SetItem(0, u"x"), Failure);
}

TEST_F(Controls, TheSpaceBarTurnsTheCurrentBoxOver) {
  ListBox& list = form().lbIn;
  list.Add(u"a");
  list.UserSpace();
  EXPECT_FALSE(list.Checked(0));
  list.UserClick(0);
  list.UserSpace();
  EXPECT_TRUE(list.Checked(0));
  list.UserSpace();
  EXPECT_FALSE(list.Checked(0));
}

TEST_F(Controls, ARemovedEntryIsNoLongerTheCurrentOne) {
  ListBox& list = form().lbIn;
  for (const char16_t* item : {u"a", u"b", u"c"}) list.Add(item);
  list.UserClick(1);
  list.Remove(0);
  EXPECT_EQ(list.index(), 0);
  EXPECT_TRUE(list.Selected(0));
  list.Remove(1);
  EXPECT_EQ(list.index(), 0);
  list.Remove(0);
  EXPECT_EQ(list.index(), -1);
}

TEST_F(Controls, ATimerThatIsOnIsNotRestarted) {
  form().clOne.SetActive(true);
  front.changes.clear();
  form().clOne.SetActive(true);
  EXPECT_TRUE(front.changes.empty());
}

TEST_F(Controls, ReachableIsWhatAUserCouldGetAt) {
  EXPECT_FALSE(form().cxOne.Reachable());  // the frame lies over it
  form().rmBox.SetVisible(false);
  EXPECT_TRUE(form().cxOne.Reachable());
  EXPECT_FALSE(form().lbIn.Reachable());  // it goes with its frame
  form().cxOne.SetEnabled(false);
  EXPECT_FALSE(form().cxOne.Reachable());
}

TEST_F(Controls, KeysGoToTheControlAndThenToTheForm) {
  std::vector<int> codes;
  form().cbOne.on_key_down = [&](Key& key) {
    codes.push_back(key.code);
    if (key.code == kKeyDelete) key.code = 0;
  };
  form().on_key_down = [&](Key& key) { codes.push_back(1000 + key.code); };
  EXPECT_TRUE(form().cbOne.UserKeyDown({kKeyA, 0}));
  EXPECT_FALSE(form().cbOne.UserKeyDown({kKeyDelete, 0}));
  EXPECT_EQ(codes, (std::vector<int>{kKeyA, 1000 + kKeyA, kKeyDelete}));
}

TEST_F(Controls, AFormLoadsOnceAndComesAnewAfterItsEnd) {
  frmTest* first = &form();
  first->Show();
  EXPECT_EQ(first->log, (std::vector<std::string>{"load", "resize"}));
  first->UserResize(6000, 3000);
  first->UserResize(6000, 3000);
  EXPECT_EQ(first->log.size(), 3U);
  EXPECT_EQ(test::Ending([&] { first->UserClose(); }), EndReason::kClosed);
  EXPECT_TRUE(first->unloaded());
  EXPECT_TRUE(LoadedForms().empty());
  EXPECT_NE(&form(), first);
}

TEST_F(Controls, ControlsAreFoundByName) {
  EXPECT_EQ(form().Find("cbOne"), &form().cbOne);
  EXPECT_EQ(form().Find("none"), nullptr);
}

}  // namespace
}  // namespace orvik::forms
