// The Recycle Bin, started programs, processes and the machine.
#include <algorithm>
#include <chrono>
#include <thread>

#include "conformance/host_test.h"

namespace orvik::host {
namespace {

class ShellTest : public HostTest {
 protected:
  Shell& shell() { return *real_.services().shell; }
  Processes& processes() { return *real_.services().processes; }
  System& system() { return *real_.services().system; }

  // Waits up to ten seconds for something that another process brings about.
  template <typename Condition>
  static bool Comes(Condition&& condition) {
    for (int i = 0; i < 500; ++i) {
      if (condition()) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
  }

  Text OwnName() {
    const Text path = system().OwnPath();
    return path.substr(path.rfind(u'\\') + 1);
  }

  std::vector<std::uint32_t> OwnKind() {
    std::vector<std::uint32_t> ids;
    for (const Process& process : processes().Snapshot()) {
      if (EqualNoCase(process.file_name, OwnName())) ids.push_back(process.id);
    }
    return ids;
  }
};

TEST_F(ShellTest, RecycledFilesAndFoldersAreGoneFromTheirPlace) {
  Write(u"Файл.txt", "1");
  MakeFolder(u"folder");
  Write(u"folder\\inside", "1");
  EXPECT_TRUE(shell().Recycle(At(u"файл.TXT"), Questions::kSilent));
  EXPECT_FALSE(Exists(u"Файл.txt"));
  EXPECT_TRUE(shell().Recycle(At(u"folder"), Questions::kSilent));
  EXPECT_FALSE(Exists(u"folder"));
}

TEST_F(ShellTest, TwoOfOneNameAreRecycled) {
  for (int i = 0; i < 3; ++i) {
    Write(u"same.txt", "1");
    EXPECT_TRUE(shell().Recycle(At(u"same.txt"), Questions::kSilent));
    EXPECT_FALSE(Exists(u"same.txt"));
  }
}

TEST_F(ShellTest, AMissingPathIsntRecycled) {
  EXPECT_FALSE(shell().Recycle(At(u"missing"), Questions::kSilent));
  Write(u"a", "");
  EXPECT_FALSE(shell().Recycle(At(u"*"), Questions::kSilent));
  EXPECT_TRUE(Exists(u"a"));
}

TEST_F(ShellTest, AMissingProgramDoesntStart) {
  EXPECT_FALSE(shell().Start(At(u"missing.exe"), WindowState::kNormal));
  EXPECT_FALSE(shell().Start(u"\"" + At(u"missing.exe") + u"\" x", WindowState::kNormal));
  EXPECT_FALSE(shell().Start(u"", WindowState::kNormal));
}

TEST_F(ShellTest, AProgramStartsWithItsArguments) {
  const Text made = At(u"made by another");
  EXPECT_TRUE(shell().Start(u"\"" + system().OwnPath() + u"\" --make-file \"" + made + u"\"",
                            WindowState::kMinimised));
  EXPECT_TRUE(Comes([&] { return files().PathExists(made); }));
}

TEST_F(ShellTest, AFileThatAnotherProcessHoldsStaysUntilItLetsGo) {
  Write(u"held", "1");
  Write(u"other", "2");
  ASSERT_TRUE(shell().Start(u"\"" + system().OwnPath() + u"\" --hold \"" + At(u"held") + u"\"",
                            WindowState::kMinimised));
  ASSERT_TRUE(Comes([&] { return Exists(u"held.held"); }));
  EXPECT_TRUE(Exists(u"held"));
  EXPECT_EQ(files().FileLength(At(u"held")), 1);
  EXPECT_FALSE(files().DeleteFile(At(u"held")));
  EXPECT_FALSE(files().CopyFile(At(u"other"), At(u"held"), false));
  EXPECT_FALSE(files().MoveFile(At(u"held"), At(u"moved"), false));
  EXPECT_FALSE(files().MoveFile(At(u"other"), At(u"held"), true));
  EXPECT_EQ(files().Open(At(u"held"), OpenMode::kHold), nullptr);
  Write(u"held.release", "");
  EXPECT_TRUE(Comes([&] { return files().DeleteFile(At(u"held")); }));
}

TEST_F(ShellTest, AProcessIsSeenAndEnded) {
  const std::vector<std::uint32_t> before = OwnKind();
  ASSERT_FALSE(before.empty());
  ASSERT_TRUE(
      shell().Start(u"\"" + system().OwnPath() + u"\" --wait-for-ever", WindowState::kNormal));
  std::uint32_t started = 0;
  ASSERT_TRUE(Comes([&] {
    for (const std::uint32_t id : OwnKind()) {
      if (std::find(before.begin(), before.end(), id) == before.end()) started = id;
    }
    return started != 0;
  }));
  EXPECT_TRUE(processes().Terminate({started, OwnName()}));
  EXPECT_TRUE(Comes([&] {
    const std::vector<std::uint32_t> now = OwnKind();
    return std::find(now.begin(), now.end(), started) == now.end();
  }));
}

TEST_F(ShellTest, NoProcessZero) { EXPECT_FALSE(processes().Terminate({0, u"x"})); }

TEST_F(ShellTest, OwnPathExists) {
  EXPECT_TRUE(files().PathExists(system().OwnPath())) << U(system().OwnPath());
}

TEST_F(ShellTest, TheEnvironmentCountsFromOne) {
  EXPECT_EQ(system().EnvironmentEntry(0), std::nullopt);
  int count = 0;
  while (const auto entry = system().EnvironmentEntry(count + 1)) {
    EXPECT_NE(entry->find(u'='), Text::npos) << U(*entry);
    ++count;
  }
  EXPECT_GE(count, 1);
  EXPECT_EQ(system().EnvironmentEntry(-1), std::nullopt);
}

TEST_F(ShellTest, TheMachineTellsItself) {
  EXPECT_EQ(system().PlatformId(), 2);
  EXPECT_FALSE(system().SystemFolder().empty());
  EXPECT_NE(system().SystemFolder().back(), u'\\');
  const MemoryStatus memory = system().Memory();
  EXPECT_LE(memory.load_percent, 100U);
  EXPECT_GT(memory.physical_bytes, 1U << 20);
  EXPECT_GT(memory.virtual_bytes, 1U << 20);
}

TEST_F(ShellTest, ClocksRun) {
  const DateTime now = system().Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_GE(now.month, 1);
  EXPECT_LE(now.month, 12);
  EXPECT_LE(now.second, 60);
  const std::uint32_t before = system().Ticks();
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  const std::uint32_t passed = system().Ticks() - before;
  EXPECT_GE(passed, 30U);
  EXPECT_LT(passed, 10'000U);
}

}  // namespace
}  // namespace orvik::host
