// Shortcuts: ".lnk" files.
#include <charconv>

#include "base/numbers.h"
#include "host/win32/ansi_text.h"
#include "host/win32/com_pointer.h"
#include "host/win32/file_facts.h"
#include "host/win32/handles.h"
#include "host/win32/win32_shell.h"

namespace orvik::host::win32 {
namespace {

// Room for the longest texts that a shortcut can hold.
constexpr int kRoom = 32768;

struct Icon {
  std::wstring path;
  int index = 0;
};

// "path,index"; a comma that no number follows belongs to the path.
Icon ParseIcon(const Text& location) {
  const std::size_t comma = location.rfind(u',');
  if (comma == Text::npos) return {ToWide(location)};
  const std::string digits = ToUtf8(Trim(TextView(location).substr(comma + 1)));
  int index = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, index);
  if (error != std::errc() || stop != end) return {ToWide(location)};
  return {ToWide(TextView(location).substr(0, comma)), index};
}

Text IconText(const wchar_t* path, int index) {
  Text text = FromWide(path);
  return index == 0 ? text : text + u',' + Decimal(index);
}

// A new object that is both interfaces of a shortcut.
struct Link {
  ComPointer<IShellLinkW> link;
  ComPointer<IPersistFile> file;

  bool Create() {
    return SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IShellLinkW, link.Slot())) &&
           SUCCEEDED(link->QueryInterface(IID_IPersistFile, file.Slot()));
  }
};

Shortcut Contents(const ComPointer<IShellLinkW>& link) {
  std::wstring buffer(kRoom, L'\0');
  Shortcut shortcut;
  // Every call that succeeds ends its text with a zero, so what an earlier one left doesn't matter;
  // one that fails must leave nothing.
  const auto read = [&](HRESULT result) {
    Text text = SUCCEEDED(result) ? FromWide(buffer.c_str()) : Text();
    buffer[0] = L'\0';
    return text;
  };
  shortcut.target = read(link->GetPath(buffer.data(), kRoom, nullptr, 0));
  shortcut.arguments = read(link->GetArguments(buffer.data(), kRoom));
  shortcut.description = read(link->GetDescription(buffer.data(), kRoom));
  shortcut.working_folder = read(link->GetWorkingDirectory(buffer.data(), kRoom));
  int index = 0;
  if (SUCCEEDED(link->GetIconLocation(buffer.data(), kRoom, &index))) {
    shortcut.icon_location = IconText(buffer.c_str(), index);
  }
  return shortcut;
}

// The window state out of the header of a ".lnk" file, where it has a fixed place: Wine's shell
// stores it and doesn't hand it out again.
int StoredWindowStyle(const std::wstring& path) {
  constexpr LONG kPlaceInHeader = 0x3C;
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const UniqueHandle file =
      Owned(CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
  std::int32_t style = SW_SHOWNORMAL;
  DWORD count = 0;
  if (file && SetFilePointer(file.get(), kPlaceInHeader, nullptr, FILE_BEGIN) == kPlaceInHeader) {
    ReadFile(file.get(), &style, sizeof style, &count, nullptr);
  }
  return count == sizeof style ? style : SW_SHOWNORMAL;
}

bool Fill(const ComPointer<IShellLinkW>& link, const Shortcut& shortcut) {
  const Icon icon = ParseIcon(shortcut.icon_location);
  return SUCCEEDED(link->SetPath(ToWide(shortcut.target).c_str())) &&
         SUCCEEDED(link->SetArguments(ToWide(shortcut.arguments).c_str())) &&
         SUCCEEDED(link->SetDescription(ToWide(shortcut.description).c_str())) &&
         SUCCEEDED(link->SetWorkingDirectory(ToWide(shortcut.working_folder).c_str())) &&
         SUCCEEDED(link->SetIconLocation(icon.path.c_str(), icon.index)) &&
         SUCCEEDED(link->SetShowCmd(shortcut.window_style));
}

// COM reads a relative path against a folder of its own choice.
std::wstring FullPath(const Text& path) {
  wchar_t full[2 * MAX_PATH];
  const DWORD length = GetFullPathNameW(ToWide(path).c_str(), 2 * MAX_PATH, full, nullptr);
  return {full, length < 2 * MAX_PATH ? length : 0};
}

}  // namespace

std::optional<Shortcut> Win32Shell::ReadShortcut(const Text& path) {
  const auto ansi = AnsiPath(path);
  if (!ansi || IsFolder(*ansi)) return std::nullopt;
  NeedCom();
  Link link;
  const std::wstring full = FullPath(path);
  if (!link.Create() || FAILED(link.file->Load(full.c_str(), STGM_READ))) return std::nullopt;
  Shortcut shortcut = Contents(link.link);
  shortcut.window_style = StoredWindowStyle(full);
  return shortcut;
}

bool Win32Shell::WriteShortcut(const Text& path, const Shortcut& shortcut) {
  const auto ansi = AnsiPath(path);
  if (!ansi || IsReadOnly(*ansi) || IsFolder(*ansi)) return false;
  NeedCom();
  Link link;
  return link.Create() && Fill(link.link, shortcut) &&
         SUCCEEDED(link.file->Save(FullPath(path).c_str(), TRUE));
}

}  // namespace orvik::host::win32
