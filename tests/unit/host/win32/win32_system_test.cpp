#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

class Win32SystemTest : public HostTest {};

TEST_F(Win32SystemTest, EnvironmentFromOneToItsEnd) {
  ASSERT_TRUE(SetEnvironmentVariableW(L"ORVIK_TEST", L"Значение=x"));
  int found = 0;
  int index = 1;
  for (;; ++index) {
    const auto entry = system().EnvironmentEntry(index);
    if (!entry) break;
    EXPECT_NE(entry->front(), u'=');
    if (*entry == u"ORVIK_TEST=Значение=x") ++found;
  }
  EXPECT_EQ(found, 1);
  EXPECT_GT(index, 5);
  EXPECT_FALSE(system().EnvironmentEntry(index + 1));
  EXPECT_FALSE(system().EnvironmentEntry(0));
  EXPECT_FALSE(system().EnvironmentEntry(-1));
}

TEST_F(Win32SystemTest, HiddenEntriesAreLeftOut) {
  // What the system keeps for the current folder of a drive.
  ASSERT_TRUE(SetEnvironmentVariableW(L"=Q:", L"Q:\\somewhere"));
  for (int index = 1; const auto entry = system().EnvironmentEntry(index); ++index) {
    EXPECT_EQ(entry->find(u"Q:\\somewhere"), Text::npos);
  }
}

TEST_F(Win32SystemTest, Facts) {
  EXPECT_EQ(system().PlatformId(), 2);
  EXPECT_TRUE(files().PathExists(system().SystemFolder()));
  EXPECT_NE(system().SystemFolder().back(), u'\\');
  EXPECT_TRUE(files().PathExists(system().OwnPath()));
  EXPECT_TRUE(EndsWith(ToLower(system().OwnPath()), u"\\orvik-unit.exe"));
  const MemoryStatus memory = system().Memory();
  EXPECT_LE(memory.load_percent, 100u);
  EXPECT_GT(memory.physical_bytes, 1u << 20);
  EXPECT_GT(memory.virtual_bytes, 1u << 20);
}

TEST_F(Win32SystemTest, Clock) {
  SYSTEMTIME before;
  GetLocalTime(&before);
  const DateTime now = system().Now();
  EXPECT_GE(now.year, before.wYear);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12 && now.day >= 1 && now.day <= 31);
  const std::uint32_t start = system().Ticks();
  Sleep(100);
  EXPECT_GE(system().Ticks() - start, 50u);
}

TEST_F(Win32SystemTest, PagesAreThoseOfTheSystem) {
  EXPECT_EQ(system().AnsiPage().number(), 1251);
  EXPECT_EQ(system().OemPage().number(), 866);
  EXPECT_EQ(system().AnsiPage().characters(), CodePage::Numbered(1251).characters());
  EXPECT_EQ(system().OemPage().characters(), CodePage::Numbered(866).characters());
}

TEST_F(Win32SystemTest, Drives) {
  EXPECT_EQ(files().DriveType(u"C:"), drive_type::kFixed);
  EXPECT_EQ(files().DriveType(u"C:\\"), drive_type::kFixed);
  EXPECT_EQ(files().DriveType(u"Q:"), drive_type::kNoRoot);
  const auto space = files().Space(u"C:");
  ASSERT_TRUE(space);
  EXPECT_GT(space->total, space->free);
  EXPECT_FALSE(files().Space(u"Q:\\"));
  EXPECT_TRUE(files().VolumeLabel(u"C:"));
  EXPECT_FALSE(files().VolumeLabel(u"Q:"));
}

}  // namespace
}  // namespace orvik::host::win32
