#include "robot/clipboard.h"

#include <cwchar>
#include <optional>

namespace orvik::robot {

namespace {

// Nothing when another program has the clipboard just now. A clipboard without text has none
// inside.
std::optional<std::optional<Text>> ClipboardText() {
  if (OpenClipboard(nullptr) == 0) return std::nullopt;
  std::optional<Text> text;
  if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
    const auto* const first = static_cast<const wchar_t*>(GlobalLock(memory));
    if (first != nullptr) text = FromWide(first, std::wcslen(first));
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

}  // namespace

bool ClipboardWatch::Look() {
  const DWORD number = GetClipboardSequenceNumber();
  if (number == number_) return false;
  DWORD owner = 0;
  GetWindowThreadProcessId(GetClipboardOwner(), &owner);
  const auto text = ClipboardText();
  if (!text) return true;  // there is more to come
  number_ = number;
  if (!*text || owner != process_) return false;
  record_.Begin("clipboard").Name("text").String(TextView(**text));
  record_.End();
  return true;
}

}  // namespace orvik::robot
