#include "forms/win32/frame_view.h"

#include <uxtheme.h>
#include <vsstyle.h>

#include "forms/win32/form_window.h"
#include "forms/win32/handles.h"

namespace orvik::forms::win32 {

namespace {

constexpr wchar_t kClass[] = L"Orvik.Frame";

void RegisterFrameClass() {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof window_class;
  window_class.style = CS_HREDRAW | CS_VREDRAW;
  window_class.lpfnWndProc = DefWindowProcW;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  window_class.lpszClassName = kClass;
  // Fails when it is there already, which is as well.
  RegisterClassExW(&window_class);
}

void DrawBox(HWND window, HDC context, RECT box) {
  if (const HTHEME theme = OpenThemeData(window, L"BUTTON")) {
    DrawThemeBackground(theme, context, BP_GROUPBOX, GBS_NORMAL, &box, nullptr);
    CloseThemeData(theme);
  } else {
    DrawEdge(context, &box, EDGE_ETCHED, BF_RECT);
  }
}

}  // namespace

FrameView::FrameView(Frame& frame, FormWindow& form) : ControlView(frame, form), frame_(frame) {
  RegisterFrameClass();
  Create(kClass, frame.caption(), WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
  SetWindowPos(window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void FrameView::Refresh(Changes changes) {
  ControlView::Refresh(changes);
  if ((changes & Bit(Property::kCaption)) == 0) return;
  SetWindowTextW(window(), Wide(frame_.caption()));
  InvalidateRect(window(), nullptr, TRUE);
}

LRESULT FrameView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  LRESULT result = 0;
  if (form().FromControl(message, wparam, lparam, result)) return result;
  if (message == WM_PAINT) {
    Paint();
    return 0;
  }
  return ControlView::OnMessage(message, wparam, lparam);
}

void FrameView::Paint() const {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(window(), &paint);
  const Text& caption = frame_.caption();
  if (!caption.empty()) {
    const Metrics& metrics = form().metrics();
    RECT box;
    GetClientRect(window(), &box);
    box.top += metrics.line_height() / 2;
    DrawBox(window(), context, box);
    // The caption interrupts the upper edge.
    const Selected font(context, metrics.font());
    SetBkColor(context, GetSysColor(COLOR_BTNFACE));
    SetTextColor(context, GetSysColor(control().enabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    const Text padded = u" " + caption + u" ";
    TextOutW(context, metrics.Scaled(6), 0, Wide(padded), static_cast<int>(padded.size()));
  }
  EndPaint(window(), &paint);
}

}  // namespace orvik::forms::win32
