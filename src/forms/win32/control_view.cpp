#include "forms/win32/control_view.h"

#include "forms/simple_controls.h"
#include "forms/win32/form_window.h"
#include "forms/win32/mouse.h"

namespace orvik::forms::win32 {

namespace {

constexpr UINT_PTR kSubclass = 1;
// The property of a window that leads to its view.
constexpr wchar_t kView[] = L"Orvik.View";

}  // namespace

ControlView::~ControlView() {
  if (window_ != nullptr) DestroyWindow(window_);
}

ControlView* ControlView::Of(HWND window) {
  for (; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (const HANDLE view = GetPropW(window, kView)) return static_cast<ControlView*>(view);
  }
  return nullptr;
}

void ControlView::Create(const wchar_t* window_class, const Text& text, DWORD style,
                         DWORD extended_style) {
  const RECT area = Area();
  style |= WS_CHILD | WS_CLIPSIBLINGS;
  if (control().visible()) style |= WS_VISIBLE;
  if (!control().enabled()) style |= WS_DISABLED;
  window_ =
      CreateWindowExW(extended_style, window_class, Wide(text), style, area.left, area.top,
                      area.right - area.left, area.bottom - area.top, form().ParentOf(control()),
                      form().IdOf(control()), GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(window_, &Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  SetPropW(window_, kView, this);
  tag_.Put(window_, control().name());
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(form().metrics().font()), FALSE);
  form().AddHint(*this);
}

RECT ControlView::Area() const { return form().AreaOf(control()); }

void ControlView::Place() {
  const RECT area = Area();
  SetWindowPos(window_, nullptr, area.left, area.top, area.right - area.left,
               area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void ControlView::Rescale() {
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(form().metrics().font()), TRUE);
  Place();
}

void ControlView::Refresh(Changes changes) {
  if ((changes & Bit(Property::kBounds)) != 0) Place();
  if ((changes & (Bit(Property::kEnabled) | Bit(Property::kVisible))) == 0) return;
  // The focus moves on from here as long as the system still knows where it is.
  form().CheckFocus();
  if ((changes & Bit(Property::kEnabled)) != 0) EnableWindow(window_, control().enabled());
  if ((changes & Bit(Property::kVisible)) != 0) {
    ShowWindow(window_, control().visible() ? SW_SHOWNA : SW_HIDE);
  }
  form().CheckFocus();
}

bool ControlView::Deliver(const std::function<void()>& event) {
  if (!control().Reachable()) return false;
  form().desk().Deliver(event);
  return true;
}

LRESULT ControlView::Default(UINT message, WPARAM wparam, LPARAM lparam) const {
  return DefSubclassProc(window_, message, wparam, lparam);
}

void ControlView::DrawFocus() const {
  if (GetFocus() != window_) return;
  if ((Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) != 0) return;
  RECT area;
  GetClientRect(window_, &area);
  const HDC context = GetDC(window_);
  DrawFocusRect(context, &area);
  ReleaseDC(window_, context);
}

void ControlView::OnMouse(UINT message, WPARAM wparam) {
  const auto click = MouseClickOf(message, wparam);
  if (click) Deliver([&] { control().UserMouse(click->down, click->mouse); });
}

LRESULT ControlView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      OnFocus(message == WM_SETFOCUS);
      break;
    case WM_SETCURSOR:
      // A label that does something when clicked says so.
      if (control().kind() == Kind::kLabel && control().on_click && control().Reachable() &&
          !control().form().skinned()) {
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
      }
      break;
    default:
      OnMouse(message, wparam);
  }
  return window_ != nullptr ? Default(message, wparam, lparam) : 0;
}

LRESULT CALLBACK ControlView::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                        UINT_PTR /*id*/, DWORD_PTR view) noexcept {
  auto& self = *reinterpret_cast<ControlView*>(view);
  if (message != WM_NCDESTROY) return self.OnMessage(message, wparam, lparam);
  RemovePropW(window, kView);
  self.tag_.Remove();
  self.window_ = nullptr;
  RemoveWindowSubclass(window, &Procedure, kSubclass);
  return DefSubclassProc(window, message, wparam, lparam);
}

int ShiftState() {
  return (GetKeyState(VK_SHIFT) < 0 ? kShift : 0) + (GetKeyState(VK_CONTROL) < 0 ? kCtrl : 0) +
         (GetKeyState(VK_MENU) < 0 ? kAlt : 0);
}

}  // namespace orvik::forms::win32
