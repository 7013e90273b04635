#include "host/win32/win32_system.h"

#include <array>
#include <memory>

#include "host/win32/ansi_text.h"
#include "host/win32/windows_api.h"

namespace orvik::host::win32 {
namespace {

struct FreeEnvironment {
  void operator()(wchar_t* block) const { FreeEnvironmentStringsW(block); }
};

// The page as the system itself converts it, so that contents read here and texts that the system
// converted agree. Where a character takes more than a byte, the fallback.
CodePage PageOfSystem(UINT number, int fallback) {
  CPINFO info;
  if (!GetCPInfo(number, &info) || info.MaxCharSize != 1) return CodePage::Numbered(fallback);
  std::array<char16_t, 128> upper_half = {};
  for (std::size_t i = 0; i < upper_half.size(); ++i) {
    const char byte = static_cast<char>(0x80 + i);
    wchar_t wide = 0;
    const int count = MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, &byte, 1, &wide, 1);
    upper_half[i] = count == 1 ? static_cast<char16_t>(wide) : u'\0';
  }
  return {static_cast<int>(number), upper_half};
}

}  // namespace

Win32System::Win32System()
    : ansi_page_(PageOfSystem(GetACP(), 1251)), oem_page_(PageOfSystem(GetOEMCP(), 866)) {}

std::optional<Text> Win32System::EnvironmentEntry(int index) {
  const std::unique_ptr<wchar_t, FreeEnvironment> block(GetEnvironmentStringsW());
  if (!block || index < 1) return std::nullopt;
  for (std::wstring_view entry = block.get(); !entry.empty();
       entry = entry.data() + entry.size() + 1) {
    // The current folders of the drives hide here under names that begin with "=".
    if (entry.front() == L'=') continue;
    if (--index == 0) return ThroughAnsi(entry);
  }
  return std::nullopt;
}

int Win32System::PlatformId() {
  OSVERSIONINFOA version = {};
  version.dwOSVersionInfoSize = sizeof version;
  return GetVersionExA(&version) ? static_cast<int>(version.dwPlatformId) : 0;
}

Text Win32System::SystemFolder() {
  char folder[1024];
  const UINT length = GetSystemDirectoryA(folder, sizeof folder);
  return FromAnsi({folder, length < sizeof folder ? length : 0});
}

Text Win32System::OwnPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return ThroughAnsi(std::wstring_view(path).substr(0, length));
    path.resize(path.size() * 2);
  }
}

MemoryStatus Win32System::Memory() {
  MEMORYSTATUSEX status = {};
  status.dwLength = sizeof status;
  if (!GlobalMemoryStatusEx(&status)) return {};
  return {static_cast<std::uint32_t>(status.dwMemoryLoad), status.ullTotalPhys,
          status.ullTotalVirtual};
}

DateTime Win32System::Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

std::uint32_t Win32System::Ticks() { return static_cast<std::uint32_t>(GetTickCount()); }

}  // namespace orvik::host::win32
