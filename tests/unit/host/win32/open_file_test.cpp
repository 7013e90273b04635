#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

class Win32OpenFile : public HostTest {};

TEST_F(Win32OpenFile, ReadsAtPositions) {
  const auto file = files().Open(Make(u"f", "0123456789"), OpenMode::kRead);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Length(), 10);
  std::array<char, 4> buffer = {};
  EXPECT_EQ(file->ReadAt(3, buffer), 4u);
  EXPECT_EQ(std::string(buffer.data(), 4), "3456");
  EXPECT_EQ(file->ReadAt(8, buffer), 2u);
  EXPECT_EQ(file->ReadAt(10, buffer), 0u);
  EXPECT_EQ(file->ReadAt(1000, buffer), 0u);
  EXPECT_FALSE(file->ReadAt(-1, buffer));
  EXPECT_FALSE(file->WriteAt(0, buffer));
}

TEST_F(Win32OpenFile, ReadNeedsAnExistingFile) {
  EXPECT_FALSE(files().Open(In(u"x"), OpenMode::kRead));
  EXPECT_FALSE(files().Open(MakeFolder(u"d"), OpenMode::kRead));
  EXPECT_FALSE(files().Open(In(u"d"), OpenMode::kReadWriteCreate));
  EXPECT_FALSE(files().Open(u"", OpenMode::kHold));
  EXPECT_FALSE(files().PathExists(In(u"x")));
}

TEST_F(Win32OpenFile, ReadWriteMakesTheFile) {
  const Text path = In(u"new");
  const auto file = files().Open(path, OpenMode::kReadWriteCreate);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Length(), 0);
  EXPECT_TRUE(file->WriteAt(0, std::string("abc")));
  EXPECT_TRUE(file->WriteAt(5, std::string("z")));
  EXPECT_TRUE(file->WriteAt(0, {}));
  EXPECT_FALSE(file->WriteAt(-1, std::string("z")));
  EXPECT_EQ(file->Length(), 6);
  EXPECT_EQ(Content(path), std::string("abc\0\0z", 6));
}

TEST_F(Win32OpenFile, ReadOnlyFileIsOpenedForReading) {
  const Text path = Make(u"f", "abc");
  ASSERT_TRUE(files().SetAttributes(path, attribute::kReadOnly));
  const auto file = files().Open(path, OpenMode::kReadWriteCreate);
  ASSERT_TRUE(file);
  EXPECT_FALSE(file->WriteAt(0, std::string("x")));
  EXPECT_EQ(Content(path), "abc");
}

TEST_F(Win32OpenFile, WritersAndReadersLiveTogether) {
  const Text path = Make(u"f", "abc");
  const auto reader = files().Open(path, OpenMode::kRead);
  const auto writer = files().Open(path, OpenMode::kReadWriteCreate);
  ASSERT_TRUE(reader);
  ASSERT_TRUE(writer);
  EXPECT_TRUE(writer->WriteAt(3, std::string("d")));
  EXPECT_EQ(reader->Length(), 4);
}

TEST_F(Win32OpenFile, HeldFileCantBeChangedOrDeleted) {
  const Text path = Make(u"f", "abc");
  const Text other = Make(u"g", "other");
  {
    const auto hold = files().Open(path, OpenMode::kHold);
    ASSERT_TRUE(hold);
    EXPECT_EQ(Content(path), "abc");
    EXPECT_FALSE(files().Open(path, OpenMode::kHold));
    EXPECT_FALSE(files().DeleteFile(path));
    EXPECT_FALSE(files().MoveFile(path, In(u"h"), true));
    EXPECT_FALSE(files().MoveFile(other, path, true));
    EXPECT_FALSE(files().CopyFile(other, path, false));
  }
  EXPECT_EQ(Content(path), "abc");
  EXPECT_TRUE(files().DeleteFile(path));
}

TEST_F(Win32OpenFile, HoldMakesTheFile) {
  const auto hold = files().Open(In(u"new"), OpenMode::kHold);
  ASSERT_TRUE(hold);
  EXPECT_EQ(files().FileLength(In(u"new")), 0);
}

TEST_F(Win32OpenFile, PositionsBeyondFourGibibytes) {
  const std::int64_t beyond = (std::int64_t{1} << 32) + 10;
  const Text path = In(u"big");
  const auto file = files().Open(path, OpenMode::kReadWriteCreate);
  ASSERT_TRUE(file);
  ASSERT_TRUE(file->WriteAt(beyond, std::string("end")));
  EXPECT_EQ(files().FileLength(path), beyond + 3);
  std::array<char, 3> buffer = {};
  EXPECT_EQ(file->ReadAt(beyond, buffer), 3u);
  EXPECT_EQ(std::string(buffer.data(), 3), "end");
  FindRecord record;
  EXPECT_TRUE(files().FindFirst(path, Details::kSizes, record));
  EXPECT_EQ(record.size_high, 1u);
  EXPECT_EQ(record.size_low, 13u);
}

}  // namespace
}  // namespace orvik::host::win32
