#include "host/posix/drive_map.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <climits>

#include "host/file_system.h"

namespace orvik::host::posix {
namespace {

class DriveMapTest : public testing::Test {
 protected:
  std::string Native(TextView path) {
    const auto native = drives_.Translate(path);
    return native ? native->c_str() : "(none)";
  }
  bool Closed(TextView path) { return drives_.Translate(path)->closed; }

  NameCodec codec_{CodePage::Numbered(1251)};
  DriveMap drives_{{{u'T', "/nowhere/t"}, {u'U', "/nowhere/t/deep/"}, {u'Z', "/"}},
                   {{u'U', drive_type::kRemote}, {u'V', drive_type::kCdRom}},
                   codec_};
};

TEST_F(DriveMapTest, DrivesAreFolders) {
  EXPECT_EQ(Native(u"T:\\a\\b.txt"), "/nowhere/t/a/b.txt");
  EXPECT_EQ(Native(u"t:\\a"), "/nowhere/t/a");
  EXPECT_EQ(Native(u"U:\\a"), "/nowhere/t/deep/a");
  EXPECT_EQ(Native(u"Z:\\etc"), "/etc");
  EXPECT_EQ(Native(u"T:"), "/nowhere/t");
  EXPECT_EQ(Native(u"T:\\"), "/nowhere/t");
  EXPECT_EQ(Native(u"Z:\\"), "/");
  EXPECT_EQ(Native(u"T:a"), "/nowhere/t/a");
  EXPECT_EQ(Native(u"T:\\папка"), "/nowhere/t/папка");
}

TEST_F(DriveMapTest, PathsWithoutADriveAreOnZ) {
  char folder[PATH_MAX];
  ASSERT_NE(::getcwd(folder, sizeof folder), nullptr);
  EXPECT_EQ(Native(u"\\etc\\x"), "/etc/x");
  EXPECT_EQ(Native(u"x"), std::string(folder) + "/x");
  EXPECT_EQ(Native(u"Z:x"), std::string(folder) + "/x");
  EXPECT_EQ(Native(u"."), folder);
}

TEST_F(DriveMapTest, DotsAreWorkedOutAndStopAtTheRoot) {
  EXPECT_EQ(Native(u"T:\\a\\.\\b\\..\\c"), "/nowhere/t/a/c");
  EXPECT_EQ(Native(u"T:\\..\\..\\a"), "/nowhere/t/a");
  EXPECT_EQ(Native(u"T:\\a\\.."), "/nowhere/t");
  EXPECT_EQ(Native(u"Z:\\..\\etc"), "/etc");
}

TEST_F(DriveMapTest, SeparatorsRepeatAndMix) {
  EXPECT_EQ(Native(u"T:\\a\\\\b//c"), "/nowhere/t/a/b/c");
  EXPECT_TRUE(Closed(u"T:\\a\\"));
  EXPECT_TRUE(Closed(u"T:\\a/"));
  EXPECT_FALSE(Closed(u"T:\\a"));
}

TEST_F(DriveMapTest, BlanksAndDotsAtTheEndAreDropped) {
  EXPECT_EQ(Native(u"T:\\a. . "), "/nowhere/t/a");
  EXPECT_EQ(Native(u"T:\\a.\\b"), "/nowhere/t/a/b");
  EXPECT_EQ(Native(u"T:\\a\\   "), "/nowhere/t/a");
  EXPECT_EQ(Native(u"T:\\a \\b"), "(none)");
  EXPECT_EQ(Native(u"T:\\a..\\b"), "(none)");
}

TEST_F(DriveMapTest, WhatCantExistHasNoPath) {
  for (const TextView path : {u"", u"Q:\\a", u"\\\\srv\\share\\a", u"\\\\?\\T:\\a", u"T:\\a?",
                              u"T:\\a*", u"T:\\a:b", u"T:\\a|", u"T:\\中", u"1:\\a", u"T:\\a\n"}) {
    EXPECT_EQ(Native(path), "(none)") << ToUtf8(path);
  }
  EXPECT_NE(Native(u"T:\\" + Text(kLongestPath - 3, u'x')), "(none)");
  EXPECT_EQ(Native(u"T:\\" + Text(kLongestPath - 2, u'x')), "(none)");
}

TEST_F(DriveMapTest, NativePathsTakeTheDeepestDrive) {
  EXPECT_EQ(drives_.DriveForm("/nowhere/t/x"), u"T:\\x");
  EXPECT_EQ(drives_.DriveForm("/nowhere/t/deep/x"), u"U:\\x");
  EXPECT_EQ(drives_.DriveForm("/nowhere/t"), u"T:\\");
  EXPECT_EQ(drives_.DriveForm("/nowhere/two"), u"Z:\\nowhere\\two");
  EXPECT_EQ(drives_.DriveForm("/"), u"Z:\\");
}

TEST_F(DriveMapTest, TypesAsGivenElseFixedOrNone) {
  EXPECT_EQ(drives_.TypeOf(u"T:"), drive_type::kFixed);
  EXPECT_EQ(drives_.TypeOf(u"u:\\"), drive_type::kRemote);
  EXPECT_EQ(drives_.TypeOf(u"V:"), drive_type::kCdRom);
  EXPECT_EQ(drives_.TypeOf(u"Q:"), drive_type::kNoRoot);
  EXPECT_EQ(drives_.TypeOf(u""), drive_type::kNoRoot);
  EXPECT_EQ(drives_.TypeOf(u"T"), drive_type::kNoRoot);
}

}  // namespace
}  // namespace orvik::host::posix
