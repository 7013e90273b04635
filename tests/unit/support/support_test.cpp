// The doubles that other tests lean on, where they could mislead these.
#include <gtest/gtest.h>

#include "forms/form.h"
#include "unit/support/fake_host.h"
#include "unit/support/faulty_file_system.h"
#include "unit/support/test_front_end.h"

namespace orvik::test {
namespace {

std::vector<Text> Names(host::FileSystem& files, const Text& mask) {
  std::vector<Text> names;
  host::FindRecord record;
  auto search = files.FindFirst(mask, host::Details::kAll, record);
  if (search == nullptr) return names;
  do {
    names.push_back(record.name);
  } while (search->Next(record));
  return names;
}

TEST(FakeFileSystem, ListsInTheOrderOfMaking) {
  FakeFileSystem files;
  files.AddFile(u"T:\\d\\b.txt");
  files.AddFile(u"T:\\d\\a.TXT");
  files.AddFolder(u"T:\\d\\sub");
  EXPECT_EQ(Names(files, u"t:\\D\\*.*"),
            (std::vector<Text>{u".", u"..", u"b.txt", u"a.TXT", u"sub"}));
  EXPECT_EQ(Names(files, u"T:\\d\\*.txt"), (std::vector<Text>{u"b.txt", u"a.TXT"}));
  EXPECT_EQ(Names(files, u"T:\\*"), (std::vector<Text>{u"d"}));
  EXPECT_TRUE(Names(files, u"T:\\d\\").empty());
  EXPECT_TRUE(Names(files, u"T:\\none\\*").empty());
}

TEST(FakeFileSystem, HonoursReadOnly) {
  FakeFileSystem files;
  files.AddFile(u"T:\\a", "new");
  files.AddFile(u"T:\\b", "old", host::attribute::kReadOnly);
  EXPECT_FALSE(files.CopyFile(u"T:\\a", u"T:\\b", false));
  EXPECT_FALSE(files.DeleteFile(u"T:\\b"));
  EXPECT_TRUE(files.SetAttributes(u"T:\\b", 0));
  EXPECT_TRUE(files.CopyFile(u"T:\\a", u"T:\\B", false));
  EXPECT_EQ(files.Content(u"T:\\b"), "new");
  EXPECT_EQ(files.changes.size(), 4U);
}

TEST(FakeFileSystem, AHeldFileStays) {
  FakeFileSystem files;
  {
    auto held = files.Open(u"T:\\a", host::OpenMode::kHold);
    ASSERT_NE(held, nullptr);
    EXPECT_FALSE(files.DeleteFile(u"T:\\a"));
    EXPECT_FALSE(files.MoveFile(u"T:\\a", u"T:\\b", false));
  }
  EXPECT_TRUE(files.DeleteFile(u"T:\\a"));
}

TEST(FakeFileSystem, RemovesAndMovesOnlyWhereItMay) {
  FakeFileSystem files;
  files.AddFile(u"T:\\d\\a", "x");
  EXPECT_FALSE(files.RemoveFolder(u"T:\\d"));
  EXPECT_FALSE(files.MoveFile(u"T:\\d\\a", u"C:\\a", true));
  EXPECT_TRUE(files.MoveFile(u"T:\\d\\a", u"T:\\A", false));
  EXPECT_TRUE(files.RemoveFolder(u"T:\\d\\"));
  EXPECT_EQ(files.Tree(u"T:\\"), (std::vector<Text>{u"T:\\A"}));
}

TEST(FakeRegistry, KeepsTheOrderOfWriting) {
  FakeRegistry registry;
  registry.Write(host::kLocalMachine, u"SOFTWARE\\X", u"b", u"1");
  registry.Write(host::kLocalMachine, u"software\\x", u"a", u"2");
  registry.Write(host::kLocalMachine, u"SOFTWARE\\X", u"B", u"3");
  const auto values = registry.Values(host::kLocalMachine, u"\\SOFTWARE\\X");
  ASSERT_TRUE(values);
  ASSERT_EQ(values->size(), 2U);
  EXPECT_EQ((*values)[0].name, u"b");
  EXPECT_EQ((*values)[0].data, u"3");
  EXPECT_EQ(registry.open_keys(), 0U);
  EXPECT_FALSE(registry.DeleteKey(host::kLocalMachine, u"SOFTWARE"));
  EXPECT_TRUE(registry.DeleteKey(host::kLocalMachine, u"SOFTWARE\\X"));
  EXPECT_FALSE(registry.Values(host::kLocalMachine, u"SOFTWARE\\X"));
}

TEST(FaultyFileSystem, FailsWhatItIsToldTo) {
  FakeFileSystem inner;
  inner.AddFile(u"T:\\a", "12345");
  FaultyFileSystem files(inner);
  files.fail_call = 2;
  EXPECT_TRUE(files.PathExists(u"T:\\a"));
  EXPECT_FALSE(files.PathExists(u"T:\\a"));
  EXPECT_TRUE(files.PathExists(u"T:\\a"));
  files.fail_path = u"t:\\A";
  EXPECT_FALSE(files.FileLength(u"T:\\a"));
  files.fail_path.reset();
  files.room = 7;
  EXPECT_TRUE(files.CopyFile(u"T:\\a", u"T:\\b", false));
  EXPECT_FALSE(files.CopyFile(u"T:\\a", u"T:\\c", false));
  auto file = files.Open(u"T:\\d", host::OpenMode::kReadWriteCreate);
  EXPECT_FALSE(file->WriteAt(0, std::string_view("xyz")));
  EXPECT_EQ(inner.Content(u"T:\\d"), "xy");
}

class OneForm : public forms::Form {
 public:
  OneForm() : Form("frmOne", u"One", 1000, 1000) {}
};

TEST(TestFrontEnd, TheLastFormEndsTheProcess) {
  TestFrontEnd front;
  OneForm form;
  EXPECT_EQ(Ending([&] { form.Show(); }), std::nullopt);
  EXPECT_EQ(Ending([&] { form.Unload(); }), forms::EndReason::kClosed);
  EXPECT_EQ(front.events, (std::vector<std::string>{"show frmOne", "unload frmOne"}));
}

}  // namespace
}  // namespace orvik::test
