#include "host/win32/win32_processes.h"

#include "host/win32/ansi_text.h"
#include "host/win32/handles.h"

namespace orvik::host::win32 {
namespace {

// All rights that every version of the system knows. Newer ones are left out: older systems refuse
// to open a process with a right that they don't know.
constexpr DWORD kFullAccess = 0x1F0FFF;
constexpr UINT kExitCode = 1;

}  // namespace

std::vector<Process> Win32Processes::Snapshot() {
  std::vector<Process> processes;
  const UniqueHandle snapshot = Owned(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!snapshot) return processes;
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof entry;
  for (BOOL more = Process32FirstW(snapshot.get(), &entry); more;
       more = Process32NextW(snapshot.get(), &entry)) {
    processes.push_back({entry.th32ProcessID, ThroughAnsi(entry.szExeFile)});
  }
  return processes;
}

bool Win32Processes::Terminate(const Process& process) {
  const UniqueHandle handle = Owned(OpenProcess(kFullAccess, FALSE, process.id));
  return handle && TerminateProcess(handle.get(), kExitCode) != FALSE;
}

}  // namespace orvik::host::win32
