#ifdef _WIN32
#include <cstdlib>
#include <string>

#include "conformance/real_host.h"
#include "host/win32/win32_host.h"
#include "host/win32/windows_api.h"

namespace orvik::host {
namespace {

constexpr std::int64_t kFrom1601To1970 = 116'444'736'000'000'000;

std::wstring Wide(TextView text) { return {text.begin(), text.end()}; }

std::wstring MakeTemporaryFolder() {
  static int number = 0;
  wchar_t place[MAX_PATH + 1];
  GetTempPathW(MAX_PATH + 1, place);
  std::wstring folder = std::wstring(place) + L"orvik-" + std::to_wstring(GetCurrentProcessId()) +
                        L"-" + std::to_wstring(++number);
  CreateDirectoryW(folder.c_str(), nullptr);
  return folder;
}

void RemoveTree(const std::wstring& folder) {
  WIN32_FIND_DATAW data;
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::wstring name = data.cFileName;
      if (name == L"." || name == L"..") continue;
      const std::wstring path = folder + L"\\" + name;
      SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
      if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        RemoveTree(path);
      } else {
        DeleteFileW(path.c_str());
      }
    } while (FindNextFileW(search, &data));
    FindClose(search);
  }
  RemoveDirectoryW(folder.c_str());
}

HANDLE OpenAt(const std::wstring& path, DWORD access, DWORD disposition) {
  return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

struct RealHost::System {
  std::wstring PathOf(TextView name) const { return L"\\\\?\\" + folder + L"\\" + Wide(name); }

  std::wstring folder = MakeTemporaryFolder();
  win32::Win32Host host;
};

RealHost::RealHost()
    : system_(std::make_unique<System>()),
      scratch_(system_->folder.begin(), system_->folder.end()) {}

RealHost::~RealHost() { RemoveTree(L"\\\\?\\" + system_->folder); }

Host RealHost::services() { return system_->host.services(); }

void RealHost::MakeForeignFile(TextView name) {
  const HANDLE file = OpenAt(system_->PathOf(name), GENERIC_WRITE, CREATE_ALWAYS);
  DWORD written = 0;
  if (!WriteFile(file, "x", 1, &written, nullptr)) std::abort();
  CloseHandle(file);
}

std::int64_t RealHost::TimeOf(TextView name) const {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(system_->PathOf(name).c_str(), GetFileExInfoStandard, &data)) return 0;
  const FILETIME& time = data.ftLastWriteTime;
  return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime) -
         kFrom1601To1970;
}

void RealHost::SetTime(TextView name, std::int64_t time) {
  const auto moment = static_cast<std::uint64_t>(time + kFrom1601To1970);
  const FILETIME file_time = {static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32)};
  const HANDLE file = OpenAt(system_->PathOf(name), FILE_WRITE_ATTRIBUTES, OPEN_EXISTING);
  SetFileTime(file, nullptr, nullptr, &file_time);
  CloseHandle(file);
}

bool RealHost::KeepsValueOrder() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
}

std::shared_ptr<void> HoldAsAnotherProgram(const char* path) {
  const HANDLE file = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  return {file, [](void* handle) { CloseHandle(handle); }};
}

}  // namespace orvik::host
#endif
