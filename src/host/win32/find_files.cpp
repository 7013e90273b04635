// Listing folders.
#include "host/name_mask.h"
#include "host/win32/ansi_text.h"
#include "host/win32/file_facts.h"
#include "host/win32/handles.h"
#include "host/win32/win32_file_system.h"

namespace orvik::host::win32 {
namespace {

bool IsDots(const std::wstring_view name) { return name == L"." || name == L".."; }

// "C:\" and "\\server\share\" show no dots on one kind of volume and do on another.
bool IsRoot(const std::wstring& folder) { return PathIsRootW(folder.c_str()) != FALSE; }

// The short names of entries aren't asked for: masks look at long names alone, and the system is
// spared one look-up an entry.
UniqueSearch Begin(const std::wstring& path, WIN32_FIND_DATAW& data) {
  return OwnedSearch(FindFirstFileExW(path.c_str(), FindExInfoBasic, &data, FindExSearchNameMatch,
                                      nullptr, FIND_FIRST_EX_LARGE_FETCH));
}

class Win32Search : public Search {
 public:
  Win32Search(std::wstring folder, Text mask)
      : folder_(std::move(folder)), mask_(std::move(mask)), in_root_(IsRoot(folder_)) {}

  // Asks the system for a name, or for all names where the mask has wildcards: its own reading of
  // them differs from version to version and takes short names in.
  bool Start(const std::wstring& what, FindRecord& record) {
    WIN32_FIND_DATAW data;
    search_ = Begin(folder_ + what, data);
    return search_ && (Take(data, record) || Next(record));
  }

  bool Next(FindRecord& record) override {
    WIN32_FIND_DATAW data;
    while (FindNextFileW(search_.get(), &data)) {
      if (Take(data, record)) return true;
    }
    return false;
  }

 private:
  bool Take(const WIN32_FIND_DATAW& data, FindRecord& record) const {
    const std::wstring_view wide = data.cFileName;
    if (in_root_ && IsDots(wide)) return false;
    Text name = ThroughAnsi(wide);
    if (!FitsMask(name, mask_)) return false;
    record.name = std::move(name);
    record.attributes = data.dwFileAttributes & kKnownAttributes;
    record.size_high = data.nFileSizeHigh;
    record.size_low = data.nFileSizeLow;
    if (IsLink(data.dwFileAttributes, data.dwReserved0)) Follow(wide, record);
    return true;
  }

  void Follow(std::wstring_view name, FindRecord& record) const {
    const auto facts = FactsBehindLink(folder_ + std::wstring(name));
    if (!facts) return;
    record.attributes = facts->attributes & kKnownAttributes;
    record.size_high = static_cast<std::uint32_t>(facts->size >> 32);
    record.size_low = static_cast<std::uint32_t>(facts->size);
  }

  std::wstring folder_;  // with its closing backslash; empty for the current one
  Text mask_;
  bool in_root_;
  UniqueSearch search_;
};

// The bytes below a folder whose path takes names of any length. Nothing when a part of it can't be
// read. A link to a folder isn't entered: what it leads to lies elsewhere, or is counted already.
std::optional<std::uint64_t> SizeBelow(const std::wstring& folder) {
  WIN32_FIND_DATAW data;
  const UniqueSearch search = Begin(folder + L"\\*", data);
  if (!search) {
    // A root that is empty has not even the dots.
    return GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional<std::uint64_t>(0) : std::nullopt;
  }
  std::uint64_t total = 0;
  do {
    const bool is_folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!is_folder) {
      total += (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
    } else if (!IsDots(data.cFileName) && !IsLink(data.dwFileAttributes, data.dwReserved0)) {
      const auto below = SizeBelow(folder + L"\\" + data.cFileName);
      if (!below) return std::nullopt;
      total += *below;
    }
  } while (FindNextFileW(search.get(), &data));
  return total;
}

// The form of a path that has no limit of length, without a closing backslash.
std::wstring UnlimitedPath(const Text& path) {
  wchar_t full[2 * MAX_PATH + 1];
  const DWORD length = GetFullPathNameW(ToWide(path).c_str(), 2 * MAX_PATH + 1, full, nullptr);
  std::wstring unlimited(full, length <= 2 * MAX_PATH ? length : 0);
  while (unlimited.ends_with(L'\\')) unlimited.pop_back();
  if (unlimited.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + unlimited.substr(2);
  return L"\\\\?\\" + unlimited;
}

}  // namespace

std::unique_ptr<Search> Win32FileSystem::FindFirst(const Text& path_and_mask, Details,
                                                   FindRecord& record) {
  if (path_and_mask.size() > kLongestPath || path_and_mask.find(u'\0') != Text::npos)
    return nullptr;
  // A character that the code page lacks is a question mark from here on, as for the ANSI service.
  const Text path = FromAnsi(ToAnsi(path_and_mask));
  const std::size_t behind = path.find_last_of(u"\\/:") + 1;
  const Text mask = path.substr(behind);
  if (mask.empty() || path.substr(0, behind).find_first_of(u"?*") != Text::npos) return nullptr;
  auto search = std::make_unique<Win32Search>(ToWide(path.substr(0, behind)), mask);
  const bool has_wildcards = mask.find_first_of(u"?*") != Text::npos;
  if (!search->Start(has_wildcards ? L"*" : ToWide(mask), record)) return nullptr;
  return search;
}

std::optional<std::uint64_t> Win32FileSystem::FolderSize(const Text& path) {
  const auto ansi = AnsiPath(path);
  if (!ansi || !IsFolder(*ansi)) return std::nullopt;
  return SizeBelow(UnlimitedPath(path));
}

}  // namespace orvik::host::win32
