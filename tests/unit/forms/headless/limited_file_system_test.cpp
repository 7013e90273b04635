#include "forms/headless/limited_file_system.h"

#include <gtest/gtest.h>

#include "forms/headless/run_end.h"
#include "unit/support/fake_file_system.h"

namespace orvik::forms::headless {
namespace {

RunEnd EndOf(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const RunEnded& ended) {
    return ended.end;
  }
  ADD_FAILURE() << "the run goes on";
  return RunEnd::kScript;
}

TEST(LimitedFileSystem, TheCallBehindTheLastEndsTheRun) {
  test::FakeFileSystem inner;
  const Clock clock(Clock::Pace::kVirtual);
  LimitedFileSystem files(inner, 3, clock);
  files.PathExists(u"T:\\a");
  files.CreateFolder(u"T:\\a");
  EXPECT_TRUE(files.PathExists(u"T:\\a"));
  EXPECT_EQ(EndOf([&] { files.RemoveFolder(u"T:\\a"); }), RunEnd::kCalls);
  EXPECT_TRUE(inner.Exists(u"T:\\a"));
}

TEST(LimitedFileSystem, EachEntryOfASearchCounts) {
  test::FakeFileSystem inner;
  inner.AddFile(u"T:\\d\\a");
  const Clock clock(Clock::Pace::kVirtual);
  LimitedFileSystem files(inner, 3, clock);
  host::FindRecord record;
  const auto search = files.FindFirst(u"T:\\d\\*", host::Details::kAll, record);
  EXPECT_TRUE(search->Next(record));
  EXPECT_TRUE(search->Next(record));
  EXPECT_EQ(record.name, u"a");
  EXPECT_EQ(EndOf([&] { search->Next(record); }), RunEnd::kCalls);
}

TEST(LimitedFileSystem, EveryOperationCounts) {
  using Call = std::function<void(host::FileSystem&)>;
  host::FindRecord record;
  const std::vector<Call> calls = {
      [&](auto& f) { f.FindFirst(u"T:\\*", host::Details::kAll, record); },
      [](auto& f) { f.PathExists(u"x"); },
      [](auto& f) { f.Attributes(u"x"); },
      [](auto& f) { f.SetAttributes(u"x", 0); },
      [](auto& f) { f.FileLength(u"x"); },
      [](auto& f) { f.CreateFolder(u"x"); },
      [](auto& f) { f.RemoveFolder(u"x"); },
      [](auto& f) { f.CopyFile(u"x", u"y", false); },
      [](auto& f) { f.MoveFile(u"x", u"y", false); },
      [](auto& f) { f.DeleteFile(u"x"); },
      [](auto& f) { f.Open(u"x", host::OpenMode::kRead); },
      [](auto& f) { f.ShortName(u"x"); },
      [](auto& f) { f.FolderSize(u"x"); },
      [](auto& f) { f.DriveType(u"T:"); },
      [](auto& f) { f.Space(u"T:"); },
      [](auto& f) { f.VolumeLabel(u"T:"); },
  };
  const Clock clock(Clock::Pace::kVirtual);
  for (const Call& call : calls) {
    test::FakeFileSystem inner;
    LimitedFileSystem files(inner, 1, clock);
    EXPECT_NO_THROW(call(files));
    EXPECT_EQ(EndOf([&] { call(files); }), RunEnd::kCalls);
    EXPECT_EQ(inner.calls.size(), 1U);
  }
}

TEST(LimitedFileSystem, LooksAtTheClock) {
  test::FakeFileSystem inner;
  const Clock clock(Clock::Pace::kVirtual, 0);
  LimitedFileSystem files(inner, std::nullopt, clock);
  EXPECT_EQ(EndOf([&] { files.PathExists(u"x"); }), RunEnd::kTime);
}

}  // namespace
}  // namespace orvik::forms::headless
