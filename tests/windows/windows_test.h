// A front end with real windows for one test, and the user's hands.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "forms/list_controls.h"
#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"
#include "forms/win32/form_window.h"
#include "forms/win32/windows_front_end.h"

namespace orvik::forms::win32 {

// The end of the process, which a test survives.
struct Ended {
  EndReason reason;
};

class TestFrontEnd : public WindowsFrontEnd {
 public:
  [[noreturn]] void EndProcess(EndReason reason) override { throw Ended{reason}; }
};

class WindowsTest : public testing::Test {
 protected:
  // Where a control is on its form, in pixels.
  static RECT Area(const Control& control) {
    RECT area;
    GetWindowRect(WindowOf(control), &area);
    MapWindowPoints(nullptr, WindowOf(control.form()), reinterpret_cast<POINT*>(&area), 2);
    return area;
  }
  WindowsTest() { Install(front_); }

  // Handles all that waits, without the limits of a yield.
  void Pump() {
    front_.WaitForInput(0);
    front_.Yield();
  }
  void PumpFor(int milliseconds) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    while (GetTickCount64() < end) {
      front_.WaitForInput(5);
      front_.Yield();
    }
  }

  static HWND WindowOf(const Control& control) {
    return static_cast<const ControlView&>(*control.view()).window();
  }
  static HWND WindowOf(const Form& form) { return win32::WindowOf(form).window(); }
  static LRESULT Send(const Control& control, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return SendMessageW(WindowOf(control), message, wparam, lparam);
  }
  // The field of a combo box.
  static HWND FieldOf(const ComboBox& box) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(WindowOf(box), &parts);
    return parts.hwndItem;
  }
  static void TypeInto(HWND field, const wchar_t* text) {
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
  }

  // A key goes to whatever has the keyboard.
  void Press(int key, int shift = 0) {
    BYTE before[256];
    GetKeyboardState(before);
    BYTE held[256] = {};
    if ((shift & kShift) != 0) held[VK_SHIFT] = 0x80;
    if ((shift & kCtrl) != 0) held[VK_CONTROL] = 0x80;
    SetKeyboardState(held);
    const HWND focus = GetFocus();
    const auto scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), 0)) << 16;
    PostMessageW(focus, WM_KEYDOWN, static_cast<WPARAM>(key), 1 | scan);
    // The character of a key goes ahead of its way up.
    Pump();
    PostMessageW(focus, WM_KEYUP, static_cast<WPARAM>(key),
                 static_cast<LPARAM>(0xC0000001U) | scan);
    Pump();
    SetKeyboardState(before);
  }

  TestFrontEnd front_;
};

}  // namespace orvik::forms::win32
