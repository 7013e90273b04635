// The only way from the robot to the headers of Windows. Their macros take names that interfaces of
// the program use, so those macros go; the W routines are called by full name.
#pragma once

#include <windows.h>
// Needs the above.
#include <commctrl.h>

#undef CopyFile
#undef DeleteFile
#undef MoveFile
#undef Yield

#include "base/text.h"

namespace orvik::robot {

// A text as the W routines take it; valid as long as the text.
inline const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

// Up to `length` characters as a text.
inline Text FromWide(const wchar_t* text, std::size_t length) {
  return Text(reinterpret_cast<const char16_t*>(text), length);
}

}  // namespace orvik::robot
