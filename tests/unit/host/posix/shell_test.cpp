#include "host/posix/shell.h"

#include <chrono>
#include <thread>

#include "host/posix/trash.h"
#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

class PosixShellTest : public PosixTest {
 protected:
  Shell& shell() { return *host_.services().shell; }
  std::string Trash() const { return folder_ + "/data home/Trash"; }
};

TEST_F(PosixShellTest, TheTrashTellsWhereThingsCameFrom) {
  WriteNative("имя 1%.txt", "content");
  EXPECT_TRUE(shell().Recycle(u"T:\\ИМЯ 1%.txt", Questions::kAsked));
  EXPECT_EQ(ReadNative(Trash() + "/files/имя 1%.txt"), "content");
  const std::string note = ReadNative(Trash() + "/info/имя 1%.txt.trashinfo");
  EXPECT_THAT(note, HasSubstr("[Trash Info]\nPath=" + folder_ +
                              "/t/%D0%B8%D0%BC%D1%8F%201%25.txt\nDeletionDate=20"));
  EXPECT_THAT(note.substr(note.rfind('=') + 1), MatchesRegex("....-..-..T..:..:..\n"));
}

TEST_F(PosixShellTest, ThingsOfOneNameGetNumbers) {
  for (const char* const content : {"1", "2", "3"}) {
    WriteNative("x.txt", content);
    EXPECT_TRUE(shell().Recycle(u"T:\\x.txt", Questions::kSilent));
  }
  EXPECT_EQ(ReadNative(Trash() + "/files/x.txt"), "1");
  EXPECT_EQ(ReadNative(Trash() + "/files/x.2.txt"), "2");
  EXPECT_EQ(ReadNative(Trash() + "/files/x.3.txt"), "3");
  EXPECT_THAT(ReadNative(Trash() + "/info/x.2.txt.trashinfo"), HasSubstr("/t/x.txt\n"));
}

// The longest name of a disk leaves no room for a number and for the extension of the note.
TEST_F(PosixShellTest, LongNamesAreCutInTheTrashAndWholeInTheNote) {
  std::string stem;
  for (int i = 0; i < 125; ++i) stem += "ж";
  for (const char* const content : {"1", "2"}) {
    WriteNative(stem + ".docx", content);
    EXPECT_TRUE(shell().Recycle(FromUtf8("T:\\" + stem + ".docx"), Questions::kSilent));
  }
  const std::string first = stem.substr(0, 240) + ".docx";
  const std::string second = stem.substr(0, 238) + ".2.docx";
  EXPECT_EQ(ReadNative(Trash() + "/files/" + first), "1");
  EXPECT_EQ(ReadNative(Trash() + "/files/" + second), "2");
  EXPECT_THAT(ReadNative(Trash() + "/info/" + second + ".trashinfo"),
              HasSubstr("Path=" + PercentEncoded(folder_ + "/t/" + stem + ".docx") + "\n"));
}

TEST_F(PosixShellTest, ALongExtensionIsCutInTheTrashToo) {
  std::string extension = ".";
  for (int i = 0; i < 126; ++i) extension += "ж";
  WriteNative("x" + extension, "content");
  EXPECT_TRUE(shell().Recycle(FromUtf8("T:\\x" + extension), Questions::kSilent));
  EXPECT_EQ(ReadNative(Trash() + "/files/" + extension.substr(0, 245)), "content");
}

TEST_F(PosixShellTest, AThingWithoutANoteIsntOverwritten) {
  ASSERT_EQ(std::system(("mkdir -p '" + Trash() + "/files'").c_str()), 0);
  std::ofstream(Trash() + "/files/x") << "stray";
  WriteNative("x", "mine");
  EXPECT_TRUE(shell().Recycle(u"T:\\x", Questions::kSilent));
  EXPECT_EQ(ReadNative(Trash() + "/files/x"), "stray");
  EXPECT_EQ(ReadNative(Trash() + "/files/x.2"), "mine");
  EXPECT_EQ(ReadNative(Trash() + "/info/x.trashinfo"), "");
}

TEST_F(PosixShellTest, ALinkGoesItself) {
  WriteNative("file", "content");
  ASSERT_EQ(::symlink("file", Native("link").c_str()), 0);
  EXPECT_TRUE(shell().Recycle(u"T:\\link", Questions::kSilent));
  EXPECT_EQ(ReadNative(Native("file")), "content");
}

TEST_F(PosixShellTest, AnUnusableTrashKeepsThingsWhereTheyAre) {
  WriteNative("file", "content");
  std::ofstream(folder_ + "/data home") << "a file where the folder should be";
  EXPECT_FALSE(shell().Recycle(u"T:\\file", Questions::kSilent));
  EXPECT_EQ(ReadNative(Native("file")), "content");
}

TEST_F(PosixShellTest, HeldFilesAndRootsStay) {
  WriteNative("file", "content");
  const auto hold = files().Open(u"T:\\file", OpenMode::kHold);
  EXPECT_FALSE(shell().Recycle(u"T:\\file", Questions::kSilent));
  EXPECT_FALSE(shell().Recycle(u"T:\\", Questions::kSilent));
  EXPECT_EQ(ReadNative(Native("file")), "content");
}

TEST_F(PosixShellTest, ThingsOfAnotherDiskGoToTheTrashAtItsTop) {
  struct stat here;
  struct stat there;
  if (::stat("/dev/shm", &there) != 0 || ::stat(folder_.c_str(), &here) != 0 ||
      here.st_dev == there.st_dev) {
    GTEST_SKIP() << "no second disk";
  }
  const std::string folder = "/dev/shm/orvik-unit-" + std::to_string(::getpid());
  ::mkdir(folder.c_str(), 0777);
  std::ofstream(folder + "/thing") << "content";
  EXPECT_TRUE(shell().Recycle(FromUtf8("Z:" + folder + "/thing"), Questions::kSilent));
  const std::string trash = "/dev/shm/.Trash-" + std::to_string(::getuid());
  EXPECT_EQ(ReadNative(trash + "/files/thing"), "content");
  EXPECT_THAT(ReadNative(trash + "/info/thing.trashinfo"),
              HasSubstr("Path=" + folder.substr(9) + "/thing\n"));
  ASSERT_EQ(std::system(("rm -rf " + folder + " " + trash).c_str()), 0);
}

TEST_F(PosixShellTest, ProgramsGetPathsOfLinux) {
  WriteNative("a program", "#!/bin/sh\nprintf '%s|' \"$@\" > \"$1.part\"; mv \"$1.part\" \"$1\"\n");
  ASSERT_EQ(::chmod(Native("a program").c_str(), 0755), 0);
  EXPECT_TRUE(shell().Start(u"T:\\A PROGRAM \"T:\\out put\" /x plain", WindowState::kNormal));
  std::string told;
  for (int i = 0; i < 500 && told.empty(); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    told = ReadNative(Native("out put"));
  }
  EXPECT_EQ(told, Native("out put") + "|/x|plain|");
}

TEST_F(PosixShellTest, WhatCantRunIsntStarted) {
  WriteNative("document", "text");
  WriteNative("broken", "not a program");
  ASSERT_EQ(::chmod(Native("broken").c_str(), 0755), 0);
  EXPECT_FALSE(shell().Start(u"T:\\document", WindowState::kNormal));
  EXPECT_FALSE(shell().Start(u"T:\\", WindowState::kNormal));
  EXPECT_FALSE(shell().Start(u"no-such-program-anywhere x", WindowState::kNormal));
  EXPECT_TRUE(shell().Start(u"true", WindowState::kNormal));
}

TEST(PercentEncodedTest, OnlyPlainCharactersStay) {
  EXPECT_EQ(PercentEncoded("/a-b_c.d~e f\n\xD0"), "/a-b_c.d~e%20f%0A%D0");
}

}  // namespace
}  // namespace orvik::host::posix
