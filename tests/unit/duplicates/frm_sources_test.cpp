#include "duplicates/frm_sources.h"

#include "unit/duplicates/doubles_test.h"

namespace orvik {
namespace {

class Sources : public test::DoublesTest {
 protected:
  frmSources& sources() { return forms::The<frmSources>(); }
  void Know(const Text& folder) {
    host.registry.Write(host::kLocalMachine, u"SOFTWARE\\Ib Tarn\\Orvik\\Doubles Sources", folder,
                        folder);
  }
  void OpenSources() {
    Open();
    form().btSources.UserClick();
  }
  void Add(std::optional<Text> folder) {
    front.folder_answers.push_back(std::move(folder));
    sources().btAddSource.UserClick();
  }
  std::vector<Text> Listed() {
    std::vector<Text> listed;
    for (int i = 0; i < sources().lbSources.count(); ++i) {
      listed.push_back(sources().lbSources.Item(i));
    }
    return listed;
  }
  std::vector<Text> Stored() {
    std::vector<Text> stored;
    const auto values =
        host.registry.Values(host::kLocalMachine, mdlMain::DoublesSourcesKey).value();
    for (const auto& value : values) stored.push_back(value.name + u"=" + value.data);
    return stored;
  }
  std::vector<Text> Chosen() {
    std::vector<Text> chosen;
    for (std::size_t i = 1; i <= mdlMain::DoublesExtraFolders.Count(); ++i) {
      chosen.push_back(mdlMain::DoublesExtraFolders.Item(i));
    }
    return chosen;
  }
  using Texts = std::vector<Text>;
};

TEST_F(Sources, OpensBesideTheSearchWithEveryBoxOff) {
  Know(u"T:\\x");
  Know(u"T:\\y");
  OpenSources();
  EXPECT_EQ(front.events, (Lines{"show frmDoubles", "show frmSources"}));
  EXPECT_EQ(sources().owner(), &form());
  EXPECT_EQ(Listed(), (Texts{u"T:\\x", u"T:\\y"}));
  EXPECT_FALSE(sources().lbSources.Checked(0));
  EXPECT_FALSE(sources().lbSources.Checked(1));
}

TEST_F(Sources, UnopenedItTakesNoFolderAlong) {
  Know(u"T:\\x");
  Open();
  EXPECT_EQ(Chosen(), Texts{});
}

TEST_F(Sources, OpenItTakesAllAlongWhateverTheBoxes) {
  Know(u"T:\\x");
  Know(u"T:\\y");
  OpenSources();
  sources().lbSources.UserCheck(1, true);
  EXPECT_EQ(Chosen(), (Texts{u"T:\\x", u"T:\\y"}));
}

TEST_F(Sources, ClosedItTakesTheCheckedOnesAlong) {
  Know(u"T:\\x");
  Know(u"T:\\y");
  OpenSources();
  sources().lbSources.UserCheck(1, true);
  sources().UserClose();
  EXPECT_EQ(Chosen(), (Texts{u"T:\\y"}));
  EXPECT_EQ(Stored(), (Texts{u"T:\\x=T:\\x", u"T:\\y=T:\\y"}));
  form().btSources.UserClick();
  EXPECT_EQ(Chosen(), (Texts{u"T:\\x", u"T:\\y"}));
  EXPECT_FALSE(sources().lbSources.Checked(1));
  sources().UserClose();
  EXPECT_EQ(Chosen(), Texts{});
}

TEST_F(Sources, AnAddedFolderIsSavedAtOnce) {
  host.files.AddFolder(u"T:\\x");
  OpenSources();
  Add(u"T:\\x");
  EXPECT_EQ(Listed(), (Texts{u"T:\\x"}));
  EXPECT_EQ(Stored(), (Texts{u"T:\\x=T:\\x"}));
  EXPECT_EQ(Chosen(), (Texts{u"T:\\x"}));
  EXPECT_EQ(front.events.back(), "browse Выберите папку...");
}

TEST_F(Sources, AKnownFolderIsNotAddedAgain) {
  host.files.AddFolder(u"T:\\x");
  OpenSources();
  Add(u"T:\\x");
  Add(u"T:\\x");
  EXPECT_EQ(Listed(), (Texts{u"T:\\x"}));
}

TEST_F(Sources, AnotherLetterCaseIsAnotherEntryOfTheList) {
  host.files.AddFolder(u"T:\\x");
  OpenSources();
  Add(u"T:\\x");
  Add(u"T:\\X");
  EXPECT_EQ(Listed(), (Texts{u"T:\\x", u"T:\\X"}));
  EXPECT_EQ(Chosen(), (Texts{u"T:\\x", u"T:\\X"}));
  // One value, under the first spelling.
  ASSERT_EQ(Stored().size(), 1U);
  EXPECT_TRUE(Stored()[0].starts_with(u"T:\\x="));
}

TEST_F(Sources, ACancelStillRewritesTheList) {
  Know(u"T:\\x");
  OpenSources();
  host.registry.Write(host::kLocalMachine, mdlMain::DoublesSourcesKey, u"T:\\z", u"T:\\z");
  Add(std::nullopt);
  EXPECT_EQ(Listed(), (Texts{u"T:\\x"}));
  EXPECT_EQ(Stored(), (Texts{u"T:\\x=T:\\x"}));
}

TEST_F(Sources, AMissingFolderIsNotAdded) {
  OpenSources();
  Add(u"T:\\gone");
  EXPECT_TRUE(Listed().empty());
  EXPECT_TRUE(Stored().empty()) << "an empty key is left behind";
}

TEST_F(Sources, TheCurrentEntryIsRemoved) {
  Know(u"T:\\x");
  Know(u"T:\\y");
  OpenSources();
  sources().lbSources.UserClick(0);
  sources().btRemoveSource.UserClick();
  EXPECT_EQ(Listed(), (Texts{u"T:\\y"}));
  EXPECT_EQ(Stored(), (Texts{u"T:\\y=T:\\y"}));
}

TEST_F(Sources, WithoutACurrentEntryTheListIsOnlyRewritten) {
  Know(u"T:\\x");
  OpenSources();
  host.registry.Write(host::kLocalMachine, mdlMain::DoublesSourcesKey, u"T:\\z", u"T:\\z");
  sources().btRemoveSource.UserClick();
  EXPECT_EQ(Listed(), (Texts{u"T:\\x"}));
  EXPECT_EQ(Stored(), (Texts{u"T:\\x=T:\\x"}));
}

TEST_F(Sources, TheLastOneRemovedLeavesAnEmptyKey) {
  Know(u"T:\\x");
  OpenSources();
  sources().lbSources.UserClick(0);
  sources().btRemoveSource.UserClick();
  EXPECT_TRUE(Stored().empty());
  sources().UserClose();
  EXPECT_EQ(Chosen(), Texts{});
  EXPECT_EQ(front.events.back(), "unload frmSources") << "the search stays open";
}

}  // namespace
}  // namespace orvik
