#include "platform/shortcuts.h"

#include "unit/support/program_test.h"

namespace orvik {
namespace {

using host::Shortcut;

class Shortcuts : public test::ProgramTest {
 protected:
  static Shortcut Full(const Text& target) {
    return {target, u"/old", u"old description", u"C:\\old", u"C:\\old.ico,1", 7};
  }
  // The shortcut at a path; the target "missing" when there is none.
  Shortcut At(const Text& path) {
    return host.shell.ReadShortcut(path).value_or(test::LeadingTo(u"missing"));
  }
  const std::string done = "message Shorcuts checked|zKelmar's Orvik  v 0.9.8.3 FN|information|ok";
};

TEST_F(Shortcuts, ATargetIsRead) {
  host.shell.AddShortcut(u"T:\\a.lnk", Full(u"T:\\x y.exe"));
  EXPECT_EQ(mdlSupport::ShortcutTarget(u"T:\\a.lnk"), u"T:\\x y.exe");
}

TEST_F(Shortcuts, WhatIsNoShortcutHasNoTargetAndIsNotMade) {
  host.files.AddFile(u"T:\\bad.lnk", "no shortcut");
  EXPECT_EQ(mdlSupport::ShortcutTarget(u"T:\\bad.lnk"), u"");
  EXPECT_EQ(mdlSupport::ShortcutTarget(u"T:\\none.lnk"), u"");
  EXPECT_EQ(mdlSupport::ShortcutTarget(u""), u"");
  EXPECT_FALSE(host.files.Exists(u"T:\\none.lnk"));
}

TEST_F(Shortcuts, ANewOneHoldsWhatItIsGiven) {
  mdlSupport::SaveShortcut(u"T:\\n.lnk", u"/a b", u"text", 2, u"T:\\x.exe", u"T:\\", u"T:\\i.ico");
  const Shortcut made = At(u"T:\\n.lnk");
  EXPECT_EQ(made.target, u"T:\\x.exe");
  EXPECT_EQ(made.arguments, u"/a b");
  EXPECT_EQ(made.description, u"text");
  EXPECT_EQ(made.working_folder, u"T:\\");
  EXPECT_EQ(made.icon_location, u"T:\\i.ico");
  EXPECT_EQ(made.window_style, 2);
}

TEST_F(Shortcuts, EmptyTextsAreNotSetTheOthersAlways) {
  host.shell.AddShortcut(u"T:\\a.lnk", Full(u"T:\\x.exe"));
  mdlSupport::SaveShortcut(u"T:\\a.lnk", u"", u"", 0, u"", u"", u"");
  const Shortcut saved = At(u"T:\\a.lnk");
  EXPECT_EQ(saved.arguments, u"/old");
  EXPECT_EQ(saved.description, u"old description");
  EXPECT_EQ(saved.icon_location, u"C:\\old.ico,1");
  EXPECT_EQ(saved.target, u"");
  EXPECT_EQ(saved.working_folder, u"");
  EXPECT_EQ(saved.window_style, 0);
}

TEST_F(Shortcuts, AGoodShortcutIsLeftAlone) {
  host.files.AddFile(u"T:\\x.exe");
  host.files.AddFile(u"C:\\x.exe");
  host.shell.AddShortcut(u"T:\\a.lnk", Full(u"T:\\x.exe"));
  host.files.changes.clear();
  mdlMain::CheckShortcut(u"T:\\a.lnk");
  EXPECT_TRUE(host.files.changes.empty());
  EXPECT_EQ(At(u"T:\\a.lnk").window_style, 7);
}

TEST_F(Shortcuts, ARepairedOneLandsInTheCurrentFolderWithTheTargetAlone) {
  host.files.AddFolder(u"C:\\here");
  host.files.current_folder = u"C:\\here\\";
  host.files.AddFile(u"T:\\dir\\x.exe");
  host.shell.AddShortcut(u"T:\\links\\a.lnk", Full(u"Q:\\dir\\x.exe"));
  mdlMain::CheckShortcut(u"T:\\links\\a.lnk");
  EXPECT_EQ(At(u"T:\\links\\a.lnk").target, u"Q:\\dir\\x.exe");
  EXPECT_TRUE(host.files.Exists(u"C:\\here\\a.lnk"));
  const Shortcut repaired = At(u"a.lnk");
  EXPECT_EQ(repaired.target, u"T:\\dir\\x.exe");
  EXPECT_EQ(repaired.working_folder, u"T:\\dir\\");
  EXPECT_EQ(repaired.arguments, u"");
  EXPECT_EQ(repaired.description, u"");
  EXPECT_EQ(repaired.icon_location, u"");
  EXPECT_EQ(repaired.window_style, 0);
}

TEST_F(Shortcuts, InTheCurrentFolderItIsRewrittenInPlace) {
  host.files.AddFile(u"T:\\x.exe");
  host.shell.AddShortcut(u"a.lnk", Full(u"Q:\\x.exe"));
  mdlMain::CheckShortcut(u"a.lnk");
  EXPECT_EQ(At(u"a.lnk").target, u"T:\\x.exe");
}

TEST_F(Shortcuts, TheFirstFixedDriveThatHasTheTargetWins) {
  host.files.AddDrive(u"A:", host::drive_type::kRemovable);
  host.files.AddDrive(u"D:");
  host.files.AddFile(u"A:\\x.exe");
  host.files.AddFile(u"D:\\x.exe");
  host.files.AddFile(u"T:\\x.exe");
  host.shell.AddShortcut(u"a.lnk", Full(u"Q:\\x.exe"));
  mdlMain::CheckShortcut(u"a.lnk");
  EXPECT_EQ(At(u"a.lnk").target, u"D:\\x.exe");
}

TEST_F(Shortcuts, ATargetThatIsNowhereChangesNothing) {
  host.shell.AddShortcut(u"a.lnk", Full(u"Q:\\x.exe"));
  mdlMain::CheckShortcut(u"a.lnk");
  EXPECT_EQ(At(u"a.lnk").target, u"Q:\\x.exe");
  EXPECT_TRUE(front.events.empty());
}

TEST_F(Shortcuts, AnUnreadableOneLeadsToTheFirstFixedDrive) {
  host.files.AddFile(u"C:\\bad.lnk", "no shortcut");
  mdlMain::CheckShortcut(u"C:\\bad.lnk");
  EXPECT_EQ(At(u"bad.lnk").target, u"C:");
  EXPECT_EQ(At(u"bad.lnk").working_folder, u"");
  // A missing file counts as unreadable, too.
  mdlMain::CheckShortcut(u"T:\\none.lnk");
  EXPECT_EQ(At(u"none.lnk").target, u"C:");
}

TEST_F(Shortcuts, ATargetOfOneCharacterCountsAsEmpty) {
  host.shell.AddShortcut(u"a.lnk", Full(u"x"));
  mdlMain::CheckShortcut(u"a.lnk");
  EXPECT_EQ(At(u"a.lnk").target, u"C:");
}

class ShortcutFolder : public Shortcuts {
 protected:
  ShortcutFolder() { host.files.AddFile(u"T:\\dir\\x.exe"); }
  void AddBroken(const Text& path) { host.shell.AddShortcut(path, Full(u"Q:\\dir\\x.exe")); }
};

TEST_F(ShortcutFolder, AllShortcutsOfATreeAreChecked) {
  AddBroken(u"T:\\l\\a.lnk");
  AddBroken(u"T:\\l\\deeper\\B.LNK");
  host.files.AddFile(u"T:\\l\\c.txt");
  Run(u"/FSP T:\\l");
  EXPECT_EQ(At(u"a.lnk").target, u"T:\\dir\\x.exe");
  EXPECT_EQ(At(u"B.LNK").target, u"T:\\dir\\x.exe");
  EXPECT_FALSE(host.files.Exists(u"C:\\c.txt"));
  EXPECT_EQ(front.events, (std::vector<std::string>{done}));
}

TEST_F(ShortcutFolder, ASingleOneIsNotChecked) {
  AddBroken(u"T:\\l\\a.lnk");
  Run(u"/FSP T:\\l");
  EXPECT_FALSE(host.files.Exists(u"C:\\a.lnk"));
  EXPECT_EQ(front.events, (std::vector<std::string>{done}));
}

TEST_F(ShortcutFolder, FoldersWithoutShortcutsAndMissingOnes) {
  host.files.AddFolder(u"T:\\empty");
  for (const char16_t* line : {u"/FSP T:\\empty", u"/FSP T:\\none", u"/FSP "}) {
    front.events.clear();
    EXPECT_EQ(Run(line), std::nullopt);
    EXPECT_EQ(front.events, (std::vector<std::string>{done})) << ToUtf8(line);
  }
}

TEST_F(ShortcutFolder, TheSharedResultsOfAScanStay) {
  AddBroken(u"T:\\l\\a.lnk");
  mdlSupport::ScanFiles.emplace(1, u"x");
  Run(u"/FSP T:\\l");
  EXPECT_TRUE(mdlSupport::ScanFiles.has_value());
}

TEST_F(ShortcutFolder, OneShortcutBySwitch) {
  AddBroken(u"T:\\l\\a.lnk");
  EXPECT_EQ(Run(u"/SHP T:\\l\\a.lnk"), std::nullopt);
  EXPECT_EQ(At(u"a.lnk").target, u"T:\\dir\\x.exe");
  EXPECT_TRUE(front.events.empty());
}

}  // namespace
}  // namespace orvik
