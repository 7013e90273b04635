#include "host/shortcut_fields.h"

#include <gtest/gtest.h>

#include "host/file_system.h"

namespace orvik::host {
namespace {

TEST(IconLocationTest, OnlyANumberBehindTheLastCommaIsAnIndex) {
  const auto parts = [](TextView location) {
    const IconLocation icon = ParseIconLocation(location);
    return ToUtf8(icon.path) + "|" + std::to_string(icon.index);
  };
  EXPECT_EQ(parts(u""), "|0");
  EXPECT_EQ(parts(u"a.ico"), "a.ico|0");
  EXPECT_EQ(parts(u"a.dll,12"), "a.dll|12");
  EXPECT_EQ(parts(u"a.dll, -12 "), "a.dll|-12");
  EXPECT_EQ(parts(u"a,1,2"), "a,1|2");
  EXPECT_EQ(parts(u"a, b"), "a, b|0");
  EXPECT_EQ(parts(u"a,"), "a,|0");
  EXPECT_EQ(parts(u"a,1x"), "a,1x|0");
  EXPECT_EQ(parts(u"a,99999999999"), "a,99999999999|0");
}

TEST(IconLocationTest, TheFirstIconNeedsNoIndex) {
  EXPECT_EQ(IconLocationText(u"a", 0), u"a");
  EXPECT_EQ(IconLocationText(u"a", -3), u"a,-3");
  EXPECT_EQ(IconLocationText(u"", 3), u",3");
}

TEST(PlainTargetTest, QuotesAndAClosingBackslashGo) {
  EXPECT_EQ(PlainTarget(u"\"C:\\a b\""), u"C:\\a b");
  EXPECT_EQ(PlainTarget(u"\"C:\\a"), u"\"C:\\a");
  EXPECT_EQ(PlainTarget(u"\""), u"\"");
  EXPECT_EQ(PlainTarget(u"\"\""), u"");
  EXPECT_EQ(PlainTarget(u"C:\\a\\\\"), u"C:\\a");
  EXPECT_EQ(PlainTarget(u"C:\\"), u"C:\\");
  EXPECT_EQ(PlainTarget(u""), u"");
}

TEST(IsFitToWriteTest, LengthsAndQuotes) {
  EXPECT_TRUE(IsFitToWrite({}));
  for (Text Shortcut::*const text : {&Shortcut::arguments, &Shortcut::description,
                                     &Shortcut::working_folder, &Shortcut::icon_location}) {
    Shortcut shortcut;
    shortcut.*text = Text(kLongestShortcutText, u'x');
    EXPECT_TRUE(IsFitToWrite(shortcut));
    shortcut.*text += u'x';
    EXPECT_FALSE(IsFitToWrite(shortcut));
  }
  Shortcut target;
  target.target = u"\"" + Text(kLongestPath, u'x') + u"\"";
  EXPECT_TRUE(IsFitToWrite(target));
  target.target = Text(kLongestPath + 1, u'x');
  EXPECT_FALSE(IsFitToWrite(target));
  target.target = u"C:\\a\"b";
  EXPECT_FALSE(IsFitToWrite(target));
}

}  // namespace
}  // namespace orvik::host
