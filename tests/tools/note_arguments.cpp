// Stands in for a program that a test must not really start: notes its command line, a line in
// UTF-8, in the file beside it that has its name and ".args" behind.
#include <windows.h>

#include <string>

int main() {
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring line = std::wstring(GetCommandLineW()) + L"\n";
  std::string utf8(line.size() * 4, '\0');
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), utf8.data(),
                          static_cast<int>(utf8.size()), nullptr, nullptr);
  const HANDLE file = CreateFileW((std::wstring(path) + L".args").c_str(), FILE_APPEND_DATA,
                                  FILE_SHARE_READ, nullptr, OPEN_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  DWORD written = 0;
  WriteFile(file, utf8.data(), static_cast<DWORD>(length), &written, nullptr);
  CloseHandle(file);
  return 0;
}
