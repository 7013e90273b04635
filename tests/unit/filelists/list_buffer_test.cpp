#include "filelists/list_buffer.h"

#include <gtest/gtest.h>

namespace orvik::mdlSupport {
namespace {

TEST(ListBuffer, TextComesOutInItsOrderAndRecordsAreApart) {
  AddToListBuffer(u"a", 0);
  AddToListBuffer(u"b", 0);
  AddToListBuffer(u"c", 255);
  EXPECT_EQ(TakeListBuffer(kFalse, 0), u"ab");
  EXPECT_EQ(TakeListBuffer(kTrue, 0), u"ab");
  EXPECT_EQ(TakeListBuffer(kTrue, 0), u"");
  EXPECT_EQ(TakeListBuffer(kTrue, 255), u"c");
}

TEST(ListBuffer, LongTextStaysWhole) {
  Text all;
  for (int i = 0; i < 20000; ++i) {
    const Text line = u"line " + Text(1, static_cast<char16_t>(u'a' + i % 26)) + Text(40, u'x');
    AddToListBuffer(line, 1);
    all += line;
  }
  EXPECT_EQ(TakeListBuffer(kTrue, 1), all);
}

}  // namespace
}  // namespace orvik::mdlSupport
