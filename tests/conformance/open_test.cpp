// Open files.
#include <array>

#include "conformance/host_test.h"

namespace orvik::host {
namespace {

class OpenTest : public HostTest {};

TEST_F(OpenTest, ReadingAMissingFileFailsAndMakesNothing) {
  EXPECT_EQ(files().Open(At(u"missing"), OpenMode::kRead), nullptr);
  EXPECT_FALSE(Exists(u"missing"));
}

TEST_F(OpenTest, ReadWriteMakesAnEmptyFile) {
  const auto file = files().Open(At(u"new"), OpenMode::kReadWriteCreate);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Length(), 0);
  EXPECT_EQ(files().FileLength(At(u"new")), 0);
}

TEST_F(OpenTest, ReadWriteKeepsWhatIsThere) {
  Write(u"file", "12345");
  const auto file = files().Open(At(u"file"), OpenMode::kReadWriteCreate);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Length(), 5);
  EXPECT_TRUE(file->WriteAt(5, std::string_view("678")));
  EXPECT_TRUE(file->WriteAt(0, std::string_view("ab")));
  EXPECT_EQ(file->Length(), 8);
  EXPECT_EQ(Read(u"file"), "ab345678");
}

TEST_F(OpenTest, NothingOpensInAMissingFolder) {
  for (const OpenMode mode : {OpenMode::kRead, OpenMode::kReadWriteCreate, OpenMode::kHold}) {
    EXPECT_EQ(files().Open(At(u"missing\\file"), mode), nullptr);
  }
}

TEST_F(OpenTest, FoldersDontOpen) {
  MakeFolder(u"folder");
  for (const OpenMode mode : {OpenMode::kRead, OpenMode::kReadWriteCreate, OpenMode::kHold}) {
    EXPECT_EQ(files().Open(At(u"folder"), mode), nullptr);
  }
}

TEST_F(OpenTest, ReadsAnywhereAndLessAtTheEnd) {
  Write(u"file", "0123456789");
  const auto file = files().Open(At(u"file"), OpenMode::kRead);
  ASSERT_NE(file, nullptr);
  std::array<char, 4> buffer{};
  EXPECT_EQ(file->ReadAt(3, buffer), 4U);
  EXPECT_EQ(std::string(buffer.data(), 4), "3456");
  EXPECT_EQ(file->ReadAt(8, buffer), 2U);
  EXPECT_EQ(std::string(buffer.data(), 2), "89");
  EXPECT_EQ(file->ReadAt(10, buffer), 0U);
  EXPECT_EQ(file->ReadAt(1000, buffer), 0U);
  EXPECT_EQ(file->ReadAt(0, std::span<char>()), 0U);
  EXPECT_EQ(file->ReadAt(-1, buffer), std::nullopt);
}

TEST_F(OpenTest, AFileForReadingIsntWritten) {
  Write(u"file", "123");
  const auto file = files().Open(At(u"file"), OpenMode::kRead);
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(file->WriteAt(0, std::string_view("x")));
  EXPECT_EQ(Read(u"file"), "123");
}

TEST_F(OpenTest, WritingBehindTheEndFillsWithZeros) {
  Write(u"file", "1");
  const auto file = files().Open(At(u"file"), OpenMode::kReadWriteCreate);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->WriteAt(3, std::string_view("2")));
  EXPECT_EQ(Read(u"file"), std::string("1\0\0002", 4));
}

TEST_F(OpenTest, PositionsBeyondFourGigabytes) {
  constexpr std::int64_t kFar = (std::int64_t{9} << 30) + 1;
  const auto file = files().Open(At(u"file"), OpenMode::kReadWriteCreate);
  ASSERT_NE(file, nullptr);
  ASSERT_TRUE(file->WriteAt(kFar, std::string_view("end")));
  EXPECT_EQ(file->Length(), kFar + 3);
  std::array<char, 8> buffer{};
  EXPECT_EQ(file->ReadAt(kFar, buffer), 3U);
  EXPECT_EQ(std::string(buffer.data(), 3), "end");
}

TEST_F(OpenTest, AReadOnlyFileOpensForReadingOnly) {
  Write(u"file", "123");
  ASSERT_TRUE(files().SetAttributes(At(u"file"), attribute::kReadOnly));
  const auto file = files().Open(At(u"file"), OpenMode::kReadWriteCreate);
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(file->WriteAt(0, std::string_view("x")));
  EXPECT_EQ(Read(u"file"), "123");
}

TEST_F(OpenTest, ReadersAndWritersStandBesideEachOther) {
  Write(u"file", "123");
  const auto reader = files().Open(At(u"file"), OpenMode::kRead);
  const auto writer = files().Open(At(u"file"), OpenMode::kReadWriteCreate);
  const auto late_reader = files().Open(At(u"file"), OpenMode::kRead);
  ASSERT_NE(reader, nullptr);
  ASSERT_NE(writer, nullptr);
  ASSERT_NE(late_reader, nullptr);
  EXPECT_TRUE(writer->WriteAt(0, std::string_view("abc")));
  std::array<char, 3> buffer{};
  EXPECT_EQ(late_reader->ReadAt(0, buffer), 3U);
  EXPECT_EQ(std::string(buffer.data(), 3), "abc");
}

class HoldTest : public HostTest {
 protected:
  void SetUp() override {
    Write(u"held", "content");
    Write(u"other", "other");
    hold_ = files().Open(At(u"held"), OpenMode::kHold);
    ASSERT_NE(hold_, nullptr);
  }

  std::unique_ptr<File> hold_;
};

TEST_F(HoldTest, MakesAMissingFile) {
  EXPECT_NE(files().Open(At(u"new"), OpenMode::kHold), nullptr);
  EXPECT_EQ(files().FileLength(At(u"new")), 0);
}

TEST_F(HoldTest, LeavesContentAndTime) {
  hold_.reset();
  real_.SetTime(u"held", 15'000'000'000'000'000);
  hold_ = files().Open(At(u"held"), OpenMode::kHold);
  ASSERT_NE(hold_, nullptr);
  hold_.reset();
  EXPECT_EQ(Read(u"held"), "content");
  EXPECT_EQ(real_.TimeOf(u"held"), 15'000'000'000'000'000);
}

TEST_F(HoldTest, NobodyElseHoldsIt) {
  EXPECT_EQ(files().Open(At(u"held"), OpenMode::kHold), nullptr);
  hold_.reset();
  EXPECT_NE(files().Open(At(u"held"), OpenMode::kHold), nullptr);
}

TEST_F(HoldTest, NobodyElseWritesIt) {
  const auto file = files().Open(At(u"held"), OpenMode::kReadWriteCreate);
  if (file != nullptr) {
    EXPECT_FALSE(file->WriteAt(0, std::string_view("x")));
  }
  EXPECT_FALSE(files().CopyFile(At(u"other"), At(u"held"), false));
  hold_.reset();
  EXPECT_EQ(Read(u"held"), "content");
}

TEST_F(HoldTest, NobodyElseDeletesOrMovesIt) {
  EXPECT_FALSE(files().DeleteFile(At(u"held")));
  EXPECT_FALSE(files().MoveFile(At(u"held"), At(u"moved"), false));
  EXPECT_FALSE(files().MoveFile(At(u"other"), At(u"held"), true));
  EXPECT_TRUE(Exists(u"held"));
  EXPECT_TRUE(Exists(u"other"));
  hold_.reset();
  EXPECT_EQ(Read(u"held"), "content");
  EXPECT_TRUE(files().DeleteFile(At(u"held")));
}

TEST_F(HoldTest, ReadingGoesOn) { EXPECT_EQ(Read(u"held"), "content"); }

}  // namespace
}  // namespace orvik::host
