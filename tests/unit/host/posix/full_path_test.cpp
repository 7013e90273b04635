#include "host/posix/full_path.h"

#include <gtest/gtest.h>

#include "host/posix/system.h"

namespace orvik::host::posix {
namespace {

std::string Full(TextView path) { return ToUtf8(FullPath(path, u"Z:\\home\\Имя")); }

TEST(FullPathTest, IsCompletedByTheCurrentFolder) {
  EXPECT_EQ(Full(u"x"), "Z:\\home\\Имя\\x");
  EXPECT_EQ(Full(u"..\\x"), "Z:\\home\\x");
  EXPECT_EQ(Full(u"\\x"), "Z:\\x");
  EXPECT_EQ(Full(u"z:x"), "Z:\\home\\Имя\\x");
  EXPECT_EQ(Full(u"C:x"), "C:\\x");
  EXPECT_EQ(Full(u"C:"), "C:\\");
  EXPECT_EQ(Full(u"."), "Z:\\home\\Имя");
  EXPECT_EQ(ToUtf8(FullPath(u"x", u"Z:\\")), "Z:\\x");
  EXPECT_EQ(Full(u""), "");
}

TEST(FullPathTest, StepsAreWorkedOut) {
  EXPECT_EQ(Full(u"c:/a/./b/../d"), "c:\\a\\d");
  EXPECT_EQ(Full(u"C:\\..\\..\\a"), "C:\\a");
  EXPECT_EQ(Full(u"C:\\a\\\\b\\"), "C:\\a\\b");
  EXPECT_EQ(Full(u"C:\\a.\\b. . "), "C:\\a\\b");
  EXPECT_EQ(Full(u"C:\\a\\.."), "C:\\");
  EXPECT_EQ(Full(u"C:\\ "), "C:\\");
}

TEST(FullPathTest, SharesKeepServerAndName) {
  EXPECT_EQ(Full(u"\\\\s\\h"), "\\\\s\\h");
  EXPECT_EQ(Full(u"//s/h/a/../b"), "\\\\s\\h\\b");
  EXPECT_EQ(Full(u"\\\\s\\h\\..\\..\\a"), "\\\\s\\h\\a");
  EXPECT_EQ(Full(u"\\\\s"), "\\\\s");
  EXPECT_EQ(Full(u"\\\\"), "\\\\");
}

TEST(IsFullPathTest, DrivesAndShares) {
  EXPECT_TRUE(IsFullPath(u"C:\\"));
  EXPECT_TRUE(IsFullPath(u"\\\\s\\h"));
  for (const TextView path : {u"", u"C:", u"C:x", u"\\x", u"x", u"%windir%\\x", u"1:\\"}) {
    EXPECT_FALSE(IsFullPath(path)) << ToUtf8(path);
  }
}

class ExpandVariablesTest : public testing::Test {
 protected:
  std::string Expanded(TextView text) { return ToUtf8(ExpandVariables(text, system_)); }

  NameCodec codec_{CodePage::Numbered(1251)};
  DriveMap drives_{{}, {}, codec_};
  PosixSystem system_{
      {u"=C:=C:\\hidden", u"windir=C:\\Windows", u"Имя=%windir%", u"empty="}, drives_, 1251, 866};
};

TEST_F(ExpandVariablesTest, KnownOnesInAnyCase) {
  EXPECT_EQ(Expanded(u"%WinDir%\\a"), "C:\\Windows\\a");
  EXPECT_EQ(Expanded(u"a%empty%b%windir%"), "abC:\\Windows");
  EXPECT_EQ(Expanded(u"%ИМЯ%"), "%windir%") << "once, not twice";
}

TEST_F(ExpandVariablesTest, OthersStayAsTheyAre) {
  for (const Text text : {u"", u"%", u"%%", u"100%", u"%no%", u"%windi%\\a", u"%=C:", u"%windir"}) {
    EXPECT_EQ(Expanded(text), ToUtf8(text));
  }
  EXPECT_EQ(Expanded(u"%no%windir%"), "%noC:\\Windows");
  EXPECT_EQ(Expanded(u"100%%windir%%"), "100%C:\\Windows%");
}

}  // namespace
}  // namespace orvik::host::posix
