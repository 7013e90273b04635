#include "platform/associations.h"

#include "unit/support/program_test.h"

namespace orvik::mdlSupport {
namespace {

class Associations : public test::ProgramTest {
 protected:
  void Associate(const Text& extension, TextView command) {
    host.registry.Write(host::kClassesRoot, u"." + extension, u"", extension + u"file");
    host.registry.Write(host::kClassesRoot, extension + u"file\\Shell\\Open\\Command", u"",
                        command);
  }
  // What opening a file starts; nothing at all is "".
  Text Opened(const Text& path) {
    host.files.AddFile(path);
    host.shell.started.clear();
    OpenWithAssociation(path);
    if (host.shell.started.empty()) return {};
    EXPECT_EQ(host.shell.started.size(), 1U);
    EXPECT_EQ(host.shell.started[0].window, host::WindowState::kNormal);
    return host.shell.started[0].command_line;
  }
  // What opening "T:\a.txt" starts under a command.
  Text OpenedBy(TextView command) {
    Associate(u"txt", command);
    return Opened(u"T:\\a.txt");
  }
};

TEST_F(Associations, AMissingPathStartsNothing) {
  Associate(u"txt", u"C:\\n.exe %1");
  OpenWithAssociation(u"T:\\none.txt");
  OpenWithAssociation(u"T:\\none.exe");
  EXPECT_TRUE(host.shell.started.empty());
}

TEST_F(Associations, AProgramStartsByItself) {
  EXPECT_EQ(Opened(u"T:\\a b.exe"), u"\"T:\\a b.exe\"");
  EXPECT_EQ(Opened(u"T:\\a.com"), u"\"T:\\a.com\"");
}

TEST_F(Associations, ANameInCapitalsIsNoProgram) {
  EXPECT_EQ(Opened(u"T:\\A.EXE"), u"");
  Associate(u"EXE", u"C:\\view.exe");
  EXPECT_EQ(Opened(u"T:\\A.EXE"), u"\"C:\\view.exe\" \"T:\\A.EXE\"");
}

TEST_F(Associations, APathWithoutADotStartsNothing) {
  Associate(u"txt", u"C:\\n.exe");
  EXPECT_EQ(Opened(u"T:\\txt"), u"");
}

TEST_F(Associations, ADotInAFolderIsEnough) {
  Associate(u"txt", u"C:\\n.exe");
  EXPECT_EQ(Opened(u"T:\\a.b\\txt"), u"\"C:\\n.exe\" \"T:\\a.b\\txt\"");
}

TEST_F(Associations, ADocumentWithItsProgram) {
  EXPECT_EQ(OpenedBy(u"\"C:\\Some Program\\n.exe\" \"%1\""),
            u"\"C:\\Some Program\\n.exe\" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"C:\\n.EXE %1 /x"), u"\"C:\\n.EXE\" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"C:\\n.exe"), u"\"C:\\n.exe\" \"T:\\a.txt\"");
}

TEST_F(Associations, TheExtensionIsTheLastThreeCharacters) {
  Associate(u"tml", u"C:\\three.exe");
  EXPECT_EQ(Opened(u"T:\\a.html"), u"\"C:\\three.exe\" \"T:\\a.html\"");
  Associate(u"json", u"C:\\four.exe");
  EXPECT_EQ(Opened(u"T:\\a.json"), u"");
  Associate(u"c", u"C:\\one.exe");
  EXPECT_EQ(Opened(u"T:\\a.c"), u"");
}

TEST_F(Associations, ExeIsLookedForBeforeCom) {
  EXPECT_EQ(OpenedBy(u"C:\\n.com %1"), u"\"C:\\n.com\" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"C:\\n.com x.exe %1"), u"\"C:\\n.com x.exe\" \"T:\\a.txt\"");
}

TEST_F(Associations, ACommandWithoutAProgramStartsNothing) {
  EXPECT_EQ(OpenedBy(u"wscript \"%1\""), u"");
  EXPECT_EQ(OpenedBy(u""), u"");
}

TEST_F(Associations, OneCharacterBehindTheExtensionStays) {
  EXPECT_EQ(OpenedBy(u"C:\\n.exe "), u"\"C:\\n.exe \" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"C:\\n.exe x"), u"\"C:\\n.exe\" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"C:\\n.comx"), u"\"C:\\n.comx\" \"T:\\a.txt\"");
}

TEST_F(Associations, TheSystemFolderTakesThePlaceOfTwentyOneCharacters) {
  EXPECT_EQ(OpenedBy(u"%SystemRoot%\\system32\\NOTEPAD.EXE %1"),
            u"\"C:\\Windows\\system32\\NOTEPAD.EXE\" \"T:\\a.txt\"");
}

TEST_F(Associations, TheTwentyOneCharactersGoWhateverTheyAre) {
  // "%SystemRoot%\viewer.e" is cut off.
  EXPECT_EQ(OpenedBy(u"%SystemRoot%\\viewer.exe %1"), u"\"C:\\Windows\\system32xe\" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"%SystemRoot%\\n.exe %1"), u"\"C:\\Windows\\system32\" \"T:\\a.txt\"");
  EXPECT_EQ(OpenedBy(u"C:\\x %SystemRoot%\\system32\\n.exe"),
            u"\"C:\\Windows\\system32tem32\\n.exe\" \"T:\\a.txt\"");
}

TEST_F(Associations, TheSystemFolderIsWrittenExactlySo) {
  EXPECT_EQ(OpenedBy(u"%SYSTEMROOT%\\system32\\NOTEPAD.EXE"),
            u"\"%SYSTEMROOT%\\system32\\NOTEPAD.EXE\" \"T:\\a.txt\"");
}

TEST_F(Associations, AFailedStartIsSilent) {
  host.shell.starts = false;
  EXPECT_EQ(OpenedBy(u"C:\\n.exe"), u"\"C:\\n.exe\" \"T:\\a.txt\"");
  EXPECT_TRUE(front.events.empty());
}

}  // namespace
}  // namespace orvik::mdlSupport
