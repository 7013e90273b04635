#include "startup/commands.h"
#include "unit/support/program_test.h"

namespace orvik::mdlMain {
namespace {

class ViewFileTest : public test::ProgramTest {
 protected:
  ViewFileTest() { host.files.AddFolder(u"C:\\Windows\\Temp"); }
  // The one program that a command line starts, in a normal window.
  Text Started(const Text& line) {
    host.shell.started.clear();
    EXPECT_EQ(Run(line), std::nullopt);
    EXPECT_EQ(host.shell.started.size(), 1U);
    if (host.shell.started.empty()) return {};
    EXPECT_EQ(host.shell.started[0].window, host::WindowState::kNormal);
    return host.shell.started[0].command_line;
  }
  std::string Scratch() { return host.files.Content(u"C:\\Windows\\Temp\\Orvik.txt"); }
};

TEST_F(ViewFileTest, AFileAsItIs) {
  host.files.calls.clear();
  EXPECT_EQ(Started(u"/SHT T:\\Мой файл.txt"),
            u"\"C:\\Windows\\NOTEPAD.EXE\" \"T:\\Мой файл.txt\"");
  EXPECT_EQ(Started(u"/SHT \"T:\\a b.txt\""), u"\"C:\\Windows\\NOTEPAD.EXE\" \"T:\\a b.txt\"");
  EXPECT_TRUE(host.files.calls.empty());  // it isn't read
}

TEST_F(ViewFileTest, WithoutAWindowsFolder) {
  host.system.environment.clear();
  EXPECT_EQ(Started(u"/SHT T:\\a"), u"\"\\NOTEPAD.EXE\" \"T:\\a\"");
  EXPECT_EQ(Started(u"/ASD T:\\a"), u"\"\\notepad.exe\" \\Orvik.txt");
  EXPECT_TRUE(host.files.Exists(u"C:\\Orvik.txt"));
}

TEST_F(ViewFileTest, ADosTextBecomesReadable) {
  host.files.AddFile(u"T:\\dos.txt", "\x8F\xE0\xA8\xA2\xA5\xE2\r\n\xF0");
  EXPECT_EQ(Started(u"/ASD T:\\dos.txt"),
            u"\"C:\\Windows\\notepad.exe\" C:\\Windows\\Temp\\Orvik.txt");
  EXPECT_EQ(Scratch(), CodePage::Numbered(1251).Encode(u"Привет\r\nЁ"));
  EXPECT_EQ(host.files.Content(u"T:\\dos.txt"), "\x8F\xE0\xA8\xA2\xA5\xE2\r\n\xF0");
}

TEST_F(ViewFileTest, TheScratchFileIsReplacedAlsoAReadOnlyOne) {
  host.files.AddFile(u"C:\\Windows\\Temp\\Orvik.txt", "a longer text of earlier",
                     host::attribute::kReadOnly);
  host.files.AddFile(u"T:\\dos.txt", "new");
  Started(u"/ASD T:\\dos.txt");
  EXPECT_EQ(Scratch(), "new");
}

TEST_F(ViewFileTest, TheScratchPathIsNotQuoted) {
  host.files.AddFolder(u"T:\\my temp");
  host.system.environment[1] = u"TEMP=T:\\my temp\\";
  EXPECT_EQ(Started(u"/ASD T:\\a"), u"\"C:\\Windows\\notepad.exe\" T:\\my temp\\Orvik.txt");
}

TEST_F(ViewFileTest, BehindAZeroTheTextStaysAsItWas) {
  host.files.AddFile(u"T:\\dos.txt", std::string("\x80\0\x80", 3));
  Started(u"/ASD T:\\dos.txt");
  EXPECT_EQ(Scratch(), std::string("\xC0\0\x80", 3));
}

TEST_F(ViewFileTest, AMissingFileIsMadeAndShownEmpty) {
  Started(u"/ASD T:\\none.txt");
  EXPECT_TRUE(host.files.Exists(u"T:\\none.txt"));
  EXPECT_TRUE(host.files.Exists(u"C:\\Windows\\Temp\\Orvik.txt"));
  EXPECT_EQ(Scratch(), "");
}

TEST_F(ViewFileTest, ModeOneGoesTheOtherWay) {
  ViewAsText(u"А", 1);
  EXPECT_EQ(Scratch(), "\x80");
  ViewAsText(CodePage::Numbered(1251).Decode("\x80"), 0);
  EXPECT_EQ(Scratch(), "\xC0");
}

TEST_F(ViewFileTest, WhatCannotBeStartedIsSilent) {
  host.shell.starts = false;
  Started(u"/SHT T:\\a");
  Started(u"/ASD T:\\a");
  EXPECT_TRUE(front.events.empty());
}

TEST_F(ViewFileTest, ATargetIsShownWithoutQuotes) {
  host.registry.Write(host::kLocalMachine,
                      u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\explorer.exe", u"",
                      u"%SystemRoot%\\explorer.exe");
  host.shell.AddShortcut(u"T:\\a b.lnk", test::LeadingTo(u"T:\\some dir\\x.txt"));
  EXPECT_EQ(Started(u"/GOP T:\\a b.lnk"),
            u"\"C:\\Windows\\explorer.exe\" /select, T:\\some dir\\x.txt");
  EXPECT_EQ(Started(u"/GOP T:\\none.lnk"), u"\"C:\\Windows\\explorer.exe\" /select, ");
}

TEST_F(ViewFileTest, WithoutARegisteredExplorerALoneQuoteIsStarted) {
  host.shell.AddShortcut(u"T:\\a.lnk", test::LeadingTo(u"T:\\x.txt"));
  EXPECT_EQ(Started(u"/GOP T:\\a.lnk"), u"\" /select, T:\\x.txt");
}

}  // namespace
}  // namespace orvik::mdlMain
