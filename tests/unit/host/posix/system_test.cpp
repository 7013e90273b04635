#include "host/posix/system.h"

#include <sys/wait.h>

#include "unit/host/posix/posix_test.h"

namespace orvik::host::posix {
namespace {

class PosixSystemTest : public PosixTest {
 protected:
  System& system() { return *host_.services().system; }
  Processes& processes() { return *host_.services().processes; }
};

TEST_F(PosixSystemTest, TheEnvironmentIsTheGivenOne) {
  EXPECT_EQ(system().EnvironmentEntry(1), u"TEMP=C:\\T");
  EXPECT_EQ(system().EnvironmentEntry(2), u"windir=D:\\Win");
  EXPECT_EQ(system().EnvironmentEntry(3), std::nullopt);
  EXPECT_EQ(system().SystemFolder(), u"D:\\Win\\system32");
}

TEST_F(PosixSystemTest, CodePagesAreTheGivenOnes) {
  EXPECT_EQ(system().AnsiPage().number(), 1251);
  EXPECT_EQ(system().OemPage().number(), 866);
}

TEST_F(PosixSystemTest, OwnPathIsInDriveForm) {
  const Text path = system().OwnPath();
  EXPECT_EQ(path.substr(0, 3), u"Z:\\");
  EXPECT_EQ(host_.DriveForm(folder_ + "/t/x"), u"T:\\x");
}

TEST_F(PosixSystemTest, DefaultsMakeADriveC) {
  const Options options = DefaultOptions();
  EXPECT_EQ(options.drives.at(u'Z'), "/");
  EXPECT_EQ(options.drives.at(u'C'), folder_ + "/data home/orvik/drive_c");
  PosixHost host(options);
  EXPECT_TRUE(host.services().files->PathExists(u"C:\\WINDOWS\\Temp"));
  EXPECT_EQ(host.services().system->SystemFolder(), u"C:\\Windows\\system32");
}

TEST_F(PosixSystemTest, AProcessIsEndedOnlyUnderItsName) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::execlp("sleep", "sleep", "60", nullptr);
    ::_exit(127);
  }
  const auto id = static_cast<std::uint32_t>(child);
  const auto seen = [&] {
    for (const Process& process : processes().Snapshot()) {
      if (process.id == id) return ToUtf8(process.file_name);
    }
    return std::string();
  };
  for (int i = 0; i < 500 && seen() != "sleep"; ++i) ::usleep(10'000);
  EXPECT_EQ(seen(), "sleep");
  EXPECT_FALSE(processes().Terminate({id, u"other"}));
  EXPECT_TRUE(processes().Terminate({id, u"sleep"}));
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(seen(), "");
  EXPECT_FALSE(processes().Terminate({id, u"sleep"}));
}

}  // namespace
}  // namespace orvik::host::posix
