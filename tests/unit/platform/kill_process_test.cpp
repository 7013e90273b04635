#include "platform/kill_process.h"

#include "unit/support/program_test.h"

namespace orvik::mdlKillProcess {
namespace {

using KillProcessTest = test::ProgramTest;

TEST_F(KillProcessTest, EveryProcessWhoseNameEndsSo) {
  host.processes.running = {{1, u"ps.exe"},     {2, u"PS.EXE"}, {3, u"gps.exe"},
                            {4, u"ps.exe.bak"}, {5, u"s.exe"},  {6, u"ps.exe"}};
  EXPECT_EQ(KillProcess(u"ps.exe"), kTrue);
  EXPECT_EQ(host.processes.ended, (std::vector<Text>{u"ps.exe", u"PS.EXE", u"gps.exe", u"ps.exe"}));
  EXPECT_EQ(host.processes.running.size(), 2U);
}

TEST_F(KillProcessTest, TheNameGivenIgnoresLetterCaseToo) {
  host.processes.running = {{1, u"ps.exe"}};
  EXPECT_EQ(KillProcess(u"PS.Exe"), kTrue);
}

TEST_F(KillProcessTest, NothingFits) {
  host.processes.running = {{1, u"explorer.exe"}};
  EXPECT_EQ(KillProcess(u"ps.exe"), kFalse);
  EXPECT_TRUE(host.processes.ended.empty());
  host.processes.running.clear();
  EXPECT_EQ(KillProcess(u"ps.exe"), kFalse);
}

TEST_F(KillProcessTest, OneThatResistsIsAHitAllTheSame) {
  host.processes.running = {{1, u"ps.exe"}};
  host.processes.resist = true;
  EXPECT_EQ(KillProcess(u"ps.exe"), kTrue);
  EXPECT_EQ(host.processes.running.size(), 1U);
}

TEST_F(KillProcessTest, AHitThatCannotBeCountedEndsTheSearch) {
  host.processes.running.assign(32'768, {0, u"ps.exe"});
  host.processes.resist = true;
  EXPECT_EQ(KillProcess(u"ps.exe"), kTrue);
  host.processes.running.emplace_back(host::Process{1, u"ps.exe"});
  host.processes.resist = false;
  for (std::uint32_t i = 0; i < 32'768; ++i) host.processes.running[i].id = i + 2;
  EXPECT_EQ(KillProcess(u"ps.exe"), kTrue);
  EXPECT_EQ(host.processes.ended.size(), 32'767U);
}

}  // namespace
}  // namespace orvik::mdlKillProcess
