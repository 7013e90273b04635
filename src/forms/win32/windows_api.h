// The only way from the windows of the forms to the headers of Windows. Their macros take names
// that interfaces of the program use, so those macros go; the W routines are called by full name.
#pragma once

#include <windows.h>
// Needs the above.
#include <commctrl.h>

#undef CopyFile
#undef DeleteFile
#undef MoveFile
#undef Yield

#include "base/text.h"

namespace orvik::forms::win32 {

// A text as the W routines take it; valid as long as the text.
inline const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

// Up to `length` characters as a text.
inline Text FromWide(const wchar_t* text, std::size_t length) {
  return Text(reinterpret_cast<const char16_t*>(text), length);
}

// The text of a window.
inline Text WindowText(HWND window) {
  Text text(static_cast<std::size_t>(GetWindowTextLengthW(window)), u'\0');
  const int copied = GetWindowTextW(window, reinterpret_cast<wchar_t*>(text.data()),
                                    static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

}  // namespace orvik::forms::win32
