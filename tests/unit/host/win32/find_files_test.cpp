#include <set>
#include <vector>

#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

class Win32FindFiles : public HostTest {
 protected:
  std::vector<FindRecord> All(const Text& path_and_mask) {
    std::vector<FindRecord> records;
    FindRecord record;
    const auto search = files().FindFirst(path_and_mask, Details::kAll, record);
    if (!search) return records;
    do {
      records.push_back(record);
    } while (search->Next(record));
    return records;
  }
  std::set<std::string> Names(const Text& path_and_mask) {
    std::set<std::string> names;
    for (const FindRecord& record : All(path_and_mask)) names.insert(ToUtf8(record.name));
    return names;
  }
};

using Set = std::set<std::string>;

TEST_F(Win32FindFiles, DotsComeFirst) {
  Make(u"!");
  MakeFolder(u"#");
  const auto all = All(In(u"*"));
  ASSERT_EQ(all.size(), 4u);
  EXPECT_EQ(all[0].name, u".");
  EXPECT_EQ(all[1].name, u"..");
  EXPECT_EQ(all[0].attributes & attribute::kFolder, attribute::kFolder);
}

TEST_F(Win32FindFiles, RootHoldsNoDots) {
  const Set names = Names(u"C:\\*");
  EXPECT_TRUE(names.contains("windows") || names.contains("Windows"));
  EXPECT_FALSE(names.contains("."));
  EXPECT_FALSE(names.contains(".."));
}

TEST_F(Win32FindFiles, MasksLookAtLongNamesOnly) {
  Make(u"a-very-long-name.html");
  Make(u"short.htm");
  Make(u"очень длинное русское имя.текст");
  EXPECT_EQ(Names(In(u"*.htm")), (Set{"short.htm"}));
  // What the hash of a short name would hold.
  EXPECT_EQ(Names(In(u"*~*")), Set{});
  EXPECT_EQ(Names(In(u"*.т??")), Set{});
  EXPECT_EQ(Names(In(u"*.ТЕКСТ")), (Set{"очень длинное русское имя.текст"}));
}

TEST_F(Win32FindFiles, MaskRules) {
  Make(u"makefile");
  Make(u"makefile.in");
  Make(u"ab.c");
  EXPECT_EQ(Names(In(u"*.*")), (Set{".", "..", "makefile", "makefile.in", "ab.c"}));
  EXPECT_EQ(Names(In(u"makefile.*")), (Set{"makefile", "makefile.in"}));
  EXPECT_EQ(Names(In(u"m*.")), (Set{"makefile"}));
  EXPECT_EQ(Names(In(u"??.?")), (Set{"ab.c"}));
  EXPECT_EQ(Names(In(u"ab.c?")), Set{});
  EXPECT_EQ(Names(In(u"MAKEFILE.IN")), (Set{"makefile.in"}));
}

TEST_F(Win32FindFiles, RecordStaysUntouchedWhenNothingMatches) {
  FindRecord record{7, 8, 9, u"before"};
  EXPECT_FALSE(files().FindFirst(In(u"*.none"), Details::kAll, record));
  EXPECT_FALSE(files().FindFirst(In(u"missing\\*"), Details::kAll, record));
  EXPECT_FALSE(files().FindFirst(In(u""), Details::kAll, record));
  EXPECT_FALSE(files().FindFirst(u"", Details::kAll, record));
  EXPECT_EQ(record.name, u"before");
  EXPECT_EQ(record.attributes, 7u);
  EXPECT_EQ(record.size_high, 8u);
  EXPECT_EQ(record.size_low, 9u);
}

TEST_F(Win32FindFiles, RecordStaysUntouchedAtTheEnd) {
  Make(u"one");
  FindRecord record;
  const auto search = files().FindFirst(In(u"one"), Details::kAll, record);
  ASSERT_TRUE(search);
  EXPECT_FALSE(search->Next(record));
  EXPECT_EQ(record.name, u"one");
}

TEST_F(Win32FindFiles, PlainPathFindsTheFolderItself) {
  MakeFolder(u"sub");
  EXPECT_EQ(Names(In(u"sub")), (Set{"sub"}));
  EXPECT_EQ(Names(In(u"sub\\")), Set{});
}

TEST_F(Win32FindFiles, WildcardsInTheFolderFindNothing) {
  MakeFolder(u"sub");
  Make(u"sub\\a");
  EXPECT_EQ(Names(In(u"su?\\a")), Set{});
  EXPECT_EQ(Names(In(u"*\\a")), Set{});
}

TEST_F(Win32FindFiles, NameOutsideThePageIsListedAndOutOfReach) {
  Make(u"caf\u00E9", "x");
  Make(u"\u4E2D\u6587", "x");
  EXPECT_EQ(Names(In(u"c*")), (Set{"caf?"}));
  EXPECT_EQ(Names(In(u"*")), (Set{".", "..", "caf?", "??"}));
  EXPECT_FALSE(files().PathExists(In(u"caf?")));
  EXPECT_FALSE(files().PathExists(In(u"cafe")));
  EXPECT_FALSE(files().DeleteFile(In(u"caf?")));
}

TEST_F(Win32FindFiles, SizesAndAttributes) {
  const Text path = Make(u"f", "12345");
  ASSERT_TRUE(SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_HIDDEN));
  const auto all = All(path);
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0].size_low, 5u);
  EXPECT_EQ(all[0].size_high, 0u);
  EXPECT_EQ(all[0].attributes & ~attribute::kArchive, attribute::kHidden);
}

TEST_F(Win32FindFiles, RefusesALongPath) {
  Text path = In(u"");
  path += Text(kLongestPath + 1 - path.size(), u'*');
  EXPECT_EQ(path.size(), kLongestPath + 1);
  EXPECT_EQ(Names(path), Set{});
  path.pop_back();
  EXPECT_EQ(Names(path), (Set{".", ".."}));
}

TEST_F(Win32FindFiles, FolderSizeSumsTheTree) {
  MakeFolder(u"sub");
  MakeFolder(u"sub\\deep");
  Make(u"a", "123");
  Make(u"sub\\b", "4567");
  Make(u"sub\\deep\\\u4E2D", "89");
  EXPECT_EQ(files().FolderSize(In(u"")), 9u);
  EXPECT_EQ(files().FolderSize(In(u"sub")), 6u);
  EXPECT_EQ(files().FolderSize(In(u"sub\\deep\\")), 2u);
  EXPECT_FALSE(files().FolderSize(In(u"missing")));
  EXPECT_FALSE(files().FolderSize(In(u"a")));
}

TEST_F(Win32FindFiles, FolderSizeOfAnEmptyFolderIsNothingMissing) {
  EXPECT_EQ(files().FolderSize(MakeFolder(u"empty")), 0u);
}

}  // namespace
}  // namespace orvik::host::win32
