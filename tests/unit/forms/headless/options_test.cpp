#include "forms/headless/options.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

using Arguments = std::vector<std::string>;

Options Good(const Arguments& arguments, Platform platform = Platform::kPosix) {
  std::string reason;
  const auto options = ParseOptions(arguments, platform, reason);
  EXPECT_TRUE(options) << reason;
  return options.value_or(Options());
}

std::string Bad(const Arguments& arguments, Platform platform = Platform::kPosix) {
  std::string reason;
  EXPECT_FALSE(ParseOptions(arguments, platform, reason));
  EXPECT_FALSE(reason.empty());
  EXPECT_EQ(reason.find('\n'), std::string::npos);
  return reason;
}

TEST(Options, ExactlyOneLine) {
  EXPECT_EQ(Good({"/CRC T:\\data"}).line, u"/CRC T:\\data");
  EXPECT_EQ(Good({""}).line, u"");
  EXPECT_EQ(Good({"  "}).line, u"  ");
  Bad({});
  Bad({"--trace"});
  Bad({"--"});
  Bad({"/A", "/B"});
  Bad({"", ""});
}

TEST(Options, TwoDashesEndTheOptions) {
  EXPECT_EQ(Good({"--", "--trace"}).line, u"--trace");
  EXPECT_EQ(Good({"--trace", "--", "/X"}).trace, true);
  Bad({"--", "/A", "--trace"});
}

TEST(Options, AValueFollowsOrStandsBehindASign) {
  EXPECT_EQ(Good({"--script", "a=b", "x"}).script, "a=b");
  EXPECT_EQ(Good({"--script=a=b", "x"}).script, "a=b");
  EXPECT_EQ(Good({"--script", "--trace", "x"}).script, "--trace");
  EXPECT_EQ(Good({"--script", "-", "x"}).script, "-");
  EXPECT_NE(Bad({"x", "--script"}).find("--script"), std::string::npos);
  Bad({"--script=", "x"});
}

TEST(Options, AFlagTakesNoValue) {
  const Options off = Good({"x"});
  EXPECT_FALSE(off.real_time || off.run_programs || off.trace);
  const Options on = Good({"--real-time", "--run-programs", "--trace", "x"});
  EXPECT_TRUE(on.real_time && on.run_programs && on.trace);
  Bad({"--trace=yes", "x"});
}

TEST(Options, UnknownOnesAreNamed) {
  EXPECT_NE(Bad({"--frobnicate", "x"}).find("--frobnicate"), std::string::npos);
  Bad({"--tracer", "x"});
  Bad({"--trac", "x"});
}

TEST(Options, DrivesMayBeRepeated) {
  const Options options = Good({"--drive", "T=/tmp/t", "--drive=c=/", "--drive-type", "T=5", "x"});
  EXPECT_EQ(options.drives, (std::map<char16_t, std::string>{{u'T', "/tmp/t"}, {u'C', "/"}}));
  EXPECT_EQ(options.drive_types, (std::map<char16_t, int>{{u'T', 5}}));
  for (const char* bad : {"T", "T=", "=x", "TT=x", "1=x", "T:/x", ""}) {
    Bad({"--drive", bad, "x"});
  }
  Bad({"--drive-type", "T=x", "x"});
  Bad({"--drive-type", "T=-1", "x"});
}

TEST(Options, DrivesRegistryFileAndCodePageAreForLinux) {
  EXPECT_EQ(Good({"--registry", "/tmp/r", "x"}).registry, "/tmp/r");
  EXPECT_EQ(Good({"--code-page", "866", "x"}).code_page, 866);
  Bad({"--code-page", "russian", "x"});
  for (const char* option : {"--drive=T=/x", "--drive-type=T=1", "--registry=x", "--code-page=1"}) {
    Bad({option, "x"}, Platform::kWindows);
  }
}

TEST(Options, RegistryValues) {
  const Options options = Good({"--reg", "HKEY_LOCAL_MACHINE\\A\\B|name|data|more", "--reg",
                                "HKEY_CLASSES_ROOT\\Метка||", "x"});
  ASSERT_EQ(options.registry_entries.size(), 2U);
  const RegistryEntry& first = options.registry_entries[0];
  EXPECT_EQ(first.root, host::kLocalMachine);
  EXPECT_EQ(first.path, u"A\\B");
  EXPECT_EQ(first.value.name, u"name");
  EXPECT_EQ(first.value.data, u"data|more");
  const RegistryEntry& second = options.registry_entries[1];
  EXPECT_EQ(second.root, host::kClassesRoot);
  EXPECT_EQ(second.path, u"Метка");
  EXPECT_EQ(second.value.name, u"");
  EXPECT_EQ(second.value.data, u"");
  for (const char* bad : {"", "HKEY_LOCAL_MACHINE\\A", "HKEY_LOCAL_MACHINE\\A|x", "HKCU\\A|x|y",
                          "HKEY_LOCAL_MACHINE\\|x|y"}) {
    Bad({"--reg", bad, "x"});
  }
}

TEST(Options, EnvironmentEntries) {
  EXPECT_EQ(Good({"--env", "A=b=c", "--env", "Д=", "x"}).environment,
            (std::vector<Text>{u"A=b=c", u"Д="}));
  Bad({"--env", "A", "x"});
  Bad({"--env", "=b", "x"});
}

TEST(Options, OnlyDigitsBehindTheLastAtAreATime) {
  const Options options = Good(
      {"--lock", "T:\\a", "--lock", "T:\\a@1500", "--lock", "T:\\a@b", "--lock", "T:\\a@1@2", "x"});
  ASSERT_EQ(options.locks.size(), 4U);
  EXPECT_EQ(options.locks[0].path, u"T:\\a");
  EXPECT_EQ(options.locks[0].until, std::nullopt);
  EXPECT_EQ(options.locks[1].path, u"T:\\a");
  EXPECT_EQ(options.locks[1].until, 1500);
  EXPECT_EQ(options.locks[2].path, u"T:\\a@b");
  EXPECT_EQ(options.locks[3].path, u"T:\\a@1");
  EXPECT_EQ(options.locks[3].until, 2);
  Bad({"--lock", "", "x"});
  Bad({"--lock", "@5", "x"});
}

TEST(Options, TimeAndLimits) {
  const Options options =
      Good({"--now", "2024-02-29 13:05:09", "--max-calls", "7", "--max-time=0", "x"});
  ASSERT_TRUE(options.now);
  EXPECT_EQ(options.now->day, 29);
  EXPECT_EQ(options.max_calls, 7);
  EXPECT_EQ(options.max_time, 0);
  Bad({"--now", "yesterday", "x"});
  Bad({"--max-calls", "-1", "x"});
  Bad({"--max-calls", "many", "x"});
  Bad({"--max-time", "1s", "x"});
}

TEST(Options, APathOfLinuxBehindTheSwitchBecomesOneOfADrive) {
  EXPECT_EQ(Good({"/CRC /home/u/docs"}).line, u"/CRC Z:\\home\\u\\docs");
  EXPECT_EQ(Good({"/CRC /"}).line, u"/CRC Z:\\");
  EXPECT_EQ(Good({"/CRC /дом"}).line, u"/CRC Z:\\дом");
  // Everything else is the program's own.
  for (const char* line : {"/CRC T:\\a/b", "/CRC \"/home\"", "/CRC  /home", "/CRC", "/home/u/docs",
                           "abcd /home", "/CRC x/home"}) {
    EXPECT_EQ(Good({line}).line, FromUtf8(line));
  }
  EXPECT_EQ(Good({"/CRC /home"}, Platform::kWindows).line, u"/CRC /home");
}

TEST(Options, APathOfLinuxFollowsAnotherDriveZ) {
  EXPECT_EQ(Good({"--drive", "Z=/home/", "/CRC /home/u"}).line, u"/CRC Z:\\u");
  Bad({"--drive", "Z=/home", "/CRC /etc"});
  Bad({"--drive", "Z=/home", "/CRC /homes"});
}

}  // namespace
}  // namespace orvik::forms::headless
