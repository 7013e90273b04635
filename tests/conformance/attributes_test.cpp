// Existence, attributes and lengths.
#include "conformance/host_test.h"

namespace orvik::host {
namespace {

class AttributesTest : public HostTest {
 protected:
  // Without the archive bit, which Windows sets by itself.
  std::uint32_t Bits(TextView name) {
    return files().Attributes(At(name)).value_or(0xFFFF) & ~attribute::kArchive;
  }
};

TEST_F(AttributesTest, MissingThingsHaveNone) {
  EXPECT_FALSE(Exists(u"missing"));
  EXPECT_EQ(files().Attributes(At(u"missing")), std::nullopt);
  EXPECT_EQ(files().FileLength(At(u"missing")), std::nullopt);
  EXPECT_FALSE(files().SetAttributes(At(u"missing"), 0));
  EXPECT_EQ(files().Attributes(At(u"missing\\below")), std::nullopt);
}

TEST_F(AttributesTest, NewFilesAndFoldersArePlain) {
  Write(u"file", "");
  MakeFolder(u"folder");
  EXPECT_EQ(Bits(u"file"), 0U);
  EXPECT_EQ(Bits(u"folder"), attribute::kFolder);
}

TEST_F(AttributesTest, EachBitIsKeptAndTakenOff) {
  Write(u"file", "content");
  for (const std::uint32_t bits :
       {attribute::kReadOnly, attribute::kHidden, attribute::kSystem,
        attribute::kReadOnly | attribute::kHidden | attribute::kSystem, attribute::kHidden, 0U}) {
    ASSERT_TRUE(files().SetAttributes(At(u"file"), bits));
    EXPECT_EQ(Bits(u"file"), bits);
  }
  EXPECT_EQ(Read(u"file"), "content");
}

TEST_F(AttributesTest, SettingThemLeavesTheTime) {
  Write(u"file", "");
  real_.SetTime(u"file", 12'345'678'901'234'560);
  ASSERT_TRUE(files().SetAttributes(At(u"file"), attribute::kReadOnly));
  ASSERT_TRUE(files().SetAttributes(At(u"file"), 0));
  EXPECT_EQ(real_.TimeOf(u"file"), 12'345'678'901'234'560);
}

TEST_F(AttributesTest, FoldersHaveThemTooAndTheFolderBitIsIgnored) {
  MakeFolder(u"folder");
  ASSERT_TRUE(files().SetAttributes(At(u"folder"), attribute::kHidden));
  EXPECT_EQ(Bits(u"folder"), attribute::kFolder | attribute::kHidden);
  Write(u"folder\\inside", "1");
  EXPECT_EQ(Read(u"folder\\inside"), "1");
  ASSERT_TRUE(files().SetAttributes(At(u"folder"), 0));
  EXPECT_EQ(Bits(u"folder"), attribute::kFolder);
}

TEST_F(AttributesTest, LengthsAreOfFilesOnly) {
  Write(u"file", "12345");
  MakeFolder(u"folder");
  EXPECT_EQ(files().FileLength(At(u"file")), 5);
  EXPECT_EQ(files().FileLength(At(u"folder")), std::nullopt);
}

TEST_F(AttributesTest, TheLengthOfAHeldFileIsKnown) {
  Write(u"file", "12345");
  const auto hold = files().Open(At(u"file"), OpenMode::kHold);
  ASSERT_NE(hold, nullptr);
  EXPECT_EQ(files().FileLength(At(u"file")), 5);
}

}  // namespace
}  // namespace orvik::host
