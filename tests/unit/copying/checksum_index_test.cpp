#include "copying/checksum_index.h"

#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

class ChecksumIndex : public test::ProgramTest {
 protected:
  const KeyedCollection& Read(const std::string& content) {
    host.files.AddFile(u"T:\\l.qlx", content);
    index_ = {};
    ReadChecksumList(u"T:\\l.qlx", index_);
    return index_;
  }

 private:
  KeyedCollection index_;
};

TEST_F(ChecksumIndex, ItemAndKeyAreTheFirstTwoLines) {
  const KeyedCollection& index = Read("T:\\a;1\r\nT:\\b;2\r\nT:\\c;3\r\n");
  EXPECT_EQ(index.Count(), 1U);
  EXPECT_EQ(index.Item(u"kT:\\b;2"), u"T:\\a;1");
}

TEST_F(ChecksumIndex, AListOfOneLineOrNoneGivesNothing) {
  for (const char* content : {"", "T:\\a;1", "T:\\a;", ";;;"}) {
    EXPECT_EQ(Read(content).Count(), 0U) << content;
  }
}

TEST_F(ChecksumIndex, ALineWithoutASeparatorAddsAllTheSame) {
  EXPECT_EQ(Read("target\r\n123").Item(u"k123"), u"target");
}

TEST_F(ChecksumIndex, OnlyEmptyChecksumsAddNothing) {
  EXPECT_EQ(Read("a;\r\nb;").Count(), 0U);
  // The empty element behind the last line end has no second field either.
  EXPECT_EQ(Read("a;\r\nb;\r\n").Count(), 1U);
}

TEST_F(ChecksumIndex, AFolderGivesNothing) {
  host.files.AddFolder(u"T:\\folder.qlx");
  KeyedCollection index;
  ReadChecksumList(u"T:\\folder.qlx", index);
  EXPECT_EQ(index.Count(), 0U);
}

TEST_F(ChecksumIndex, LongListsAndAnyBytes) {
  std::string content;
  for (int i = 0; i < 300000; ++i) content += "x;1\r\n";
  EXPECT_EQ(Read(content).Count(), 1U);
  EXPECT_EQ(Read(std::string(100000, '\xFF')).Count(), 0U);
  EXPECT_EQ(Read(std::string("\0\r\n\0;\r\n", 7)).Count(), 1U);
}

}  // namespace
}  // namespace orvik::mdlMain
