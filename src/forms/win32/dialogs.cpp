#include "forms/win32/dialogs.h"

#include <commdlg.h>
#include <shlobj.h>

#include <array>

namespace orvik::forms::win32 {

namespace {

UINT StyleOf(Icon icon) {
  switch (icon) {
    case Icon::kInformation:
      return MB_ICONINFORMATION;
    case Icon::kQuestion:
      return MB_ICONQUESTION;
    case Icon::kCritical:
      return MB_ICONERROR;
    case Icon::kNone:
      break;
  }
  return 0;
}

UINT StyleOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::kOkCancel:
      return MB_OKCANCEL;
    case Buttons::kYesNo:
      return MB_YESNO;
    case Buttons::kOk:
      break;
  }
  return MB_OK;
}

// The form of the common dialogs: pieces that end in a zero each, one more zero at the end.
Text Zeroed(Text filter) {
  for (char16_t& c : filter) {
    if (c == u'|') c = u'\0';
  }
  return filter + Text(2, u'\0');
}

// The ending that the first mask of a filter asks for, such as u"qlx" of u"Lists|*.qlx"; empty for
// masks without one.
Text EndingOf(const Text& filter) {
  const std::size_t mask = filter.find(u'|');
  if (mask == Text::npos) return {};
  const Text first = filter.substr(mask + 1, filter.find_first_of(u"|;", mask + 1) - mask - 1);
  if (!first.starts_with(u"*.")) return {};
  const Text ending = first.substr(2);
  return ending.find_first_of(u"*?") == Text::npos ? ending : Text();
}

}  // namespace

Answer ShowMessage(HWND owner, const Text& text, const Text& title, Icon icon, Buttons buttons) {
  // Without an owner in sight it must come to the front by itself.
  const UINT front = owner == nullptr || IsWindowVisible(owner) == 0 ? MB_SETFOREGROUND : 0;
  switch (MessageBoxW(owner, Wide(text), Wide(title), StyleOf(icon) | StyleOf(buttons) | front)) {
    case IDYES:
      return Answer::kYes;
    case IDNO:
      return Answer::kNo;
    case IDCANCEL:
      // Esc closes a box with the one button OK too.
      return buttons == Buttons::kOk ? Answer::kOk : Answer::kCancel;
    default:
      return Answer::kOk;
  }
}

std::optional<Text> ShowFolderDialog(HWND owner, const Text& title) {
  BROWSEINFOW browse{};
  browse.hwndOwner = owner;
  browse.lpszTitle = Wide(title);
  browse.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_EDITBOX;
  const PIDLIST_ABSOLUTE picked = SHBrowseForFolderW(&browse);
  if (picked == nullptr) return std::nullopt;
  std::array<wchar_t, MAX_PATH> path{};
  const BOOL found = SHGetPathFromIDListW(picked, path.data());
  CoTaskMemFree(picked);
  if (!found) return std::nullopt;
  return FromWide(path.data(), wcslen(path.data()));
}

std::optional<Text> ShowFileDialog(HWND owner, FileDialog dialog, const Text& filter) {
  const Text pieces = Zeroed(filter);
  const Text ending = EndingOf(filter);
  std::array<wchar_t, 1024> name{};
  OPENFILENAMEW request{};
  request.lStructSize = sizeof request;
  request.hwndOwner = owner;
  request.lpstrFilter = Wide(pieces);
  request.lpstrFile = name.data();
  request.nMaxFile = static_cast<DWORD>(name.size());
  request.lpstrDefExt = ending.empty() ? nullptr : Wide(ending);
  request.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ENABLESIZING;
  request.Flags |= dialog == FileDialog::kOpen ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT;
  const BOOL picked =
      dialog == FileDialog::kOpen ? GetOpenFileNameW(&request) : GetSaveFileNameW(&request);
  if (!picked) return std::nullopt;
  return FromWide(name.data(), wcslen(name.data()));
}

void CopyToClipboard(HWND owner, const Text& text) {
  constexpr int kTries = 20;
  constexpr DWORD kPause = 25;
  int tries = 0;
  while (!OpenClipboard(owner)) {
    if (++tries == kTries) return;
    Sleep(kPause);
  }
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(char16_t);
  if (const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size)) {
    memcpy(GlobalLock(memory), text.c_str(), size);
    GlobalUnlock(memory);
    // The clipboard takes the memory over, unless it refuses.
    if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) GlobalFree(memory);
  }
  CloseClipboard();
}

}  // namespace orvik::forms::win32
