// The registry.
#include <algorithm>

#include "conformance/host_test.h"

namespace orvik::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Pair = std::pair<std::string, std::string>;

const Text kOwn = u"SOFTWARE\\OrvikConformance";

class RegistryTest : public HostTest {
 protected:
  void SetUp() override { TearDown(); }
  void TearDown() override {
    for (const TextView name : {u"\\a\\b\\c", u"\\a\\b", u"\\a", u"\\k]=\"", u"\\Ключ", u""}) {
      const Registry::Handle root = keys().CreateKey(kLocalMachine, u"");
      keys().DeleteKey(root, kOwn + Text(name));
      keys().CloseKey(root);
    }
  }

  Registry& keys() { return *real_.services().registry; }

  Registry::Handle Make(TextView path = u"") {
    return keys().CreateKey(kLocalMachine, kOwn + Text(path));
  }

  bool Set(Registry::Handle key, TextView name, TextView data) {
    return keys().SetValue(key, Text(name), kTextValue, Text(data));
  }

  // The values of a key; sorted where the system sorts them.
  std::vector<Pair> Values(Registry::Handle key) {
    std::vector<Pair> values;
    for (std::uint32_t i = 0; const auto value = keys().ValueAt(key, i); ++i) {
      values.emplace_back(U(value->name), U(value->data));
    }
    return values;
  }

  std::vector<Pair> InOrder(std::vector<Pair> values) {
    if (!RealHost::KeepsValueOrder()) std::sort(values.begin(), values.end());
    return values;
  }
};

TEST_F(RegistryTest, AMissingKeyDoesntOpen) {
  EXPECT_EQ(keys().OpenKey(kLocalMachine, kOwn), 0U);
  EXPECT_EQ(keys().OpenKey(0, kOwn), 0U);
  EXPECT_EQ(keys().CreateKey(0, kOwn), 0U);
}

TEST_F(RegistryTest, NoKeyFailsWithoutHarm) {
  EXPECT_FALSE(Set(0, u"a", u"b"));
  EXPECT_EQ(keys().ValueAt(0, 0), std::nullopt);
  EXPECT_FALSE(keys().DeleteValue(0, u"a"));
  EXPECT_FALSE(keys().DeleteKey(0, u"a"));
  keys().CloseKey(0);
}

TEST_F(RegistryTest, CreationMakesTheParentsToo) {
  const Registry::Handle key = Make(u"\\a\\b");
  ASSERT_NE(key, 0U);
  keys().CloseKey(key);
  for (const TextView path : {u"", u"\\a", u"\\A\\B"}) {
    const Registry::Handle opened = keys().OpenKey(kLocalMachine, kOwn + Text(path));
    EXPECT_NE(opened, 0U) << U(path);
    keys().CloseKey(opened);
  }
}

TEST_F(RegistryTest, KeysOpenBelowKeys) {
  const Registry::Handle own = Make();
  const Registry::Handle made = keys().CreateKey(own, u"\\a");
  const Registry::Handle opened = keys().OpenKey(own, u"a");
  const Registry::Handle same = keys().OpenKey(opened, u"");
  EXPECT_NE(made, 0U);
  EXPECT_NE(opened, 0U);
  ASSERT_NE(same, 0U);
  EXPECT_TRUE(Set(made, u"n", u"d"));
  EXPECT_THAT(Values(same), ElementsAre(Pair("n", "d")));
  for (const Registry::Handle key : {same, opened, made, own}) keys().CloseKey(key);
}

TEST_F(RegistryTest, ValuesComeInTheOrderOfTheirFirstWriting) {
  const Registry::Handle key = Make();
  for (const TextView name : {u"zebra", u"apple", u"mango"}) ASSERT_TRUE(Set(key, name, name));
  ASSERT_TRUE(Set(key, u"ZEBRA", u"again"));
  EXPECT_EQ(Values(key), InOrder({{"zebra", "again"}, {"apple", "apple"}, {"mango", "mango"}}));
  EXPECT_EQ(keys().ValueAt(key, 3), std::nullopt);
  EXPECT_EQ(keys().ValueAt(key, 1000), std::nullopt);
  keys().CloseKey(key);
}

TEST_F(RegistryTest, DeletedValuesComeBackAtTheEnd) {
  const Registry::Handle key = Make();
  for (const TextView name : {u"a", u"b", u"c"}) ASSERT_TRUE(Set(key, name, u""));
  EXPECT_TRUE(keys().DeleteValue(key, u"A"));
  EXPECT_FALSE(keys().DeleteValue(key, u"a"));
  EXPECT_EQ(Values(key), InOrder({{"b", ""}, {"c", ""}}));
  ASSERT_TRUE(Set(key, u"a", u"1"));
  EXPECT_EQ(Values(key), InOrder({{"b", ""}, {"c", ""}, {"a", "1"}}));
  keys().CloseKey(key);
}

TEST_F(RegistryTest, TheUnnamedValue) {
  const Registry::Handle key = Make();
  ASSERT_TRUE(Set(key, u"", u"unnamed"));
  EXPECT_THAT(Values(key), ElementsAre(Pair("", "unnamed")));
  EXPECT_TRUE(keys().DeleteValue(key, u""));
  EXPECT_FALSE(keys().DeleteValue(key, u""));
  EXPECT_THAT(Values(key), IsEmpty());
  keys().CloseKey(key);
}

TEST_F(RegistryTest, NamesAndDataOfAnyCharacters) {
  const std::vector<Text> texts = {u"C:\\папка\\файл.txt",
                                   u"a=b",
                                   u"[x]",
                                   u"\"quoted\"",
                                   u"ends in \\",
                                   u"\\\\s\\x",
                                   u"; no",
                                   u" blanks ",
                                   u"@",
                                   u"Ёж № 5",
                                   u"tab\tx",
                                   u"dword:00000001",
                                   u"two\r\nlines",
                                   u"\\n",
                                   u"hex:01,\\"};
  const Registry::Handle key = Make();
  std::vector<Pair> expected;
  for (const Text& text : texts) {
    ASSERT_TRUE(Set(key, text, text)) << U(text);
    expected.emplace_back(U(text), U(text));
  }
  std::vector<Pair> values = Values(key);
  std::sort(values.begin(), values.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(values, expected);
  for (const Text& text : texts) EXPECT_TRUE(keys().DeleteValue(key, text)) << U(text);
  EXPECT_THAT(Values(key), IsEmpty());
  keys().CloseKey(key);
}

TEST_F(RegistryTest, KeysOfAnyCharacters) {
  for (const TextView name : {u"\\k]=\"", u"\\Ключ"}) {
    const Registry::Handle key = Make(name);
    ASSERT_NE(key, 0U) << U(name);
    ASSERT_TRUE(Set(key, u"n", name));
    keys().CloseKey(key);
    const Registry::Handle again = keys().OpenKey(kLocalMachine, ToUpper(kOwn + Text(name)));
    ASSERT_NE(again, 0U) << U(name);
    EXPECT_THAT(Values(again), ElementsAre(Pair("n", U(name))));
    keys().CloseKey(again);
  }
}

TEST_F(RegistryTest, LongTexts) {
  const Registry::Handle key = Make();
  const Text name(250, u'n');
  const Text data(5000, u'д');
  ASSERT_TRUE(Set(key, name, data));
  EXPECT_THAT(Values(key), ElementsAre(Pair(U(name), U(data))));
  keys().CloseKey(key);
}

TEST_F(RegistryTest, CharactersOutsideTheCodePageBecomeQuestionMarks) {
  const Registry::Handle key = Make();
  ASSERT_TRUE(Set(key, u"a\u4E2Db", u"\u4E2D"));
  EXPECT_THAT(Values(key), ElementsAre(Pair("a?b", "?")));
  keys().CloseKey(key);
}

TEST_F(RegistryTest, DataThatIsNoTextReadsAsEmpty) {
  constexpr std::uint32_t kBinary = 3;
  const Registry::Handle key = Make();
  ASSERT_TRUE(keys().SetValue(key, u"binary", kBinary, u"bytes"));
  EXPECT_THAT(Values(key), ElementsAre(Pair("binary", "")));
  keys().CloseKey(key);
}

TEST_F(RegistryTest, TextsWithVariablesAreTexts) {
  constexpr std::uint32_t kExpandable = 2;
  const Registry::Handle key = Make();
  ASSERT_TRUE(keys().SetValue(key, u"e", kExpandable, u"%SystemRoot%\\Тест.exe \"%1\""));
  EXPECT_THAT(Values(key), ElementsAre(Pair("e", "%SystemRoot%\\Тест.exe \"%1\"")));
  keys().CloseKey(key);
}

TEST_F(RegistryTest, OnlyKeysWithoutSubKeysAreDeleted) {
  keys().CloseKey(Make(u"\\a\\b"));
  const Registry::Handle own = Make();
  EXPECT_FALSE(keys().DeleteKey(own, u"a"));
  EXPECT_FALSE(keys().DeleteKey(own, u"missing"));
  const Registry::Handle a = keys().OpenKey(own, u"a");
  EXPECT_TRUE(Set(a, u"kept", u""));
  EXPECT_TRUE(keys().DeleteKey(a, u"B"));
  EXPECT_FALSE(keys().DeleteKey(a, u"b"));
  keys().CloseKey(a);
  EXPECT_TRUE(keys().DeleteKey(own, u"a"));
  EXPECT_EQ(keys().OpenKey(own, u"a"), 0U);
  EXPECT_FALSE(keys().DeleteKey(own, u""));
  keys().CloseKey(own);
}

TEST_F(RegistryTest, ADeletedKeyTakesNoValues) {
  const Registry::Handle key = Make(u"\\a");
  const Registry::Handle own = Make();
  ASSERT_TRUE(keys().DeleteKey(own, u"a"));
  EXPECT_FALSE(Set(key, u"n", u"d"));
  EXPECT_EQ(keys().ValueAt(key, 0), std::nullopt);
  keys().CloseKey(key);
  keys().CloseKey(own);
}

TEST_F(RegistryTest, ClassesRootIsThere) {
  const Registry::Handle key = keys().CreateKey(kClassesRoot, u"OrvikConformance\\shell");
  ASSERT_NE(key, 0U);
  EXPECT_TRUE(Set(key, u"", u"x"));
  EXPECT_THAT(Values(key), ElementsAre(Pair("", "x")));
  keys().CloseKey(key);
  const Registry::Handle parent = keys().OpenKey(kClassesRoot, u"OrvikConformance");
  EXPECT_TRUE(keys().DeleteKey(parent, u"shell"));
  keys().CloseKey(parent);
  const Registry::Handle root = keys().OpenKey(kClassesRoot, u"");
  EXPECT_TRUE(keys().DeleteKey(root, u"OrvikConformance"));
  keys().CloseKey(root);
}

}  // namespace
}  // namespace orvik::host
