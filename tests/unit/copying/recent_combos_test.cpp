#include "copying/recent_combos.h"

#include "unit/copying/copy_test.h"

namespace orvik::mdlMain {
namespace {

class RecentCombos : public test::CopyTest {
 protected:
  RecentCombos() {
    Run(u"/FCR T:\\x");
    forms::ForgetForms();
    front.events.clear();
  }
  void Stored(const Text& key, const std::vector<Text>& entries) {
    for (const Text& entry : entries) {
      host.registry.Write(host::kLocalMachine, key, entry, entry);
    }
  }
  std::vector<Text> Saved(const Text& key) {
    std::vector<Text> names;
    const auto values = host.registry.Values(host::kLocalMachine, key);
    if (!values) return {u"no key"};
    for (const auto& value : *values) names.push_back(value.name);
    return names;
  }
};

TEST_F(RecentCombos, LoadingTakesTheOldestEntryAsText) {
  Stored(RecentPathKey, {u"T:\\old", u"T:\\new"});
  Stored(RecentPath2Key, {u"T:\\two"});
  Stored(RecentMaskKey, {u"*.a", u"*.b"});
  Stored(FileListKey, {u"T:\\l.qlx"});
  Open();
  EXPECT_EQ(form().cbOut.items(), (std::vector<Text>{u"T:\\old", u"T:\\new"}));
  EXPECT_EQ(form().cbOut.text(), u"T:\\old");
  EXPECT_EQ(form().cbOut2.text(), u"T:\\two");
  EXPECT_EQ(form().cbMask.items(), (std::vector<Text>{u"*.a", u"*.b"}));
  EXPECT_EQ(form().cbMask.text(), u"*.*");
  EXPECT_EQ(form().cbFileList.items(), (std::vector<Text>{u"T:\\l.qlx"}));
  EXPECT_EQ(form().cbFileList.text(), u"");
}

TEST_F(RecentCombos, MissingKeysLeaveEverythingEmpty) {
  Open();
  for (const forms::ComboBox* combo :
       {&form().cbOut, &form().cbOut2, &form().cbMask, &form().cbFileList}) {
    EXPECT_TRUE(combo->items().empty());
  }
  EXPECT_EQ(form().cbOut.text(), u"");
}

TEST_F(RecentCombos, SavingAppendsTheTextAndFillsBlankOnes) {
  Stored(RecentPathKey, {u"T:\\old"});
  Stored(RecentPath2Key, {u"T:\\two"});
  Open();
  form().cbOut.UserType(u"T:\\new");
  form().cbOut2.SetText(u" ");
  SaveRecentCombos();
  EXPECT_EQ(Saved(RecentPathKey), (std::vector<Text>{u"T:\\old", u"T:\\new"}));
  EXPECT_EQ(form().cbOut.items(), (std::vector<Text>{u"T:\\old", u"T:\\new"}));
  EXPECT_EQ(form().cbOut2.text(), u"T:\\two");
  EXPECT_EQ(form().cbOut2.items(), (std::vector<Text>{u"T:\\two", u"T:\\two"}));
}

// The file lists go where the masks are read from, and the masks just saved give way to them.
TEST_F(RecentCombos, TheMaskKeyHoldsTheEntriesOfTheFileList) {
  Stored(FileListKey, {u"T:\\l.qlx"});
  Stored(RecentMaskKey, {u"*.a"});
  Open();
  form().cbMask.UserType(u"*.zip");
  SaveRecentCombos();
  EXPECT_EQ(form().cbFileList.text(), u"*.*");
  EXPECT_EQ(Saved(RecentMaskKey), (std::vector<Text>{u"T:\\l.qlx", u"*.*"}));
  EXPECT_EQ(Saved(FileListKey), (std::vector<Text>{u"T:\\l.qlx"}));
}

TEST_F(RecentCombos, FileListKeyIsNeverMade) {
  Open();
  SaveRecentCombos();
  EXPECT_EQ(Saved(FileListKey), (std::vector<Text>{u"no key"}));
  EXPECT_EQ(Saved(RecentMaskKey), (std::vector<Text>{u"*.*"}));
}

TEST_F(RecentCombos, AJobSavesBeforeItCopies) {
  host.files.AddFile(u"T:\\from\\a", "1");
  Open();
  front.on_yield = [&](int) { EXPECT_EQ(Saved(RecentPathKey), (std::vector<Text>{u"T:\\to"})); };
  Start();
  EXPECT_GT(front.yields, 0);
}

TEST_F(RecentCombos, ShiftBackspaceRemovesTheChosenEntry) {
  Stored(RecentPathKey, {u"T:\\a", u"T:\\b", u"T:\\c"});
  Open();
  form().cbOut.UserSelect(1);
  form().cbOut.UserType(u"T:\\a");  // the box shows another text; no entry is chosen now
  form().cbOut.UserKeyDown({forms::kKeyBackspace, forms::kShift});
  EXPECT_EQ(form().cbOut.items(), (std::vector<Text>{u"T:\\a", u"T:\\b", u"T:\\c"}));
  form().cbOut.UserSelect(1);
  form().cbOut.UserKeyDown({forms::kKeyBackspace, forms::kShift});
  // The box still showed it, so it came back at the end.
  EXPECT_EQ(Saved(RecentPathKey), (std::vector<Text>{u"T:\\a", u"T:\\c", u"T:\\b"}));
  EXPECT_EQ(form().cbOut.text(), u"T:\\a");
}

TEST_F(RecentCombos, OnlyShiftBackspaceDoesIt) {
  Stored(RecentPathKey, {u"T:\\a", u"T:\\b"});
  Open();
  form().cbOut.UserSelect(1);
  for (const forms::Key key : {forms::Key{forms::kKeyBackspace, 0},
                               forms::Key{forms::kKeyBackspace, forms::kShift | forms::kCtrl},
                               forms::Key{forms::kKeyDelete, forms::kShift}}) {
    EXPECT_TRUE(form().cbOut.UserKeyDown(key));
  }
  EXPECT_EQ(form().cbOut.count(), 2);
  // The key that was used doesn't reach the box itself.
  EXPECT_FALSE(form().cbOut.UserKeyDown({forms::kKeyBackspace, forms::kShift}));
}

TEST_F(RecentCombos, EachOfTheFourBoxesKnowsTheKey) {
  Open();
  for (forms::ComboBox* combo :
       {&form().cbOut, &form().cbOut2, &form().cbMask, &form().cbFileList}) {
    EXPECT_FALSE(combo->UserKeyDown({forms::kKeyBackspace, forms::kShift})) << combo->name();
  }
}

}  // namespace
}  // namespace orvik::mdlMain
