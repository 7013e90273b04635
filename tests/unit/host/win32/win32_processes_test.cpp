#include <algorithm>

#include "unit/host/win32/fixture.h"

namespace orvik::host::win32 {
namespace {

class Win32ProcessesTest : public HostTest {
 protected:
  std::optional<Process> Named(DWORD id) {
    const auto all = processes().Snapshot();
    const auto found = std::ranges::find(all, id, &Process::id);
    return found == all.end() ? std::nullopt : std::optional(*found);
  }
};

TEST_F(Win32ProcessesTest, ListsItself) {
  const auto own = Named(GetCurrentProcessId());
  ASSERT_TRUE(own);
  EXPECT_TRUE(EqualNoCase(own->file_name, u"orvik-unit.exe")) << ToUtf8(own->file_name);
}

TEST_F(Win32ProcessesTest, EndsAProcessWithCodeOne) {
  wchar_t line[] = L"cmd.exe /c ping -n 30 127.0.0.1 & pause";
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  ASSERT_TRUE(CreateProcessW(nullptr, line, nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                             nullptr, &startup, &started));
  const auto listed = Named(started.dwProcessId);
  ASSERT_TRUE(listed);
  EXPECT_EQ(ToLower(listed->file_name), u"cmd.exe");
  EXPECT_TRUE(processes().Terminate(*listed));
  EXPECT_EQ(WaitForSingleObject(started.hProcess, 5000), DWORD{WAIT_OBJECT_0});
  DWORD code = 0;
  GetExitCodeProcess(started.hProcess, &code);
  EXPECT_EQ(code, 1u);
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
}

TEST_F(Win32ProcessesTest, UnknownProcessResists) {
  EXPECT_FALSE(processes().Terminate({0xFFFFFFF0, u"none"}));
}

}  // namespace
}  // namespace orvik::host::win32
