#include "cleaning/frm_eraser.h"

#include "forms/instance.h"
#include "unit/support/counted_file_system.h"
#include "unit/support/program_test.h"

namespace orvik {
namespace {

class Eraser : public test::ProgramTest {
 protected:
  frmEraser& form() { return forms::The<frmEraser>(); }
  std::optional<forms::EndReason> Erase(const Text& line) {
    front.message_answers.push_back(forms::Answer::kYes);
    return Run(line);
  }
  // A run that is broken off after so many calls.
  void EraseFor(const Text& line, int calls) {
    test::CountedFileSystem counted(host.files, calls);
    auto services = host.services();
    services.files = &counted;
    host::Install(services);
    EXPECT_THROW(Erase(line), test::CallsAreOver);
  }
  std::vector<Text> Entries() {
    std::vector<Text> entries;
    for (int i = 0; i < form().lbMain.count(); ++i) entries.push_back(form().lbMain.Item(i));
    return entries;
  }
};

TEST_F(Eraser, NoEndsTheProcessBeforeTheFormShows) {
  host.files.AddFile(u"T:\\f");
  front.message_answers.push_back(forms::Answer::kNo);
  EXPECT_EQ(Run(u"/FLE T:\\f"), forms::EndReason::kShutdown);
  EXPECT_EQ(front.events.front(),
            "message Действительно использовать Расширенное удаление|zKelmar's Orvik  v 0.9.8.3 "
            "FN|critical|yesno");
  EXPECT_TRUE(host.files.Exists(u"T:\\f"));
  EXPECT_TRUE(host.files.changes.empty());
}

TEST_F(Eraser, AProtectedFileGoesAtTheFirstAttempt) {
  host.files.AddFile(u"T:\\f", "1", 7);
  EXPECT_EQ(Erase(u"/FLE T:\\f"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\f"));
  EXPECT_EQ(host.system.ticks, 6000U);  // a second for the attempt, five for the message
  EXPECT_EQ(form().caption(), u"zKelmar's Orvik  v 0.9.8.3 FN - Расширенное удаление ");
  EXPECT_EQ(Entries(), (std::vector<Text>{u"Объекты удалены"}));
}

TEST_F(Eraser, ALockedFileIsTriedEverySecond) {
  host.files.AddFile(u"T:\\f", "1");
  auto held = host.files.Open(u"T:\\f", host::OpenMode::kHold);
  front.on_yield = [&](int) {
    EXPECT_EQ(Entries()[0], host.system.ticks <= 4000 ? u"T:\\f" : u"Объекты удалены");
    if (host.system.ticks >= 3000) held.reset();
  };
  EXPECT_EQ(Erase(u"/FLE T:\\f"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.system.ticks, 9000U);
}

TEST_F(Eraser, AMissingTargetShowsAnEmptyFormForAWhile) {
  EXPECT_EQ(Erase(u"/FLE T:\\none"), forms::EndReason::kShutdown);
  EXPECT_EQ(host.system.ticks, 5000U);
  EXPECT_TRUE(Entries().empty());
  EXPECT_EQ(front.events[1], "show frmEraser");
}

TEST_F(Eraser, AFolderIsNeverDeletedAsAFile) {
  host.files.AddFile(u"T:\\d\\f");
  EraseFor(u"/FLE T:\\d", 50);
  EXPECT_TRUE(host.files.Exists(u"T:\\d\\f"));
  EXPECT_GT(host.system.ticks, 5000U);
}

TEST_F(Eraser, AFolderOfFilesRunsToItsEnd) {
  using namespace host::attribute;
  host.files.AddFile(u"T:\\d\\a", "1", kReadOnly | kHidden);
  host.files.AddFile(u"T:\\d\\b", "1");
  std::vector<std::vector<Text>> seen;
  front.on_yield = [&](int) { seen.push_back(Entries()); };
  EXPECT_EQ(Erase(u"/DRE T:\\d"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
  EXPECT_EQ(Entries(), (std::vector<Text>{u"Объекты удалены"}));
  EXPECT_NE(std::find(seen.begin(), seen.end(),
                      std::vector<Text>{u"Удален T:\\d\\a", u"T:\\d\\b", u"T:\\d"}),
            seen.end());
  EXPECT_NE(std::find(seen.begin(), seen.end(),
                      std::vector<Text>{u"Удален T:\\d\\a", u"Удален T:\\d\\b", u"Удалена T:\\d"}),
            seen.end());
}

TEST_F(Eraser, AnEmptyFolderToo) {
  host.files.AddFolder(u"T:\\d");
  EXPECT_EQ(Erase(u"/DRE T:\\d"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
}

// Meant so: the subfolders went with the root and are looked for without end.
TEST_F(Eraser, ATreeIsDeletedAndTheFormGoesOnLooking) {
  host.files.AddFile(u"T:\\d\\s\\f");
  host.files.AddFile(u"T:\\d\\a");
  EraseFor(u"/DRE T:\\d", 1000);
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
  EXPECT_EQ(Entries(), (std::vector<Text>{u"Удален T:\\d\\a", u"Удален T:\\d\\s\\f",
                                          u"Удалена T:\\d", u"T:\\d\\s"}));
}

TEST_F(Eraser, ASecondRoundOfTheFilesClearsTheRootsAttributes) {
  host.files.AddFolder(u"T:\\d", host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\d\\held");
  host.files.AddFile(u"T:\\d\\free");
  auto held = host.files.Open(u"T:\\d\\held", host::OpenMode::kHold);
  front.on_yield = [&](int) {
    if (!host.files.Exists(u"T:\\d\\free")) held.reset();
  };
  EXPECT_EQ(Erase(u"/DRE T:\\d"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
}

TEST_F(Eraser, AReadOnlyFolderWhoseFilesGoInOneRoundStays) {
  host.files.AddFolder(u"T:\\d", host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\d\\a");
  EraseFor(u"/DRE T:\\d", 1000);
  EXPECT_TRUE(host.files.Exists(u"T:\\d"));
  EXPECT_FALSE(host.files.Exists(u"T:\\d\\a"));
}

TEST_F(Eraser, AFileThatGoesByOtherMeansIsWaitedForWithoutEnd) {
  host.files.AddFile(u"T:\\d\\a");
  host.files.AddFile(u"T:\\d\\b");
  front.on_yield = [&](int) {
    if (form().lbMain.count() == 3) host.files.Take(u"T:\\d\\b");
  };
  EraseFor(u"/DRE T:\\d", 1000);
  EXPECT_EQ(Entries()[0], u"Удален T:\\d\\a");
  EXPECT_EQ(Entries()[1], u"T:\\d\\b");
  EXPECT_TRUE(host.files.Exists(u"T:\\d"));
}

TEST_F(Eraser, AFileGivenAsAFolderIsNeverDeleted) {
  host.files.AddFile(u"T:\\f", "1");
  EraseFor(u"/DRE T:\\f", 1000);
  EXPECT_TRUE(host.files.Exists(u"T:\\f"));
}

TEST_F(Eraser, ThePageFileIsNotListedButGoesWithItsFolder) {
  host.files.AddFile(u"T:\\d\\PAGEFILE.SYS");
  EXPECT_EQ(Erase(u"/DRE T:\\d"), forms::EndReason::kShutdown);
  EXPECT_FALSE(host.files.Exists(u"T:\\d"));
}

TEST_F(Eraser, FillingTheListYieldsAtEvery32ndEntry) {
  for (int i = 0; i < 33; ++i) host.files.AddFile(u"T:\\d\\" + FromUtf8(std::to_string(i)));
  int filling = 0;
  front.on_yield = [&](int) {
    const int count = form().lbMain.count();
    const bool untouched = count > 0 && form().lbMain.Item(0) == u"T:\\d\\0";
    if (untouched && count <= 34) ++filling;
  };
  Erase(u"/DRE T:\\d");
  EXPECT_EQ(filling, 3);  // at files 0 and 32, and at folder 0
}

TEST_F(Eraser, ClosingDuringTheWaitEndsTheProcess) {
  front.on_yield = [&](int) { form().UserClose(); };
  EXPECT_EQ(Erase(u"/FLE T:\\none"), forms::EndReason::kShutdown);
}

}  // namespace
}  // namespace orvik
