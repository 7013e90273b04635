// Shortcuts: ".lnk" files.
#include <optional>
#include <string>
#include <string_view>

#include "host/file_system.h"
#include "host/shortcut_fields.h"
#include "host/win32/ansi_text.h"
#include "host/win32/com_pointer.h"
#include "host/win32/file_facts.h"
#include "host/win32/handles.h"
#include "host/win32/win32_shell.h"

namespace orvik::host::win32 {
namespace {

// Room for the longest texts that a shortcut can hold.
constexpr int kRoom = static_cast<int>(kLongestShortcutText) + 1;

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
  shortcut.target = PlainTarget(read(link->GetPath(buffer.data(), kRoom, nullptr, 0)));
  shortcut.arguments = read(link->GetArguments(buffer.data(), kRoom));
  shortcut.description = read(link->GetDescription(buffer.data(), kRoom));
  shortcut.working_folder = read(link->GetWorkingDirectory(buffer.data(), kRoom));
  int index = 0;
  if (SUCCEEDED(link->GetIconLocation(buffer.data(), kRoom, &index))) {
    shortcut.icon_location = IconLocationText(FromWide(buffer.c_str()), index);
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

// The path that a target stands for, with its variables expanded: not every shell does that, and
// Wine takes them for names. A bare name is left to the shell, which searches for the program.
// Nothing for one that is too long.
std::optional<std::wstring> FullTarget(const Text& target) {
  const std::wstring plain = ToWide(PlainTarget(target));
  wchar_t expanded[kLongestPath + 1];
  const DWORD room = kLongestPath + 1;
  const DWORD expanded_length = ExpandEnvironmentStringsW(plain.c_str(), expanded, room);
  if (expanded_length == 0 || expanded_length > room) return std::nullopt;
  if (std::wstring_view(expanded).find_first_of(L"\\/:") == std::wstring_view::npos) {
    return expanded;
  }
  wchar_t full[kLongestPath + 1];
  const DWORD length = GetFullPathNameW(expanded, room, full, nullptr);
  if (length == 0 || length >= room) return std::nullopt;
  return ToWide(PlainTarget(FromWide(full)));
}

bool Fill(const ComPointer<IShellLinkW>& link, const Shortcut& shortcut) {
  const IconLocation icon = ParseIconLocation(shortcut.icon_location);
  const auto target = FullTarget(shortcut.target);
  return target && SUCCEEDED(link->SetPath(target->c_str())) &&
         SUCCEEDED(link->SetArguments(ToWide(shortcut.arguments).c_str())) &&
         SUCCEEDED(link->SetDescription(ToWide(shortcut.description).c_str())) &&
         SUCCEEDED(link->SetWorkingDirectory(ToWide(shortcut.working_folder).c_str())) &&
         SUCCEEDED(link->SetIconLocation(ToWide(icon.path).c_str(), icon.index)) &&
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
  if (!ansi || IsReadOnly(*ansi) || IsFolder(*ansi) || !IsFitToWrite(shortcut)) return false;
  NeedCom();
  Link link;
  return link.Create() && Fill(link.link, shortcut) &&
         SUCCEEDED(link.file->Save(FullPath(path).c_str(), TRUE));
}

}  // namespace orvik::host::win32
