#include "host/win32/win32_registry.h"

#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

const Text kPath = u"SOFTWARE\\Orvik Test";

class Win32RegistryTest : public testing::Test {
 protected:
  void SetUp() override {
    SHDeleteKeyW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Orvik Test");
    key_ = keys_.CreateKey(kLocalMachine, kPath);
    ASSERT_NE(key_, 0u);
  }
  void TearDown() override {
    keys_.CloseKey(key_);
    SHDeleteKeyW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Orvik Test");
  }

  bool Set(const Text& name, const Text& data) {
    return keys_.SetValue(key_, name, kTextValue, data);
  }
  // The data under a name, found by enumeration.
  std::optional<Text> Data(const Text& name) {
    for (std::uint32_t i = 0;; ++i) {
      const auto value = keys_.ValueAt(key_, i);
      if (!value) return std::nullopt;
      if (value->name == name) return value->data;
    }
  }
  std::uint32_t Count() {
    std::uint32_t count = 0;
    while (keys_.ValueAt(key_, count)) ++count;
    return count;
  }

  Win32Registry keys_;
  Registry::Handle key_ = 0;
};

TEST_F(Win32RegistryTest, ValuesComeBack) {
  EXPECT_TRUE(Set(u"Имя Ё", u"данные"));
  EXPECT_TRUE(Set(u"", u"unnamed"));
  EXPECT_TRUE(Set(u"empty", u""));
  EXPECT_EQ(Data(u"Имя Ё"), u"данные");
  EXPECT_EQ(Data(u""), u"unnamed");
  EXPECT_EQ(Data(u"empty"), u"");
  EXPECT_EQ(Count(), 3u);
}

TEST_F(Win32RegistryTest, ValueIsStoredWithItsTerminator) {
  ASSERT_TRUE(Set(u"v", u"abc"));
  DWORD size = 0;
  DWORD type = 0;
  RegGetValueA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Orvik Test", "v", RRF_RT_ANY, &type, nullptr, &size);
  EXPECT_EQ(type, DWORD{REG_SZ});
  EXPECT_EQ(size, 4u);
}

TEST_F(Win32RegistryTest, NamesIgnoreCaseAndKeepTheFirstSpelling) {
  EXPECT_TRUE(Set(u"Name", u"1"));
  EXPECT_TRUE(Set(u"NAME", u"2"));
  EXPECT_EQ(Count(), 1u);
  EXPECT_EQ(Data(u"Name"), u"2");
}

TEST_F(Win32RegistryTest, LongNamesAndLongData) {
  const Text name(300, u'н');
  const Text data(100000, u'д');
  ASSERT_TRUE(Set(name, data));
  EXPECT_EQ(Data(name), data);
}

TEST_F(Win32RegistryTest, OnlyTextsReadAsTexts) {
  const DWORD number = 65;
  const char expanded[] = "%SystemRoot%\\x";
  RegSetKeyValueA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Orvik Test", "n", REG_DWORD, &number, 4);
  RegSetKeyValueA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Orvik Test", "b", REG_BINARY, "abc", 3);
  RegSetKeyValueA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Orvik Test", "e", REG_EXPAND_SZ, expanded,
                  sizeof expanded);
  EXPECT_EQ(Data(u"n"), u"");
  EXPECT_EQ(Data(u"b"), u"");
  EXPECT_EQ(Data(u"e"), u"%SystemRoot%\\x");
}

TEST_F(Win32RegistryTest, TextStoredWithoutTerminatorKeepsItsLastCharacter) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Orvik Test", L"t", REG_SZ, L"abc", 6);
  EXPECT_EQ(Data(u"t"), u"abc");
}

TEST_F(Win32RegistryTest, DeletesValues) {
  ASSERT_TRUE(Set(u"a", u"1"));
  ASSERT_TRUE(Set(u"", u"2"));
  EXPECT_TRUE(keys_.DeleteValue(key_, u"A"));
  EXPECT_FALSE(keys_.DeleteValue(key_, u"a"));
  EXPECT_TRUE(keys_.DeleteValue(key_, u""));
  EXPECT_EQ(Count(), 0u);
}

TEST_F(Win32RegistryTest, OpensExistingKeysOnly) {
  const auto again = keys_.OpenKey(kLocalMachine, u"\\software\\ORVIK TEST");
  EXPECT_NE(again, 0u);
  keys_.CloseKey(again);
  EXPECT_EQ(keys_.OpenKey(kLocalMachine, kPath + u"\\none"), 0u);
}

TEST_F(Win32RegistryTest, CreateMakesTheParentsToo) {
  const auto deep = keys_.CreateKey(key_, u"\\a\\b\\c");
  ASSERT_NE(deep, 0u);
  keys_.CloseKey(deep);
  const auto parent = keys_.OpenKey(key_, u"a\\b");
  EXPECT_NE(parent, 0u);
  keys_.CloseKey(parent);
}

TEST_F(Win32RegistryTest, EmptyPathIsTheParentAndClosesAlone) {
  const auto same = keys_.CreateKey(key_, u"");
  ASSERT_NE(same, 0u);
  EXPECT_TRUE(keys_.SetValue(same, u"v", kTextValue, u"1"));
  keys_.CloseKey(same);
  EXPECT_EQ(Data(u"v"), u"1");
  const auto root = keys_.CreateKey(kLocalMachine, u"");
  EXPECT_NE(root, 0u);
  keys_.CloseKey(root);
  EXPECT_NE(keys_.OpenKey(kLocalMachine, u""), 0u);
}

TEST_F(Win32RegistryTest, DeletesKeysWithoutSubKeys) {
  keys_.CloseKey(keys_.CreateKey(key_, u"a\\b"));
  EXPECT_FALSE(keys_.DeleteKey(key_, u"a"));
  EXPECT_TRUE(keys_.DeleteKey(key_, u"a\\b"));
  EXPECT_TRUE(keys_.DeleteKey(key_, u"a"));
  EXPECT_FALSE(keys_.DeleteKey(key_, u"a"));
  EXPECT_FALSE(keys_.DeleteKey(key_, u""));
  EXPECT_TRUE(Set(u"still", u"there"));
}

TEST_F(Win32RegistryTest, NoKeyDoesNoHarm) {
  EXPECT_EQ(keys_.CreateKey(0, u"a"), 0u);
  EXPECT_EQ(keys_.OpenKey(0, u"a"), 0u);
  EXPECT_FALSE(keys_.SetValue(0, u"a", kTextValue, u"b"));
  EXPECT_FALSE(keys_.ValueAt(0, 0));
  EXPECT_FALSE(keys_.DeleteValue(0, u"a"));
  EXPECT_FALSE(keys_.DeleteKey(0, u"a"));
  keys_.CloseKey(0);
}

TEST_F(Win32RegistryTest, ClassesRootIsWithinReach) {
  const auto key = keys_.CreateKey(kClassesRoot, u"orvik-test\\Shell\\Посмотреть\\command");
  ASSERT_NE(key, 0u);
  EXPECT_TRUE(keys_.SetValue(key, u"", kTextValue, u"x %L"));
  EXPECT_EQ(keys_.ValueAt(key, 0)->data, u"x %L");
  keys_.CloseKey(key);
  SHDeleteKeyW(HKEY_CLASSES_ROOT, L"orvik-test");
}

}  // namespace
}  // namespace orvik::host::win32
