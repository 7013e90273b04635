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

// Any number of processes of one name, none of which goes.
class Crowd : public host::Processes {
 public:
  explicit Crowd(std::size_t size) : size_(size) {}
  std::vector<host::Process> Snapshot() override {
    return std::vector<host::Process>(size_, {1, u"ps.exe"});
  }
  bool Terminate(const host::Process&) override {
    ++tried;
    return false;
  }
  int tried = 0;

 private:
  const std::size_t size_;
};

TEST_F(KillProcessTest, AHitThatCannotBeCountedEndsTheSearch) {
  Crowd crowd(40'000);
  auto services = host.services();
  services.processes = &crowd;
  host::Install(services);
  EXPECT_EQ(KillProcess(u"ps.exe"), kTrue);
  EXPECT_EQ(crowd.tried, 32'767);
}

}  // namespace
}  // namespace orvik::mdlKillProcess
