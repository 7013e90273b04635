#include "host/posix/short_name.h"

#include <gtest/gtest.h>

namespace orvik::host::posix {
namespace {

TEST(ShortNameTest, WhatFits) {
  for (const TextView name : {u"a", u"Short.txt", u"12345678.123", u"Папка"}) {
    EXPECT_TRUE(FitsShortName(name)) << ToUtf8(name);
  }
  for (const TextView name : {u"", u".txt", u"123456789", u"a.html", u"a b.txt", u"a.b.c", u"a.",
                              u"a+b.txt", u"a,b", u"[x].doc"}) {
    EXPECT_FALSE(FitsShortName(name)) << ToUtf8(name);
  }
}

TEST(ShortNameTest, NumbersCountOverLikeNames) {
  const std::vector<Text> folder = {u"long name 1.txt", u"long name 2.txt", u"longna~2.txt",
                                    u"long name 3.doc", u"short.txt"};
  EXPECT_EQ(ShortNameAmong(u"long name 1.txt", folder), u"LONGNA~1.TXT");
  EXPECT_EQ(ShortNameAmong(u"long name 2.txt", folder), u"LONGNA~3.TXT");
  EXPECT_EQ(ShortNameAmong(u"long name 3.doc", folder), u"LONGNA~1.DOC");
  EXPECT_EQ(ShortNameAmong(u"short.txt", folder), u"SHORT.TXT");
}

TEST(ShortNameTest, OddCharactersAreReplacedOrDropped) {
  EXPECT_EQ(ShortNameAmong(u"a+b=c.d e.html", {u"a+b=c.d e.html"}), u"A_B_CD~1.HTM");
  EXPECT_EQ(ShortNameAmong(u".profile", {u".profile"}), u"PROFIL~1");
  EXPECT_EQ(ShortNameAmong(u"Очень длинное имя.документ", {u"Очень длинное имя.документ"}),
            u"ОЧЕНЬД~1.ДОК");
}

}  // namespace
}  // namespace orvik::host::posix
