// Enumeration: what FindFirst and Search give.
#include "conformance/host_test.h"

namespace orvik::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListingTest : public HostTest {};

std::uint64_t SizeOf(const FindRecord& record) {
  return std::uint64_t{record.size_high} << 32 | record.size_low;
}

TEST_F(ListingTest, DotsComeFirstThenNamesByCapitals) {
  for (const TextView name : {u"b.txt", u"A.txt", u"_x", u"c", u"B2"}) Write(name, "");
  std::vector<std::string> all;
  for (const FindRecord& record : Find(At(u"*"))) all.push_back(U(record.name));
  EXPECT_THAT(all, ElementsAre(".", "..", "A.txt", "b.txt", "B2", "c", "_x"));
}

TEST_F(ListingTest, CyrillicNamesComeInTheOrderOfCapitals) {
  for (const TextView name : {u"б", u"В", u"а", u"z"}) Write(name, "");
  EXPECT_THAT(Names(u"*"), ElementsAre("z", "а", "б", "В"));
}

TEST_F(ListingTest, TheRootOfADriveHasNoDots) {
  for (const FindRecord& record : Find(real_.scratch().substr(0, 3) + u"*")) {
    EXPECT_NE(U(record.name), ".");
    EXPECT_NE(U(record.name), "..");
  }
}

TEST_F(ListingTest, AnEmptyFolderHoldsTheDotsAlone) {
  EXPECT_EQ(Find(At(u"*")).size(), 2U);
  EXPECT_THAT(Find(At(u"*.txt")), IsEmpty());
}

TEST_F(ListingTest, MasksIgnoreCase) {
  for (const TextView name : {u"one.txt", u"TWO.TXT", u"three.doc", u"four"}) Write(name, "");
  EXPECT_THAT(Names(u"*.txt"), ElementsAre("one.txt", "TWO.TXT"));
  EXPECT_THAT(Names(u"*.TXT"), ElementsAre("one.txt", "TWO.TXT"));
  EXPECT_THAT(Names(u"t*"), ElementsAre("three.doc", "TWO.TXT"));
  EXPECT_THAT(Names(u"???.txt"), ElementsAre("one.txt", "TWO.TXT"));
  EXPECT_THAT(Names(u"*o*"), ElementsAre("four", "one.txt", "three.doc", "TWO.TXT"));
}

TEST_F(ListingTest, StarDotStarIsEveryName) {
  for (const TextView name : {u"a.b", u"c"}) Write(name, "");
  EXPECT_THAT(Names(u"*.*"), ElementsAre("a.b", "c"));
}

TEST_F(ListingTest, AClosingDotStarMatchesNamesWithoutExtension) {
  for (const TextView name : {u"name", u"name.txt", u"names"}) Write(name, "");
  EXPECT_THAT(Names(u"name.*"), ElementsAre("name", "name.txt"));
}

TEST_F(ListingTest, CyrillicMasksIgnoreCase) {
  Write(u"Отчёт.txt", "");
  Write(u"письмо.txt", "");
  EXPECT_THAT(Names(u"ОТЧЁТ.*"), ElementsAre("Отчёт.txt"));
  EXPECT_THAT(Names(u"П*.TXT"), ElementsAre("письмо.txt"));
}

TEST_F(ListingTest, APlainNameFindsItselfAsItIsSpelled) {
  Write(u"Name.Txt", "12345");
  const auto found = Find(At(u"NAME.txt"));
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(U(found[0].name), "Name.Txt");
  EXPECT_EQ(SizeOf(found[0]), 5U);
  EXPECT_THAT(Find(At(u"other")), IsEmpty());
}

TEST_F(ListingTest, APlainNameFindsAFolder) {
  MakeFolder(u"Sub");
  const auto found = Find(At(u"sub"));
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(U(found[0].name), "Sub");
  EXPECT_NE(found[0].attributes & attribute::kFolder, 0U);
}

TEST_F(ListingTest, NothingBehindTheLastBackslashFindsNothing) {
  Write(u"a", "");
  FindRecord record;
  record.name = u"untouched";
  EXPECT_EQ(files().FindFirst(At(u"") + u"\\", Details::kAll, record), nullptr);
  EXPECT_EQ(files().FindFirst(u"", Details::kAll, record), nullptr);
  EXPECT_EQ(U(record.name), "untouched");
}

TEST_F(ListingTest, AMissingFolderAndAFileAsFolderFindNothing) {
  Write(u"file", "");
  FindRecord record;
  EXPECT_EQ(files().FindFirst(At(u"missing\\*"), Details::kAll, record), nullptr);
  EXPECT_EQ(files().FindFirst(At(u"file\\*"), Details::kAll, record), nullptr);
  EXPECT_EQ(files().FindFirst(u"Q:\\missing\\*", Details::kAll, record), nullptr);
}

TEST_F(ListingTest, WildcardsInTheFolderFindNothing) {
  MakeFolder(u"sub");
  Write(u"sub\\a", "");
  EXPECT_THAT(Find(At(u"s*\\a")), IsEmpty());
  EXPECT_THAT(Find(At(u"s?b\\*")), IsEmpty());
}

TEST_F(ListingTest, TheEndLeavesTheRecordAlone) {
  Write(u"only", "");
  FindRecord record;
  const auto search = files().FindFirst(At(u"on*"), Details::kAll, record);
  ASSERT_NE(search, nullptr);
  EXPECT_FALSE(search->Next(record));
  EXPECT_EQ(U(record.name), "only");
  EXPECT_FALSE(search->Next(record));
}

TEST_F(ListingTest, SizesOfMoreThanTwoGigabytes) {
  constexpr std::int64_t kEnd = (std::int64_t{5} << 30) + 7;
  {
    const auto file = files().Open(At(u"big"), OpenMode::kReadWriteCreate);
    ASSERT_NE(file, nullptr);
    ASSERT_TRUE(file->WriteAt(kEnd - 1, std::string_view("x")));
    EXPECT_EQ(file->Length(), kEnd);
  }
  const auto found = Find(At(u"big"), Details::kSizes);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].size_high, 1U);
  EXPECT_EQ(found[0].size_low, (1U << 30) + 7);
  const auto listed = Find(At(u"b*"), Details::kSizes);
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(SizeOf(listed[0]), static_cast<std::uint64_t>(kEnd));
  EXPECT_EQ(files().FileLength(At(u"big")), kEnd);
}

TEST_F(ListingTest, EveryKindOfDetailsTellsFolders) {
  MakeFolder(u"folder");
  Write(u"x.file", "1");
  for (const Details details : {Details::kFolderBit, Details::kSizes, Details::kAll}) {
    const auto found = Find(At(u"*"), details);
    ASSERT_EQ(found.size(), 4U);
    for (const std::size_t dots : {0U, 1U, 2U}) {
      EXPECT_NE(found[dots].attributes & attribute::kFolder, 0U) << dots;
    }
    EXPECT_EQ(found[3].attributes & attribute::kFolder, 0U);
    if (details != Details::kFolderBit) {
      EXPECT_EQ(SizeOf(found[3]), 1U);
    }
  }
}

TEST_F(ListingTest, AllDetailsTellTheAttributes) {
  Write(u"hidden", "");
  Write(u"locked", "");
  ASSERT_TRUE(files().SetAttributes(At(u"hidden"), attribute::kHidden));
  ASSERT_TRUE(files().SetAttributes(At(u"locked"), attribute::kReadOnly));
  const auto found = Find(At(u"*d*"));
  ASSERT_EQ(found.size(), 2U);
  EXPECT_NE(found[0].attributes & attribute::kHidden, 0U);
  EXPECT_EQ(found[0].attributes & attribute::kReadOnly, 0U);
  EXPECT_NE(found[1].attributes & attribute::kReadOnly, 0U);
  EXPECT_EQ(found[1].attributes & attribute::kHidden, 0U);
}

TEST_F(ListingTest, EverythingCanBeDeletedWhileItIsListed) {
  for (int i = 0; i < 300; ++i) Write(u"f" + FromUtf8(std::to_string(i)), "");
  FindRecord record;
  auto search = files().FindFirst(At(u"f*"), Details::kFolderBit, record);
  ASSERT_NE(search, nullptr);
  int deleted = 0;
  do deleted += files().DeleteFile(At(record.name));
  while (search->Next(record));
  search.reset();
  EXPECT_EQ(deleted, 300);
  EXPECT_THAT(Names(u"*"), IsEmpty());
}

TEST_F(ListingTest, SearchesNest) {
  MakeFolder(u"a");
  MakeFolder(u"b");
  Write(u"a\\1", "");
  Write(u"b\\2", "");
  std::vector<std::string> found;
  for (const std::string& folder : Names(u"*")) {
    for (const std::string& name : Names(FromUtf8(folder) + u"\\*")) found.push_back(name);
  }
  EXPECT_THAT(found, ElementsAre("1", "2"));
}

}  // namespace
}  // namespace orvik::host
