#include "startup/command_line.h"

#include <gtest/gtest.h>

namespace orvik {
namespace {

TEST(CommandLine, TheProgramsNameGoes) {
  EXPECT_EQ(BehindProgramName(u"Orvik.exe /FCR T:\\a b"), u"/FCR T:\\a b");
  EXPECT_EQ(BehindProgramName(u"\"C:\\Program Files\\Orvik.exe\" /FCR T:\\x"), u"/FCR T:\\x");
  EXPECT_EQ(BehindProgramName(u"\"C:\\My\"\\Orvik.exe /SCH "), u"/SCH ");
}

TEST(CommandLine, BlanksInFrontOfTheLineGoAndThoseBehindStay) {
  EXPECT_EQ(BehindProgramName(u"Orvik.exe   \t/SCH T:\\  "), u"/SCH T:\\  ");
}

TEST(CommandLine, QuotesOfTheArgumentStay) {
  EXPECT_EQ(BehindProgramName(u"Orvik.exe /SYF \"T:\\a b\""), u"/SYF \"T:\\a b\"");
}

TEST(CommandLine, CyrillicLettersRightBehindTheSwitchStay) {
  EXPECT_EQ(BehindProgramName(u"Orvik.exe /FCR Ёлка.txt"), u"/FCR Ёлка.txt");
  EXPECT_EQ(BehindProgramName(u"Orvik.exe Ёлка"), u"Ёлка");
}

TEST(CommandLine, NothingBehindTheName) {
  EXPECT_EQ(BehindProgramName(u"Orvik.exe"), u"");
  EXPECT_EQ(BehindProgramName(u"Orvik.exe  "), u"");
  EXPECT_EQ(BehindProgramName(u"\"Orvik.exe"), u"");
  EXPECT_EQ(BehindProgramName(u""), u"");
}

}  // namespace
}  // namespace orvik
