// Copies of files.
#include <array>

#include "conformance/host_test.h"

namespace orvik::host {
namespace {

using testing::ElementsAre;

class CopyTest : public HostTest {
 protected:
  bool Copy(TextView source, TextView target, bool fail_if_exists = false) {
    return files().CopyFile(At(source), At(target), fail_if_exists);
  }
};

TEST_F(CopyTest, MakesANewFileWithTheSameContent) {
  Write(u"source", "content");
  EXPECT_TRUE(Copy(u"source", u"target"));
  EXPECT_EQ(Read(u"target"), "content");
  EXPECT_EQ(Read(u"source"), "content");
}

TEST_F(CopyTest, ContentsOfManySizes) {
  for (const std::size_t size : {0U, 1U, 4096U, 65535U, 65536U, 65537U, 300'000U, 3'000'001U}) {
    std::string content(size, '\0');
    for (std::size_t i = 0; i < size; ++i) content[i] = static_cast<char>(i * 7 + i / 251);
    files().DeleteFile(At(u"source"));
    Write(u"source", content);
    ASSERT_TRUE(Copy(u"source", u"target")) << size;
    EXPECT_TRUE(Read(u"target") == content) << size;
  }
}

TEST_F(CopyTest, AShorterContentLeavesNothingOfTheLongerOne) {
  Write(u"source", "short");
  Write(u"target", std::string(200'000, 'x'));
  EXPECT_TRUE(Copy(u"source", u"target"));
  EXPECT_EQ(Read(u"target"), "short");
  Write(u"empty", "");
  EXPECT_TRUE(Copy(u"empty", u"target"));
  EXPECT_EQ(Read(u"target"), "");
}

TEST_F(CopyTest, KeepsTheTimeOfModification) {
  Write(u"source", "content");
  real_.SetTime(u"source", 14'000'000'001'234'560);
  EXPECT_TRUE(Copy(u"source", u"new"));
  EXPECT_EQ(real_.TimeOf(u"new"), 14'000'000'001'234'560);
  Write(u"old", "older content");
  EXPECT_TRUE(Copy(u"source", u"old"));
  EXPECT_EQ(real_.TimeOf(u"old"), 14'000'000'001'234'560);
}

TEST_F(CopyTest, KeepsTheAttributes) {
  constexpr std::uint32_t kBits = attribute::kReadOnly | attribute::kHidden | attribute::kSystem;
  Write(u"source", "content");
  ASSERT_TRUE(files().SetAttributes(At(u"source"), kBits));
  EXPECT_TRUE(Copy(u"source", u"new"));
  EXPECT_EQ(files().Attributes(At(u"new")).value_or(0) & kBits, kBits);
  EXPECT_EQ(Read(u"new"), "content");
}

TEST_F(CopyTest, FailsOnAnExistingTargetWhenTold) {
  Write(u"source", "new");
  Write(u"Target", "old");
  EXPECT_FALSE(Copy(u"source", u"Target", true));
  EXPECT_FALSE(Copy(u"source", u"TARGET", true));
  EXPECT_EQ(Read(u"Target"), "old");
  EXPECT_TRUE(Copy(u"source", u"another", true));
  EXPECT_EQ(Read(u"another"), "new");
}

TEST_F(CopyTest, ReplacesATargetOfAnotherCase) {
  Write(u"source", "new");
  Write(u"Target.Txt", "old");
  EXPECT_TRUE(Copy(u"source", u"TARGET.txt"));
  EXPECT_THAT(Names(u"t*"), ElementsAre("Target.Txt"));
  EXPECT_EQ(Read(u"Target.Txt"), "new");
}

TEST_F(CopyTest, AReadOnlyTargetIsNotReplaced) {
  Write(u"source", "new");
  Write(u"target", "old");
  ASSERT_TRUE(files().SetAttributes(At(u"target"), attribute::kReadOnly));
  EXPECT_FALSE(Copy(u"source", u"target"));
  EXPECT_EQ(Read(u"target"), "old");
}

TEST_F(CopyTest, AFolderIsNeitherSourceNorTarget) {
  MakeFolder(u"folder");
  Write(u"file", "content");
  EXPECT_FALSE(Copy(u"file", u"folder"));
  EXPECT_FALSE(Copy(u"folder", u"copy"));
  EXPECT_FALSE(Exists(u"copy"));
  EXPECT_FALSE(Copy(u"file", u"folder\\"));
  EXPECT_THAT(Names(u"folder\\*"), ElementsAre());
}

TEST_F(CopyTest, AMissingSourceLeavesTheTarget) {
  Write(u"target", "old");
  EXPECT_FALSE(Copy(u"missing", u"target"));
  EXPECT_EQ(Read(u"target"), "old");
  EXPECT_FALSE(Copy(u"missing", u"new"));
  EXPECT_FALSE(Exists(u"new"));
}

TEST_F(CopyTest, NoFolderIsMade) {
  Write(u"source", "content");
  EXPECT_FALSE(Copy(u"source", u"missing\\target"));
  EXPECT_FALSE(Exists(u"missing"));
}

TEST_F(CopyTest, AFileOntoItselfFailsUntouched) {
  Write(u"file", "content");
  EXPECT_FALSE(Copy(u"file", u"file"));
  EXPECT_FALSE(Copy(u"file", u"FILE"));
  EXPECT_EQ(Read(u"file"), "content");
}

TEST_F(CopyTest, FilesOfMoreThanTwoGigabytes) {
  constexpr std::int64_t kMiddle = (std::int64_t{1} << 31) + 5;
  constexpr std::int64_t kEnd = (std::int64_t{1} << 32) + 9;
  {
    const auto file = files().Open(At(u"source"), OpenMode::kReadWriteCreate);
    ASSERT_NE(file, nullptr);
    ASSERT_TRUE(file->WriteAt(0, std::string_view("begin")));
    ASSERT_TRUE(file->WriteAt(kMiddle, std::string_view("middle")));
    ASSERT_TRUE(file->WriteAt(kEnd, std::string_view("end")));
  }
  ASSERT_TRUE(Copy(u"source", u"target"));
  const auto copy = files().Open(At(u"target"), OpenMode::kRead);
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->Length(), kEnd + 3);
  std::array<char, 6> buffer{};
  EXPECT_EQ(copy->ReadAt(0, buffer), 6U);
  EXPECT_EQ(std::string(buffer.data(), 6), std::string("begin\0", 6));
  EXPECT_EQ(copy->ReadAt(kMiddle, buffer), 6U);
  EXPECT_EQ(std::string(buffer.data(), 6), "middle");
  EXPECT_EQ(copy->ReadAt(kEnd, buffer), 3U);
  EXPECT_EQ(std::string(buffer.data(), 3), "end");
}

TEST_F(CopyTest, ThousandsOfFilesIntoOneFolder) {
  Write(u"source", "x");
  MakeFolder(u"many");
  for (int i = 0; i < 2000; ++i) {
    const Text name = u"many\\File" + FromUtf8(std::to_string(i));
    ASSERT_FALSE(Exists(name));
    ASSERT_TRUE(Copy(u"source", name));
  }
  EXPECT_EQ(Names(u"many\\*").size(), 2000U);
  EXPECT_TRUE(Exists(u"MANY\\FILE1999"));
}

}  // namespace
}  // namespace orvik::host
