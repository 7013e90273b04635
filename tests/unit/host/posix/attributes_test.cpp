#include "host/posix/attributes.h"

#include <sys/xattr.h>

#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

class PosixAttributesTest : public PosixTest {
 protected:
  void SetUp() override { WriteNative("file", "content"); }

  std::string Stored(const std::string& name = "file") {
    char text[64];
    const ssize_t length = ::getxattr(Native(name).c_str(), "user.DOSATTRIB", text, sizeof text);
    return length < 0 ? "(none)" : std::string(text, static_cast<std::size_t>(length));
  }
  void Store(std::string_view text) {
    ASSERT_EQ(::setxattr(Native("file").c_str(), "user.DOSATTRIB", text.data(), text.size(), 0), 0);
  }
  mode_t Mode(const std::string& name = "file") {
    struct stat status = {};
    ::stat(Native(name).c_str(), &status);
    return status.st_mode & 0777;
  }
};

TEST_F(PosixAttributesTest, TextsOfSambaAreRead) {
  EXPECT_EQ(ParseAttributes("0x3"), attribute::kReadOnly | attribute::kHidden);
  EXPECT_EQ(ParseAttributes("0x20"), attribute::kArchive);
  EXPECT_EQ(ParseAttributes(std::string_view("0x22\0\0\3\0\3\0\0\0", 12)),
            attribute::kArchive | attribute::kHidden);
  EXPECT_EQ(ParseAttributes("0x10"), 0U);  // the folder bit isn't the text's affair
  for (const char* const text : {"", "0x", "3", "0xZ", "x3", "0x1234567890123"}) {
    EXPECT_EQ(ParseAttributes(text), 0U) << text;
  }
}

TEST_F(PosixAttributesTest, BothStoresTellReadOnly) {
  Store("0x3");
  EXPECT_EQ(files().Attributes(u"T:\\file"), attribute::kReadOnly | attribute::kHidden);
  EXPECT_FALSE(files().DeleteFile(u"T:\\file"));
  Store("0x4");
  ASSERT_EQ(::chmod(Native("file").c_str(), 0444), 0);
  EXPECT_EQ(files().Attributes(u"T:\\file"), attribute::kReadOnly | attribute::kSystem);
  EXPECT_FALSE(files().DeleteFile(u"T:\\file"));
}

TEST_F(PosixAttributesTest, SettingKeepsBothInStep) {
  EXPECT_TRUE(files().SetAttributes(u"T:\\file", attribute::kReadOnly | attribute::kHidden));
  EXPECT_EQ(Stored(), "0x3");
  EXPECT_EQ(Mode() & 0222, 0U);
  EXPECT_TRUE(files().SetAttributes(u"T:\\file", attribute::kArchive));
  EXPECT_EQ(Stored(), "0x20");
  EXPECT_NE(Mode() & 0200, 0U);
  EXPECT_TRUE(files().SetAttributes(u"T:\\file", 0));
  EXPECT_EQ(Stored(), "(none)");
}

TEST_F(PosixAttributesTest, AReadOnlyFolderKeepsTakingFilesAndIsNotRemoved) {
  ASSERT_EQ(::mkdir(Native("folder").c_str(), 0777), 0);
  EXPECT_TRUE(files().SetAttributes(u"T:\\folder", attribute::kReadOnly));
  EXPECT_EQ(files().Attributes(u"T:\\folder"), attribute::kFolder | attribute::kReadOnly);
  EXPECT_NE(Mode("folder") & 0200, 0U);
  EXPECT_FALSE(files().RemoveFolder(u"T:\\folder"));
  EXPECT_TRUE(files().SetAttributes(u"T:\\folder", 0));
  EXPECT_TRUE(files().RemoveFolder(u"T:\\folder"));
}

TEST_F(PosixAttributesTest, CopiesTakeThemAlongOntoOldTargetsToo) {
  Store("0x6");
  WriteNative("target", "old content");
  EXPECT_TRUE(files().CopyFile(u"T:\\file", u"T:\\target", false));
  EXPECT_EQ(Stored("target"), "0x6");
  ASSERT_EQ(::removexattr(Native("file").c_str(), "user.DOSATTRIB"), 0);
  ASSERT_EQ(::chmod(Native("file").c_str(), 0444), 0);
  EXPECT_TRUE(files().CopyFile(u"T:\\file", u"T:\\target", false));
  EXPECT_EQ(files().Attributes(u"T:\\target"), attribute::kReadOnly);
}

}  // namespace
}  // namespace orvik::host::posix
