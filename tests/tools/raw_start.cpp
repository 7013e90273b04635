// Starts a program with a raw argument line, for tests of the command line: the line reaches the
// program as it is, without anybody's quotes.
//
//   raw-start PROGRAM < LINE
//   raw-start --line-file FILE PROGRAM
//
// The line is UTF-8; one line end behind it is dropped. The program gets the standard handles, and
// its exit code comes back; 126 when it can't be started or the line can't be read.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>

namespace {

constexpr int kNotStarted = 126;

bool ReadAll(HANDLE file, std::string& bytes) {
  char buffer[4096];
  DWORD count = 0;
  while (ReadFile(file, buffer, sizeof buffer, &count, nullptr) && count > 0) {
    bytes.append(buffer, count);
  }
  // A pipe whose writer is gone is at its end.
  return count == 0;
}

bool ReadLine(const wchar_t* path, std::string& line) {
  if (path == nullptr) return ReadAll(GetStdHandle(STD_INPUT_HANDLE), line);
  HANDLE file =
      CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool read = ReadAll(file, line);
  CloseHandle(file);
  return read;
}

std::wstring Wide(const std::string& utf8) {
  const int length = static_cast<int>(utf8.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), needed);
  return wide;
}

// A program that must not outlive its starter: whoever ends the starter means the program. What the
// program itself starts lives on.
HANDLE DyingWithStarter() {
  HANDLE job = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

int Run(const wchar_t* program, const std::wstring& line) {
  std::wstring command = L"\"" + std::wstring(program) + L"\"";
  if (!line.empty()) command += L" " + line;
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process = {};
  HANDLE job = DyingWithStarter();
  if (!CreateProcessW(program, command.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                      nullptr, &startup, &process)) {
    std::fprintf(stderr, "raw-start: error %lu\n", GetLastError());
    return kNotStarted;
  }
  AssignProcessToJobObject(job, process.hProcess);
  ResumeThread(process.hThread);
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = kNotStarted;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(code);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const bool from_file = count == 4 && std::wcscmp(arguments[1], L"--line-file") == 0;
  if (!from_file && count != 2) {
    std::fputs("usage: raw-start [--line-file FILE] PROGRAM\n", stderr);
    return kNotStarted;
  }
  std::string line;
  if (!ReadLine(from_file ? arguments[2] : nullptr, line)) {
    std::fputs("raw-start: the line can't be read\n", stderr);
    return kNotStarted;
  }
  if (line.ends_with('\n')) line.pop_back();
  if (line.ends_with('\r')) line.pop_back();
  return Run(arguments[count - 1], Wide(line));
}
