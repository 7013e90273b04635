#include "host/posix/name_codec.h"

#include <gtest/gtest.h>

namespace orvik::host::posix {
namespace {

class NameCodecTest : public testing::Test {
 protected:
  std::string Listed(std::string_view native) {
    Text listed;
    reachable_ = codec_.AppendListed(native, listed);
    return ToUtf8(listed);
  }

  NameCodec codec_{CodePage::Numbered(1251)};
  bool reachable_ = false;
};

TEST_F(NameCodecTest, NamesOfThePageAreListedAsTheyAre) {
  for (const char* const name : {"plain.txt", "Ёлка и №5", " x", ".hidden", "a…b", "~$x"}) {
    EXPECT_EQ(Listed(name), name);
    EXPECT_TRUE(reachable_) << name;
    std::string back = "front/";
    EXPECT_TRUE(codec_.AppendNative(FromUtf8(name), back));
    EXPECT_EQ(back, std::string("front/") + name);
  }
}

TEST_F(NameCodecTest, WhatThePageLacksIsAQuestionMark) {
  EXPECT_EQ(Listed("a中b"), "a?b");
  EXPECT_FALSE(reachable_);
  EXPECT_EQ(Listed("ÿ"), "?");
  EXPECT_FALSE(reachable_);
  EXPECT_EQ(Listed("x😀"), "x??");
  EXPECT_FALSE(reachable_);
}

TEST_F(NameCodecTest, MalformedBytesAreQuestionMarks) {
  for (const char* const name : {"\xFF", "a\xC3", "\x80\x80", "\xE2\x82", "\xC0\xAF"}) {
    const std::string listed = Listed(name);
    EXPECT_NE(listed.find('?'), std::string::npos);
    EXPECT_FALSE(reachable_);
  }
}

TEST_F(NameCodecTest, WhatWindowsForbidsIsAQuestionMark) {
  EXPECT_EQ(Listed("a\\b:c*d?e\"f<g>h|i\nj"), "a?b?c?d?e?f?g?h?i?j");
  EXPECT_FALSE(reachable_);
}

TEST_F(NameCodecTest, ADotOrBlankAtTheEndIsAQuestionMark) {
  EXPECT_EQ(Listed("name."), "name?");
  EXPECT_FALSE(reachable_);
  EXPECT_EQ(Listed("name "), "name?");
  EXPECT_FALSE(reachable_);
}

TEST_F(NameCodecTest, NoBytesForWhatIsntReachable) {
  std::string native;
  for (const TextView name : {u"a?", u"a*", u"a:b", u"a/b", u"\x4E2D", u"\xD83D\xDE00", u"a\n"}) {
    EXPECT_FALSE(codec_.AppendNative(name, native)) << ToUtf8(name);
  }
}

TEST_F(NameCodecTest, FoldedNamesIgnoreCase) {
  EXPECT_EQ(codec_.Folded("Ёлка.Txt"), codec_.Folded("ёЛКА.tXT"));
  EXPECT_NE(codec_.Folded("a"), codec_.Folded("b"));
}

}  // namespace
}  // namespace orvik::host::posix
