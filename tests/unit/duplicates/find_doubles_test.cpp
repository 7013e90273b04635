#include "base/numbers.h"
#include "fileengine/checksums.h"
#include "unit/duplicates/doubles_test.h"

namespace orvik {
namespace {

class FindDoubles : public test::DoublesTest {
 protected:
  void ListValue(const Text& key, const Text& value) {
    host.registry.Write(host::kLocalMachine, u"SOFTWARE\\Ib Tarn\\Orvik\\" + key, value, value);
  }
  std::string Filled(std::size_t length) { return std::string(length, 'x'); }
};

TEST_F(FindDoubles, OpensWithAnEmptyTree) {
  ListValue(u"Doubles Pattern List", u"*.jpg");
  host.files.AddFile(u"T:\\a\\d\\1", "same");
  host.files.AddFile(u"T:\\a\\d\\2", "same");
  Open(u"T:\\a\\d");
  EXPECT_EQ(form().caption(),
            Text(mdlMain::ProgramTitle) + u" -  Дубликаты файлов каталога T:\\...\\d");
  EXPECT_EQ(form().cbPattern.text(), u"*.*");
  EXPECT_EQ(form().cbPattern.items(), (std::vector<Text>{u"*.jpg"}));
  EXPECT_EQ(tree().count(), 0);
  EXPECT_TRUE(form().btFind.enabled());
  EXPECT_FALSE(form().mnMain.visible());
}

TEST_F(FindDoubles, WithoutAFolderOnlyEnterSearches) {
  Open(u"");
  EXPECT_EQ(form().caption(), u"Дубликаты");
  EXPECT_FALSE(form().btFind.enabled());
  host.files.AddFile(u"T:\\x\\1", "same");
  host.files.AddFile(u"T:\\x\\2", "same");
  mdlMain::DoublesExtraFolders.Add(u"T:\\x");
  form().cbPattern.UserKeyDown({forms::kKeyEnter, 0});
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\x\\1", "+1 T:\\x\\2"}));
}

TEST_F(FindDoubles, EnterIsTakenAway) {
  Open();
  EXPECT_FALSE(form().cbPattern.UserKeyDown({forms::kKeyEnter, 0}));
  EXPECT_EQ(Nodes(), (Lines{"0 Обработка ... обзор каталогов"}));
}

TEST_F(FindDoubles, CtrlDeleteForgetsAPattern) {
  ListValue(u"Doubles Pattern List", u"*.jpg");
  Open();
  form().cbPattern.UserType(u"*.jpg");
  EXPECT_FALSE(form().cbPattern.UserKeyDown({forms::kKeyDelete, forms::kCtrl}));
  EXPECT_EQ(form().cbPattern.count(), 0);
  EXPECT_TRUE(host.registry.Values(host::kLocalMachine, mdlMain::DoublesPatternKey)->empty());
}

TEST_F(FindDoubles, TheProgressNodeStaysWhereNothingIsFound) {
  host.files.AddFile(u"T:\\d\\1.txt", "x");
  Open();
  form().cbPattern.UserType(u"*.jpg");
  Search();
  ASSERT_EQ(Nodes(), (Lines{"0 Обработка ... обзор каталогов"}));
  EXPECT_EQ(tree().At(1).key, u"Load");
}

TEST_F(FindDoubles, FilesThatAreAloneAreShownNowhere) {
  host.files.AddFile(u"T:\\d\\1", "one");
  host.files.AddFile(u"T:\\d\\2", "two");
  OpenAndSearch();
  EXPECT_EQ(tree().count(), 0);
}

TEST_F(FindDoubles, NodesTellGroupAndIndex) {
  host.files.AddFile(u"T:\\d\\1", "other");
  host.files.AddFile(u"T:\\d\\2", "same");
  host.files.AddFile(u"T:\\d\\3", "same");
  OpenAndSearch();
  ASSERT_EQ(tree().count(), 2);
  const Text key = u"k" + Decimal(mdlSupport::GetFastCRC(u"T:\\d\\2", 32768));
  EXPECT_EQ(tree().At(1).key, key);
  EXPECT_TRUE(tree().At(1).expanded);
  EXPECT_FALSE(tree().At(1).checked);
  EXPECT_EQ(tree().At(2).key, key + u" 2");
  EXPECT_EQ(tree().At(2).parent, 1);
  EXPECT_TRUE(tree().At(2).checked);
  EXPECT_EQ(tree().selected(), 0);
}

TEST_F(FindDoubles, AGroupComesWithItsSecondFile) {
  host.files.AddFile(u"T:\\d\\1", "a");
  host.files.AddFile(u"T:\\d\\2", "b");
  host.files.AddFile(u"T:\\d\\3", "b");
  host.files.AddFile(u"T:\\d\\4", "a");
  host.files.AddFile(u"T:\\d\\5", "b");
  OpenAndSearch();
  EXPECT_EQ(Nodes(),
            (Lines{"0 T:\\d\\2", "+1 T:\\d\\3", "0 T:\\d\\1", "+3 T:\\d\\4", "+1 T:\\d\\5"}));
}

TEST_F(FindDoubles, TheCommandsFolderComesBeforeFurtherOnes) {
  host.files.AddFile(u"T:\\a\\sub\\1", Filled(100));
  host.files.AddFile(u"T:\\z\\2", Filled(100));
  host.files.AddFile(u"T:\\z\\3", Filled(100));
  mdlMain::DoublesExtraFolders.Add(u"T:\\a");
  OpenAndSearch(u"T:\\z");
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\z\\2", "+1 T:\\z\\3", "+1 T:\\a\\sub\\1"}));
}

TEST_F(FindDoubles, AFolderThatHasGoneWalksAsEmpty) {
  host.files.AddFile(u"T:\\d\\1", "a");
  host.files.AddFile(u"T:\\x\\2", "a");
  mdlMain::DoublesExtraFolders.Add(u"T:\\gone");
  mdlMain::DoublesExtraFolders.Add(u"T:\\x");
  OpenAndSearch();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 T:\\x\\2"}));
}

TEST_F(FindDoubles, APathThatIsMetTwiceIsItsOwnDuplicate) {
  host.files.AddFile(u"T:\\d\\s\\1.txt", "a");
  Open();
  form().cbPattern.UserType(u"*.txt;*.*");
  Search();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\s\\1.txt", "+1 T:\\d\\s\\1.txt"}));
  mdlMain::DoublesExtraFolders.Add(u"T:\\d\\s");
  form().cbPattern.UserType(u"*.*");
  Search();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\s\\1.txt", "+1 T:\\d\\s\\1.txt"}));
}

TEST_F(FindDoubles, WhatCantBeReadIsLikeWhatIsEmpty) {
  host.files.AddFile(u"T:\\d\\empty");
  host.files.AddFile(u"T:\\d\\held", "content");
  host.files.AddLargeFile(u"T:\\d\\film", 0x80000000);
  test::FaultyFileSystem faulty(host.files);
  faulty.fail_path = u"T:\\d\\held";
  auto services = host.services();
  services.files = &faulty;
  host::Install(services);
  OpenAndSearch();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\empty", "+1 T:\\d\\held", "+1 T:\\d\\film"}));
  EXPECT_EQ(tree().At(1).key, u"k0");
}

TEST_F(FindDoubles, AFileThatVanishedSinceTheWalkIsLikeAnEmptyOne) {
  host.files.AddFile(u"T:\\d\\empty");
  host.files.AddFile(u"T:\\d\\going", "content");
  // With the first percent the walk is over and no file has been read.
  front.on_yield = [&](int) {
    if (tree().At(1).text != u"Обработка ... обзор каталогов") host.files.Take(u"T:\\d\\going");
  };
  OpenAndSearch();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\empty", "+1 T:\\d\\going"}));
  EXPECT_FALSE(host.files.Exists(u"T:\\d\\going"));
}

TEST_F(FindDoubles, WholeContentsDecideUpToTheBlock) {
  std::string one = Filled(2000), other = one;
  other[1000] = 'y';
  host.files.AddFile(u"T:\\d\\1", one);
  host.files.AddFile(u"T:\\d\\2", other);
  one = other = Filled(32768);
  other.back() = 'y';
  host.files.AddFile(u"T:\\d\\3", one);
  host.files.AddFile(u"T:\\d\\4", other);
  OpenAndSearch();
  EXPECT_EQ(tree().count(), 0);
}

TEST_F(FindDoubles, OfLongFilesOnlyTwoBlocksAndTheLengthDecide) {
  std::string one = Filled(70000), middle = one, last = one, head = one, tail = one;
  middle[33000] = 'y';
  last.back() = 'y';
  head[32767] = 'y';
  tail[70000 - 2] = 'y';
  host.files.AddFile(u"T:\\d\\1", one);
  host.files.AddFile(u"T:\\d\\2", middle);
  host.files.AddFile(u"T:\\d\\3", last);
  host.files.AddFile(u"T:\\d\\4", head);
  host.files.AddFile(u"T:\\d\\5", tail);
  host.files.AddFile(u"T:\\d\\6", one + "x");
  OpenAndSearch();
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 T:\\d\\2", "+1 T:\\d\\3"}));
}

TEST_F(FindDoubles, ThePatternIsSavedAndTheFolderGetsABackslash) {
  Open();
  form().cbPattern.UserType(u"*.txt");
  Search();
  const auto values = host.registry.Values(host::kLocalMachine, mdlMain::DoublesPatternKey);
  ASSERT_TRUE(values);
  ASSERT_EQ(values->size(), 1U);
  EXPECT_EQ((*values)[0].name, u"*.txt");
  EXPECT_EQ(mdlMain::CommandArgs, u"T:\\d\\");
  EXPECT_EQ(form().caption(),
            Text(mdlMain::ProgramTitle) + u" -  Дубликаты файлов каталога T:\\...\\d");
}

TEST_F(FindDoubles, ProgressIsTheWholePercentOfEveryFiftiethFile) {
  for (int i = 0; i < 120; ++i) {
    host.files.AddFile(u"T:\\d\\" + Padded(i, 3), std::to_string(i));
  }
  Open();
  front.changes.clear();
  Search();
  std::vector<std::string> shown;
  for (const auto& change : front.changes) {
    if (change.starts_with("frmDoubles.tvMain.item")) shown.push_back(change);
  }
  EXPECT_EQ(shown, (Lines{"frmDoubles.tvMain.item Обработка ... 0 %",
                          "frmDoubles.tvMain.item Обработка ... 42 %",
                          "frmDoubles.tvMain.item Обработка ... 84 %"}));
  EXPECT_EQ(tree().count(), 0);
}

TEST_F(FindDoubles, ASingleFileShowsNoPercentAndYieldsAllTheSame) {
  Open();
  int yields = front.yields;
  Search();
  const int of_the_walk = front.yields - yields;
  host.files.AddFile(u"T:\\d\\1", "x");
  front.changes.clear();
  yields = front.yields;
  Search();
  EXPECT_GT(front.yields - yields, of_the_walk);
  for (const auto& change : front.changes) EXPECT_EQ(change.find("%"), std::string::npos);
  EXPECT_EQ(tree().count(), 0);
}

TEST_F(FindDoubles, BeyondSixteenBitsBoxesStayOff) {
  // The progress node, one group and its children.
  constexpr int kFiles = 32770;
  for (int i = 0; i < kFiles; ++i) {
    host.files.AddFile(u"T:\\d\\" + Padded(i / 200, 3) + u"\\" + Padded(i, 5), "x");
  }
  OpenAndSearch();
  ASSERT_EQ(tree().count(), kFiles);
  // The node that was the 32767th while the progress node stood in front.
  EXPECT_TRUE(tree().At(32766).checked);
  EXPECT_FALSE(tree().At(32767).checked);
  EXPECT_FALSE(tree().At(kFiles).checked);
}

TEST_F(FindDoubles, ASecondClickSearchesInsideTheFirst) {
  host.files.AddFile(u"T:\\d\\1", "a");
  host.files.AddFile(u"T:\\d\\2", "a");
  host.files.AddFile(u"T:\\d\\3", "b");
  host.files.AddFile(u"T:\\d\\4", "b");
  Open();
  // The yield of the loop over the files is the last one of a search.
  Search();
  const int last_yield = front.yields;
  front.yields = 0;
  front.on_yield = [&](int yield) {
    if (yield != last_yield) return;
    front.on_yield = nullptr;
    Search();
    EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\1", "+1 T:\\d\\2", "0 T:\\d\\3", "+3 T:\\d\\4"}));
    form().tvMain.UserCheck(4, false);
  };
  Search();
  // The outer search finds the groups that it would make, turns the last box on for each of its
  // duplicates, and takes the first node away, with what hangs on it.
  EXPECT_EQ(Nodes(), (Lines{"0 T:\\d\\3", "+1 T:\\d\\4"}));
}

TEST_F(FindDoubles, ADeletionInTheMiddleTakesWhatIsThere) {
  for (int i = 0; i < 60; ++i) host.files.AddFile(u"T:\\d\\" + Padded(i, 2), "x");
  Open();
  Search();
  const int last_yield = front.yields;
  front.yields = 0;
  front.on_yield = [&](int yield) {
    if (yield == last_yield) form().btKill.UserClick();
  };
  Search();
  // 49 duplicates stood in the tree at the fiftieth file.
  EXPECT_EQ(host.shell.recycled.size(), 49U);
  ASSERT_EQ(tree().count(), 60);
  EXPECT_EQ(tree().At(1).text, u"T:\\d\\00");
  EXPECT_EQ(tree().At(50).text, u"Удален T:\\d\\49");
  EXPECT_EQ(tree().At(51).text, u"T:\\d\\50");
}

TEST_F(FindDoubles, FoldersThatChangeMeanwhileAreTakenAsTheyAre) {
  host.files.AddFile(u"T:\\d\\1", "a");
  host.files.AddFile(u"T:\\x\\2", "a");
  mdlMain::DoublesExtraFolders.Add(u"T:\\x");
  mdlMain::DoublesExtraFolders.Add(u"T:\\y");
  Open();
  front.on_yield = [&](int) { mdlMain::DoublesExtraFolders = {}; };
  Search();
  EXPECT_EQ(tree().count(), 0);
}

TEST_F(FindDoubles, ASearchBeginsAnew) {
  host.files.AddFile(u"T:\\d\\1", "a");
  host.files.AddFile(u"T:\\d\\2", "a");
  OpenAndSearch();
  form().tvMain.UserClick(2);
  host.files.DeleteFile(u"T:\\d\\2");
  Search();
  EXPECT_EQ(tree().count(), 0);
  EXPECT_EQ(tree().selected(), 0);
}

TEST_F(FindDoubles, ClosingEndsTheProcess) {
  mdlMain::DoublesExtraFolders.Add(u"T:\\x");
  Open();
  form().btSources.UserClick();
  EXPECT_EQ(test::Ending([&] { form().UserClose(); }), forms::EndReason::kShutdown);
  EXPECT_EQ(mdlMain::DoublesExtraFolders.Count(), 0U);
}

}  // namespace
}  // namespace orvik
