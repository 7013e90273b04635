// What the program's doings outside its forms look like in a run.
#include "forms/headless/scripted_services.h"

#include <gmock/gmock.h>

#include "unit/forms/headless/demo.h"

namespace orvik::forms::headless {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ServicesTest : public testing::Test {
 protected:
  // The lines that a program writes, less the end.
  std::vector<std::string> Lines(const std::function<void()>& program,
                                 const std::string& script = "",
                                 const std::vector<std::string>& options = {}) {
    demo.program = [&](const Text&) { program(); };
    auto lines = demo.Run(script, options).lines;
    EXPECT_EQ(lines.back(), R"({"event":"end","reason":"returned"})");
    lines.pop_back();
    return lines;
  }
  Demo demo;
};

TEST_F(ServicesTest, EachRemovalIsAnsweredAndWritten) {
  demo.host.files.AddFile(u"T:\\a");
  demo.host.files.AddFile(u"T:\\b");
  EXPECT_THAT(Lines(
                  [] {
                    EXPECT_FALSE(host::TheShell().Recycle(u"T:\\a", host::Questions::kAsked));
                    EXPECT_TRUE(host::TheShell().Recycle(u"T:\\b", host::Questions::kAsked));
                  },
                  "answer recycle no"),
              ElementsAre(R"({"event":"recycle","path":"T:\\a","answer":"no"})",
                          R"({"event":"recycle","path":"T:\\b","answer":"yes"})"));
  EXPECT_TRUE(demo.host.files.Exists(u"T:\\a"));
  EXPECT_FALSE(demo.host.files.Exists(u"T:\\b"));
}

TEST_F(ServicesTest, ASilentRemovalAsksNobody) {
  demo.host.files.AddFile(u"T:\\a");
  EXPECT_THAT(
      Lines([] { EXPECT_TRUE(host::TheShell().Recycle(u"T:\\a", host::Questions::kSilent)); },
            "answer recycle no"),
      ElementsAre(R"({"event":"recycle","path":"T:\\a","answer":"yes"})"));
}

TEST_F(ServicesTest, NobodyIsAskedAboutWhatIsNotThere) {
  EXPECT_THAT(
      Lines([] { EXPECT_FALSE(host::TheShell().Recycle(u"T:\\a", host::Questions::kAsked)); }),
      IsEmpty());
}

TEST_F(ServicesTest, ALockedPathDoesNotGoToTheBin) {
  demo.host.files.AddFile(u"T:\\d\\a");
  Lines(
      [] {
        EXPECT_FALSE(host::TheShell().Recycle(u"T:\\d\\A", host::Questions::kAsked));
        EXPECT_FALSE(host::TheShell().Recycle(u"T:\\d", host::Questions::kAsked));
      },
      "", {"--lock", "T:\\d\\a"});
  EXPECT_TRUE(demo.host.files.Exists(u"T:\\d\\a"));
}

TEST_F(ServicesTest, ALockedShortcutIsOutOfReach) {
  demo.host.shell.AddShortcut(u"T:\\a.lnk", {});
  demo.host.shell.AddShortcut(u"T:\\b.lnk", {});
  Lines(
      [] {
        EXPECT_FALSE(host::TheShell().ReadShortcut(u"T:\\a.lnk"));
        EXPECT_FALSE(host::TheShell().WriteShortcut(u"T:\\a.lnk", {}));
        EXPECT_TRUE(host::TheShell().ReadShortcut(u"T:\\b.lnk"));
        EXPECT_TRUE(host::TheShell().WriteShortcut(u"T:\\b.lnk", {}));
      },
      "", {"--lock", "T:\\a.lnk"});
}

TEST_F(ServicesTest, AStartIsWrittenAndCountsAsHavingWorked) {
  demo.host.shell.starts = false;
  const auto start = [] {
    EXPECT_TRUE(host::TheShell().Start(u"Explorer T:\\", host::WindowState::kNormal));
    EXPECT_TRUE(host::TheShell().Start(u"x.bat", host::WindowState::kMinimised));
  };
  EXPECT_THAT(Lines(start), ElementsAre(R"({"event":"start","command":"Explorer T:\\","window":1})",
                                        R"({"event":"start","command":"x.bat","window":2})"));
  EXPECT_THAT(demo.host.shell.started, IsEmpty());
}

TEST_F(ServicesTest, ProgramsReallyStartWhereAskedFor) {
  demo.host.shell.starts = false;
  const auto start = [] { EXPECT_FALSE(host::TheShell().Start(u"x", host::WindowState::kNormal)); };
  EXPECT_THAT(Lines(start, "", {"--run-programs"}),
              ElementsAre(R"({"event":"start","command":"x","window":1})"));
  EXPECT_EQ(demo.host.shell.started.size(), 1U);
}

TEST_F(ServicesTest, AKillIsWrittenAndRealWhereAskedFor) {
  demo.host.processes.running = {{7, u"punto.exe"}};
  const auto kill = [] {
    const auto running = host::TheProcesses().Snapshot();
    ASSERT_EQ(running.size(), 1U);
    EXPECT_TRUE(host::TheProcesses().Terminate(running[0]));
  };
  EXPECT_THAT(Lines(kill), ElementsAre(R"({"event":"kill","process":"punto.exe"})"));
  EXPECT_THAT(demo.host.processes.ended, IsEmpty());
  Lines(kill, "", {"--run-programs"});
  EXPECT_THAT(demo.host.processes.ended, ElementsAre(u"punto.exe"));
}

TEST_F(ServicesTest, TheFirstEntryHidesTheRealEnvironment) {
  Lines([] { EXPECT_EQ(host::TheSystem().EnvironmentEntry(1), u"windir=C:\\Windows"); });
  Lines(
      [] {
        EXPECT_EQ(host::TheSystem().EnvironmentEntry(0), std::nullopt);
        EXPECT_EQ(host::TheSystem().EnvironmentEntry(1), u"TEMP=T:\\");
        EXPECT_EQ(host::TheSystem().EnvironmentEntry(2), u"A=b=c");
        EXPECT_EQ(host::TheSystem().EnvironmentEntry(3), std::nullopt);
      },
      "", {"--env", "TEMP=T:\\", "--env", "A=b=c"});
}

TEST_F(ServicesTest, TheClockIsTheRuns) {
  Lines(
      [] {
        EXPECT_EQ(host::TheSystem().Ticks(), 0U);
        EXPECT_EQ(host::TheSystem().Now().second, 59);
        Front().WaitForInput(2000);
        EXPECT_EQ(host::TheSystem().Ticks(), 2000U);
        EXPECT_EQ(host::TheSystem().Now().year, 2024);
        EXPECT_EQ(host::TheSystem().Now().second, 1);
      },
      "", {"--now", "2023-12-31 23:59:59"});
}

TEST_F(ServicesTest, WithoutADateTheRunBeginsNow) {
  demo.host.system.now = {2020, 5, 6, 7, 8, 9};
  Lines([] {
    EXPECT_EQ(host::TheSystem().Now().minute, 8);
    Front().WaitForInput(60000);
    EXPECT_EQ(host::TheSystem().Now().minute, 9);
  });
}

}  // namespace
}  // namespace orvik::forms::headless
