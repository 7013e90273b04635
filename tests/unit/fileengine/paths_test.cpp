#include "fileengine/paths.h"

#include "base/failure.h"
#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

using Paths = test::ProgramTest;

TEST_F(Paths, FileNameIsWhatFollowsTheLastBackslash) {
  EXPECT_EQ(GetFileName(u"C:\\a\\b.txt"), u"b.txt");
  EXPECT_EQ(GetFileName(u"b.txt"), u"b.txt");
  EXPECT_EQ(GetFileName(u""), u"");
  EXPECT_EQ(GetFileName(u"\\"), u"\\");
}

TEST_F(Paths, FileNameOfAClosedFolderKeepsTheBackslash) {
  EXPECT_EQ(GetFileName(u"C:\\a\\b\\"), u"b\\");
  EXPECT_EQ(GetFileName(u"C:\\a\\"), u"a\\");
  EXPECT_EQ(GetFileName(u"a\\"), u"a\\");
}

TEST_F(Paths, FolderPathReachesTheLastBackslash) {
  EXPECT_EQ(GetFolderPath(u"C:\\a\\b.txt"), u"C:\\a\\");
  EXPECT_EQ(GetFolderPath(u"C:\\a\\"), u"C:\\a\\");
  EXPECT_EQ(GetFolderPath(u"b.txt"), u"");
}

TEST_F(Paths, ShortenedPathIsRootDotsAndLastComponent) {
  EXPECT_EQ(ShortenPath(u"C:\\c.txt"), u"C:\\...\\c.txt");
  EXPECT_EQ(ShortenPath(u"C:\\a\\b\\c.txt"), u"C:\\...\\c.txt");
  EXPECT_EQ(ShortenPath(u"\\\\srv\\share\\x.txt"), u"\\\\srv\\...\\x.txt");
  EXPECT_EQ(ShortenPath(u"C:\\a\\b\\"), u"C:\\...\\");
  EXPECT_EQ(ShortenPath(u"C:\\"), u"C:\\...\\");
  EXPECT_EQ(ShortenPath(u"\\\\srv"), u"...\\srv");
}

TEST_F(Paths, ShorteningWithoutABackslashFails) {
  EXPECT_THROW(ShortenPath(u"file.txt"), Failure);
  EXPECT_THROW(ShortenPath(u""), Failure);
}

TEST_F(Paths, DriveSpecByLength) {
  EXPECT_EQ(GetDriveSpec(u""), u"C:");
  EXPECT_EQ(GetDriveSpec(u"d"), u"d:");
  EXPECT_EQ(GetDriveSpec(u"d:"), u"d:");
  EXPECT_EQ(GetDriveSpec(u"D:\\x"), u"D:");
}

TEST_F(Paths, ClosingBackslash) {
  EXPECT_EQ(AddBackslash(u"C:\\a"), u"C:\\a\\");
  EXPECT_EQ(AddBackslash(u"C:\\a\\"), u"C:\\a\\");
  EXPECT_EQ(AddBackslash(u""), u"\\");
  Text path = u"x";
  EnsureBackslash(path);
  EXPECT_EQ(path, u"x\\");
}

TEST_F(Paths, MissingLevelsAreMade) {
  CreateFolderPath(u"T:\\a\\b\\c");
  EXPECT_EQ(host.files.changes,
            (std::vector<std::string>{"CreateFolder T:\\a\\", "CreateFolder T:\\a\\b\\",
                                      "CreateFolder T:\\a\\b\\c\\"}));
  EXPECT_TRUE(host.files.IsFolder(u"T:\\a\\b\\c"));
}

TEST_F(Paths, AnExistingPathIsLeftAlone) {
  host.files.AddFolder(u"T:\\a\\b");
  CreateFolderPath(u"T:\\a\\b\\");
  EXPECT_TRUE(host.files.changes.empty());
}

TEST_F(Paths, LaterLevelsAreTriedBehindOneThatCannotBeMade) {
  CreateFolderPath(u"\\\\srv\\share\\x");
  EXPECT_EQ(host.files.changes,
            (std::vector<std::string>{"CreateFolder \\\\srv\\", "CreateFolder \\\\srv\\share\\",
                                      "CreateFolder \\\\srv\\share\\x\\"}));
}

TEST_F(Paths, FirstThreeCharactersAreNeverMade) {
  CreateFolderPath(u"ab\\c");
  EXPECT_EQ(host.files.changes, (std::vector<std::string>{"CreateFolder ab\\c\\"}));
  host.files.changes.clear();
  CreateFolderPath(u"Q:\\");
  CreateFolderPath(u"x");
  EXPECT_TRUE(host.files.changes.empty());
}

}  // namespace
}  // namespace orvik::mdlSupport
