#include "forms/win32/mouse.h"

namespace orvik::forms::win32 {

std::optional<MouseClick> MouseClickOf(UINT message, WPARAM wparam) {
  int button = 0;
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
      button = kLeftButton;
      break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
      button = kRightButton;
      break;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
      button = kMiddleButton;
      break;
    default:
      return std::nullopt;
  }
  const bool down =
      message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
  const int shift = ((wparam & MK_SHIFT) != 0 ? kShift : 0) +
                    ((wparam & MK_CONTROL) != 0 ? kCtrl : 0) +
                    (GetKeyState(VK_MENU) < 0 ? kAlt : 0);
  return MouseClick{down, {button, shift}};
}

}  // namespace orvik::forms::win32
