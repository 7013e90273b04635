#include "forms/win32/up_down_view.h"

#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

// Room on both sides of the window's own value, which never changes.
constexpr int kFarAway = 1000;

}  // namespace

UpDownView::UpDownView(UpDown& arrows, FormWindow& form)
    : ControlView(arrows, form), arrows_(arrows) {
  Create(UPDOWN_CLASSW, arrows.hint(), WS_TABSTOP);
  Send(UDM_SETRANGE32, static_cast<WPARAM>(-kFarAway), kFarAway);
  Send(UDM_SETPOS32, 0, 0);
}

void UpDownView::Press(bool up) {
  Deliver([&] {
    if (up) {
      arrows_.UserUp();
    } else {
      arrows_.UserDown();
    }
  });
}

std::optional<LRESULT> UpDownView::OnNotify(NMHDR& header) {
  if (header.code != UDN_DELTAPOS) return std::nullopt;
  Press(reinterpret_cast<const NMUPDOWN&>(header).iDelta > 0);
  return TRUE;  // the window's own value stays
}

void UpDownView::OnFocus(bool /*here*/) { InvalidateRect(window(), nullptr, TRUE); }

LRESULT UpDownView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_KEYDOWN && (wparam == VK_UP || wparam == VK_DOWN)) {
    Press(wparam == VK_UP);
    return 0;
  }
  const LRESULT result = ControlView::OnMessage(message, wparam, lparam);
  if (window() == nullptr) return result;
  if (message == WM_PAINT) DrawFocus();
  if (message == WM_UPDATEUISTATE) InvalidateRect(window(), nullptr, TRUE);
  return result;
}

}  // namespace orvik::forms::win32
