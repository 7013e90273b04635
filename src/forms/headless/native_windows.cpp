#ifdef _WIN32

#include "forms/headless/native.h"
#include "host/win32/windows_api.h"

namespace orvik::forms::headless {

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));
Text FromWide(const wchar_t* text) { return reinterpret_cast<const char16_t*>(text); }

void WriteAll(DWORD handle, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    if (!WriteFile(GetStdHandle(handle), bytes.data(), size, &written, nullptr)) return;
    if (written == 0) return;
    bytes.remove_prefix(written);
  }
}

std::optional<std::string> ReadToEnd(HANDLE handle) {
  std::string content;
  char block[1 << 16];
  for (;;) {
    DWORD count = 0;
    if (!ReadFile(handle, block, sizeof block, &count, nullptr)) {
      // The other end of a pipe has gone: that is its end.
      if (GetLastError() == ERROR_BROKEN_PIPE) return content;
      return std::nullopt;
    }
    if (count == 0) return content;
    content.append(block, count);
  }
}

// Standard error as the command's output, with nothing to read.
STARTUPINFOW CommandHandles(HANDLE input, HANDLE output) {
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = input;
  start.hStdOutput = output;
  start.hStdError = output;
  return start;
}

}  // namespace

Platform ThisPlatform() { return Platform::kWindows; }

std::vector<std::string> Arguments(int, char**) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; wide != nullptr && i < count; ++i) {
    arguments.push_back(ToUtf8(FromWide(wide[i])));
  }
  LocalFree(wide);
  return arguments;
}

void WriteOut(std::string_view bytes) { WriteAll(STD_OUTPUT_HANDLE, bytes); }
void WriteError(std::string_view bytes) { WriteAll(STD_ERROR_HANDLE, bytes); }

std::optional<std::string> ReadAll(const std::string& file) {
  if (file == "-") return ReadToEnd(GetStdHandle(STD_INPUT_HANDLE));
  const Text name = FromUtf8(file);
  const HANDLE handle =
      CreateFileW(reinterpret_cast<const wchar_t*>(name.c_str()), GENERIC_READ,
                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return std::nullopt;
  auto content = ReadToEnd(handle);
  CloseHandle(handle);
  return content;
}

bool RunInterpreter(const Text& command) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  const HANDLE nothing = CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     &inherited, OPEN_EXISTING, 0, nullptr);
  HANDLE output = nullptr;
  DuplicateHandle(GetCurrentProcess(), GetStdHandle(STD_ERROR_HANDLE), GetCurrentProcess(), &output,
                  0, TRUE, DUPLICATE_SAME_ACCESS);
  // With /s the interpreter takes off the outer quotes and leaves the command as it is.
  Text line = u"cmd.exe /d /s /c \"" + command + u"\"";
  STARTUPINFOW start = CommandHandles(nothing, output);
  PROCESS_INFORMATION started = {};
  const bool works = CreateProcessW(nullptr, reinterpret_cast<wchar_t*>(line.data()), nullptr,
                                    nullptr, TRUE, 0, nullptr, nullptr, &start, &started) != FALSE;
  if (works) {
    WaitForSingleObject(started.hProcess, INFINITE);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
  }
  if (output != nullptr) CloseHandle(output);
  if (nothing != INVALID_HANDLE_VALUE) CloseHandle(nothing);
  return works;
}

}  // namespace orvik::forms::headless

#endif
