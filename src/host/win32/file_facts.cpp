#include "host/win32/file_facts.h"

#include "host/win32/ansi_text.h"
#include "host/win32/handles.h"

namespace orvik::host::win32 {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::uint64_t Joined(DWORD high, DWORD low) { return (std::uint64_t{high} << 32) | low; }

}  // namespace

bool IsLink(std::uint32_t attributes, std::uint32_t reparse_tag) {
  return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(reparse_tag);
}

std::optional<FileFacts> FactsBehindLink(const std::wstring& path) {
  const UniqueHandle file =
      Owned(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION facts;
  if (!file || !GetFileInformationByHandle(file.get(), &facts)) return std::nullopt;
  return FileFacts{facts.dwFileAttributes, Joined(facts.nFileSizeHigh, facts.nFileSizeLow)};
}

std::optional<FileFacts> FactsOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA facts;
  if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &facts)) return std::nullopt;
  if ((facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    if (auto behind = FactsBehindLink(ToWide(FromAnsi(path)))) return behind;
  }
  return FileFacts{facts.dwFileAttributes, Joined(facts.nFileSizeHigh, facts.nFileSizeLow)};
}

bool IsFolder(const std::string& path) {
  const auto facts = FactsOf(path);
  return facts && (facts->attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsReadOnly(const std::string& path) {
  const auto facts = FactsOf(path);
  return facts && (facts->attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace orvik::host::win32
