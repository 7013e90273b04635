#include "platform/reg_list.h"

#include "forms/form.h"
#include "unit/support/program_test.h"

namespace orvik::mdlRegList {
namespace {

using host::kLocalMachine;
constexpr const char16_t* kKey = u"SOFTWARE\\List";

// A registry that may be read but, once sealed, not written.
class Sealed : public test::FakeRegistry {
 public:
  bool SetValue(Handle key, const Text& name, std::uint32_t type, const Text& data) override {
    return !sealed && FakeRegistry::SetValue(key, name, type, data);
  }
  bool DeleteValue(Handle key, const Text& name) override {
    return !sealed && FakeRegistry::DeleteValue(key, name);
  }
  bool sealed = false;
};

class RegList : public test::ProgramTest {
 protected:
  void Save(const std::vector<Text>& items) {
    KeyedCollection collection;
    for (const Text& item : items) collection.Add(item);
    SaveRegList(kLocalMachine, kKey, collection, collection);
  }
  std::vector<Text> Load() {
    KeyedCollection items;
    KeyedCollection names;
    LoadRegList(kLocalMachine, kKey, items, names);
    std::vector<Text> result;
    for (std::size_t i = 1; i <= items.Count(); ++i) result.push_back(items.Item(i));
    return result;
  }
  std::vector<Text> Names() {
    std::vector<Text> names;
    const auto values = host.registry.Values(kLocalMachine, kKey).value();
    for (const auto& value : values) {
      names.push_back(value.name);
      EXPECT_EQ(value.name, value.data);
    }
    return names;
  }
};

TEST_F(RegList, AListComesBackInWritingOrder) {
  Save({u"второй", u"a", u"Z:\\x"});
  EXPECT_EQ(Load(), (std::vector<Text>{u"второй", u"a", u"Z:\\x"}));
}

TEST_F(RegList, AnEntrySavedTwiceStandsOnceAtItsFirstPlace) {
  Save({u"a", u"b", u"A", u"b"});
  // The data is that of the last writing, the name that of the first.
  const auto values = *host.registry.Values(kLocalMachine, kKey);
  ASSERT_EQ(values.size(), 2U);
  EXPECT_EQ(values[0].name, u"a");
  EXPECT_EQ(values[0].data, u"A");
  EXPECT_EQ(values[1].name, u"b");
}

TEST_F(RegList, SavingReplacesWhatTheKeyHeld) {
  host.registry.Write(kLocalMachine, kKey, u"", u"unnamed");
  Save({u"old1", u"old2"});
  Save({u"new"});
  EXPECT_EQ(Names(), (std::vector<Text>{u"new"}));
}

TEST_F(RegList, AnEmptyListLeavesAnEmptyKey) {
  Save({});
  EXPECT_TRUE(host.registry.Values(kLocalMachine, kKey)->empty());
  EXPECT_TRUE(Load().empty());
}

TEST_F(RegList, AMissingKeyGivesTwoEmptyCollections) {
  KeyedCollection items;
  items.Add(u"old");
  KeyedCollection names;
  names.Add(u"old");
  LoadRegList(kLocalMachine, u"none", items, names);
  EXPECT_EQ(items.Count(), 0U);
  EXPECT_EQ(names.Count(), 0U);
}

TEST_F(RegList, BothCollectionsAreKeyedByTheOther) {
  host.registry.Write(kLocalMachine, kKey, u"n1", u"same");
  host.registry.Write(kLocalMachine, kKey, u"n2", u"SAME");
  KeyedCollection items;
  KeyedCollection names;
  LoadRegList(kLocalMachine, kKey, items, names);
  EXPECT_EQ(items.Item(u"kN2"), u"SAME");
  EXPECT_EQ(names.Count(), 1U);
  EXPECT_EQ(names.Item(u"ksame"), u"n1");
}

TEST_F(RegList, AnUnnamedValueWithDataIsPassedOverAnEmptyOneEndsTheList) {
  host.registry.Write(kLocalMachine, kKey, u"", u"data");
  host.registry.Write(kLocalMachine, kKey, u"a", u"a");
  EXPECT_EQ(Load(), (std::vector<Text>{u"a"}));
  Save({u"", u"behind"});
  EXPECT_TRUE(Load().empty());
}

TEST_F(RegList, WithoutNamesTheNumbersAreTheNames) {
  KeyedCollection items;
  items.Add(u"x");
  items.Add(u"y");
  SaveRegList(kLocalMachine, kKey, items, {});
  const auto values = *host.registry.Values(kLocalMachine, kKey);
  EXPECT_EQ(values[0].name, u"k000001");
  EXPECT_EQ(values[1].name, u"k000002");
  EXPECT_EQ(values[1].data, u"y");
}

TEST_F(RegList, WithoutTheRightToWriteTheListStaysAndTheSaveEnds) {
  Sealed sealed;
  sealed.Write(kLocalMachine, kKey, u"kept", u"kept");
  sealed.sealed = true;
  auto services = host.services();
  services.registry = &sealed;
  host::Install(services);
  Save({u"new"});
  EXPECT_EQ(sealed.Values(kLocalMachine, kKey)->size(), 1U);
  EXPECT_EQ(Load(), (std::vector<Text>{u"kept"}));
}

struct ComboForm : forms::Form {
  ComboForm() : Form("frmTest", u"", 1000, 1000) {}
  forms::ComboBox cbPattern{*this, "cbPattern", {}, u"*.*"};
};

class PatternList : public test::ProgramTest {
 protected:
  PatternList() { mdlMain::DoublesPatternKey = u"SOFTWARE\\Patterns"; }
  void Save(const Text& text) {
    form.cbPattern.SetText(text);
    mdlMain::SavePatternCombo(form.cbPattern, kLocalMachine, mdlMain::DoublesPatternKey);
  }
  std::vector<Text> Load() {
    ComboForm fresh;
    mdlMain::LoadPatternCombo(fresh.cbPattern, kLocalMachine, u"whatever\\is passed");
    return fresh.cbPattern.items();
  }
  ComboForm form;
};

TEST_F(PatternList, TheTextInUseMovesToTheFront) {
  form.cbPattern.Add(u"*.a");
  form.cbPattern.Add(u"*.b");
  Save(u"*.b");
  EXPECT_EQ(Load(), (std::vector<Text>{u"*.b", u"*.a"}));
  EXPECT_EQ(form.cbPattern.items(), (std::vector<Text>{u"*.a", u"*.b"}));
}

TEST_F(PatternList, AnEmptyTextHidesTheListUntilTheNextSave) {
  form.cbPattern.Add(u"*.a");
  Save(u"");
  EXPECT_TRUE(Load().empty());
  Save(u"*.c");
  EXPECT_EQ(Load(), (std::vector<Text>{u"*.c", u"*.a"}));
}

TEST_F(PatternList, LoadingStopsAtTheFirstBlankName) {
  host.registry.Write(kLocalMachine, u"SOFTWARE\\Patterns", u"*.a", u"*.a");
  host.registry.Write(kLocalMachine, u"SOFTWARE\\Patterns", u"  ", u"x");
  host.registry.Write(kLocalMachine, u"SOFTWARE\\Patterns", u"*.b", u"*.b");
  EXPECT_EQ(Load(), (std::vector<Text>{u"*.a"}));
}

}  // namespace
}  // namespace orvik::mdlRegList
