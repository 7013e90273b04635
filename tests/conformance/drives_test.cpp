// Drives, space, sizes of folders and short names.
#include "conformance/host_test.h"

namespace orvik::host {
namespace {

class DrivesTest : public HostTest {
 protected:
  Text Drive() const { return real_.scratch().substr(0, 2); }
};

TEST_F(DrivesTest, TheScratchDriveHasAType) {
  EXPECT_GE(files().DriveType(Drive()), drive_type::kRemovable);
  EXPECT_LE(files().DriveType(Drive()), drive_type::kRamDisk);
  EXPECT_EQ(files().DriveType(Drive()), files().DriveType(Drive() + u"\\"));
  EXPECT_EQ(files().DriveType(Drive()), files().DriveType(ToLower(Drive())));
}

TEST_F(DrivesTest, AMissingDriveHasNoRoot) {
  EXPECT_EQ(files().DriveType(u"Q:"), drive_type::kNoRoot);
  EXPECT_EQ(files().Space(u"Q:\\"), std::nullopt);
  EXPECT_EQ(files().VolumeLabel(u"Q:"), std::nullopt);
}

TEST_F(DrivesTest, SpaceIsOfTheWholeDrive) {
  const auto of_drive = files().Space(Drive() + u"\\");
  const auto of_folder = files().Space(At(u""));
  ASSERT_TRUE(of_drive.has_value());
  ASSERT_TRUE(of_folder.has_value());
  EXPECT_GT(of_drive->total, 0U);
  EXPECT_LE(of_drive->free, of_drive->total);
  EXPECT_EQ(of_drive->total, of_folder->total);
  EXPECT_EQ(files().Space(At(u"missing")), std::nullopt);
}

TEST_F(DrivesTest, ADriveHasALabelEvenIfAnEmptyOne) {
  EXPECT_TRUE(files().VolumeLabel(Drive()).has_value());
  EXPECT_EQ(files().VolumeLabel(Drive()), files().VolumeLabel(Drive() + u"\\"));
}

TEST_F(DrivesTest, FolderSizeAddsUpAllFilesBelow) {
  MakeFolder(u"a");
  MakeFolder(u"a\\b");
  MakeFolder(u"a\\empty");
  EXPECT_EQ(files().FolderSize(At(u"a")), 0U);
  Write(u"a\\1", "12345");
  Write(u"a\\b\\2", "123");
  Write(u"a\\b\\hidden", "1");
  ASSERT_TRUE(files().SetAttributes(At(u"a\\b\\hidden"), attribute::kHidden | attribute::kSystem));
  EXPECT_EQ(files().FolderSize(At(u"a")), 9U);
  EXPECT_EQ(files().FolderSize(At(u"A\\")), 9U);
}

TEST_F(DrivesTest, FolderSizeBeyondFourGigabytes) {
  MakeFolder(u"a");
  {
    const auto file = files().Open(At(u"a\\big"), OpenMode::kReadWriteCreate);
    ASSERT_NE(file, nullptr);
    ASSERT_TRUE(file->WriteAt(std::int64_t{6} << 30, std::string_view("x")));
  }
  EXPECT_EQ(files().FolderSize(At(u"a")), (std::uint64_t{6} << 30) + 1);
}

TEST_F(DrivesTest, OnlyFoldersThatAreThereHaveASize) {
  Write(u"file", "1");
  EXPECT_EQ(files().FolderSize(At(u"file")), std::nullopt);
  EXPECT_EQ(files().FolderSize(At(u"missing")), std::nullopt);
}

TEST_F(DrivesTest, AShortNameOfANameThatFitsIsItself) {
  Write(u"SHORT.TXT", "");
  EXPECT_EQ(files().ShortName(At(u"SHORT.TXT")), u"SHORT.TXT");
  EXPECT_EQ(files().ShortName(At(u"missing")), std::nullopt);
}

TEST_F(DrivesTest, ALongNameHasAShortNameOfItsOwn) {
  Write(u"a long name.extension", "");
  Write(u"a long name too.extension", "");
  const auto one = files().ShortName(At(u"a long name.extension"));
  const auto two = files().ShortName(At(u"a long name too.extension"));
  ASSERT_TRUE(one.has_value());
  ASSERT_TRUE(two.has_value());
  EXPECT_NE(*one, *two);
  for (const Text& name : {*one, *two}) {
    EXPECT_LE(name.size(), 12U) << U(name);
    EXPECT_EQ(name.find(u' '), Text::npos) << U(name);
    EXPECT_NE(name.find(u'~'), Text::npos) << U(name);
  }
}

}  // namespace
}  // namespace orvik::host
