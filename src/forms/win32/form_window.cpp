#include "forms/win32/form_window.h"

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"
#include "forms/win32/mouse.h"
#include "forms/win32/view_factory.h"

namespace orvik::forms::win32 {

namespace {

// The icon of the program in its resources.
constexpr WORD kProgramIcon = 1;

void RegisterClassOf(const Text& name, WNDPROC procedure) {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof window_class;
  window_class.lpfnWndProc = procedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hIcon = LoadIconW(window_class.hInstance, MAKEINTRESOURCEW(kProgramIcon));
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  window_class.lpszClassName = Wide(name);
  // Fails when a form of this name was there before, which is as well.
  RegisterClassExW(&window_class);
}

bool AnyAnchored(const Form& form) {
  for (const Control* control : form.controls()) {
    if (control->anchor() != Control::Anchor::kNone) return true;
  }
  return false;
}

constexpr DWORD kStyle = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

// The monitor that the user is looking at.
HMONITOR PresentMonitor() {
  POINT cursor{};
  GetCursorPos(&cursor);
  return MonitorFromPoint(cursor, MONITOR_DEFAULTTOPRIMARY);
}

}  // namespace

FormWindow& WindowOf(const Form& form) { return static_cast<FormWindow&>(*form.view()); }

FormWindow::FormWindow(Form& form, Desk& desk)
    : form_(form),
      desk_(desk),
      design_width_(form.width()),
      design_height_(form.height()),
      widens_(form.sizable() || AnyAnchored(form)),
      style_(kStyle | (widens_ ? WS_THICKFRAME : 0U) | (form.sizable() ? WS_MAXIMIZEBOX : 0U)),
      metrics_(std::make_unique<Metrics>(DpiOf(PresentMonitor()))) {
  desk_.Enter(*this);
  MakeWindow();
}

FormWindow::~FormWindow() {
  Close();
  desk_.Forget(form_);
  desk_.refresher().Forget(*this);
}

void FormWindow::MakeWindow() {
  const Text class_name = u"Orvik." + FromUtf8(form_.name());
  RegisterClassOf(class_name, &Procedure);
  const SIZE size = Size();
  resizing_ = true;
  window_ = CreateWindowExW(WS_EX_CONTROLPARENT, Wide(class_name), Wide(form_.caption()), style_,
                            CW_USEDEFAULT, CW_USEDEFAULT, size.cx, size.cy, nullptr, nullptr,
                            GetModuleHandleW(nullptr), this);
  resizing_ = false;
  tag_.Put(window_, form_.name());
  // The system may have put it on another monitor.
  if (DpiOf(window_) != metrics_->dpi()) metrics_ = std::make_unique<Metrics>(DpiOf(window_));
  // Without an owner: Wine wouldn't put a form on top that owns a window on top.
  hints_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                           0, 0, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  SendMessageW(hints_, TTM_SETMAXTIPWIDTH, 0, metrics_->Scaled(400));
}

void FormWindow::Close() {
  if (window_ == nullptr) return;
  desk_.Leave(*this);
  DestroyWindow(hints_);
  DestroyWindow(window_);
}

void FormWindow::Show() {
  if (form_.place() == Form::Place::kCentre) {
    Centre();
  } else {
    // The system may have chosen a monitor of another resolution.
    Resize();
  }
  desk_.refresher().Flush();
  ShowWindow(window_, SW_SHOWNORMAL);
  SetForegroundWindow(window_);
  // The system has given the keyboard to the window, which hands it on; unless the user works in
  // another program, and then it does so later.
  UpdateWindow(window_);
}

void FormWindow::Refresh(Changes changes) {
  if ((changes & Bit(Property::kCaption)) != 0) SetWindowTextW(window_, Wide(form_.caption()));
  if ((changes & Bit(Property::kBounds)) != 0) Resize();
  if ((changes & Bit(Property::kTopmost)) != 0) {
    SetWindowPos(window_, form_.topmost() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

HWND FormWindow::ParentOf(const Control& control) const {
  const Frame* frame = control.container();
  if (frame == nullptr || frame->view() == nullptr) return window_;
  return static_cast<const ControlView&>(*frame->view()).window();
}

HMENU FormWindow::IdOf(const Control& control) const {
  UINT_PTR id = 1;
  for (const Control* other : form_.controls()) {
    if (other == &control) break;
    ++id;
  }
  return reinterpret_cast<HMENU>(id);
}

void FormWindow::AddHint(const ControlView& view) {
  const Text& hint = view.control().hint();
  if (hint.empty()) return;
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = GetParent(view.window());
  tool.uId = reinterpret_cast<UINT_PTR>(view.window());
  tool.lpszText = const_cast<wchar_t*>(Wide(hint));
  SendMessageW(hints_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

bool FormWindow::FromControl(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) const {
  if (lparam == 0) return false;
  result = 0;
  if (message == WM_COMMAND) {
    ControlView* view = ControlView::Of(reinterpret_cast<HWND>(lparam));
    if (view == nullptr) return false;
    view->OnCommand(HIWORD(wparam));
    return true;
  }
  if (message != WM_NOTIFY) return false;
  auto& header = *reinterpret_cast<NMHDR*>(lparam);
  ControlView* view = ControlView::Of(header.hwndFrom);
  if (view == nullptr || view->window() != header.hwndFrom) return false;
  const std::optional<LRESULT> answer = view->OnNotify(header);
  result = answer.value_or(0);
  return answer.has_value();
}

void FormWindow::OnTimer(UINT_PTR id) const {
  if (id == 0 || id > form_.controls().size()) return;
  Control* control = form_.controls()[id - 1];
  if (control->kind() != Kind::kTimer) return;
  auto& timer = static_cast<Timer&>(*control);
  // A message may still have been on its way when the timer was switched off.
  if (timer.active()) desk_.Deliver([&] { timer.Fire(); });
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  LRESULT result = 0;
  if (FromControl(message, wparam, lparam, result)) return result;
  if (const auto click = MouseClickOf(message, wparam)) {
    desk_.Deliver([&] { form_.UserMouse(click->down, click->mouse); });
    return 0;
  }
  if (message == TaskbarButton::CreatedMessage()) {
    taskbar_button_.Attach(window_);
    // A restarted explorer may have come to lie on top.
    if (form_.topmost()) Changed(Property::kTopmost);
    return 0;
  }
  switch (message) {
    case WM_CLOSE:
      desk_.Deliver([&] { form_.UserClose(); });
      return 0;
    case WM_TIMER:
      OnTimer(wparam);
      return 0;
    case WM_SETFOCUS:
      if (last_focus_ == nullptr || !FocusIfPossible(*last_focus_)) MoveFocus(1);
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wparam) == WA_INACTIVE) last_focus_ = Focused();
      break;
    case WM_SIZE:
      if (wparam != SIZE_MINIMIZED && !resizing_) OnUserSize({LOWORD(lparam), HIWORD(lparam)});
      return 0;
    case WM_GETMINMAXINFO:
      if (metrics_ != nullptr) LimitSize(*reinterpret_cast<MINMAXINFO*>(lparam));
      return 0;
    case WM_NCHITTEST:
      return HitTest(wparam, lparam);
    case WM_DPICHANGED:
      OnResolution(HIWORD(wparam), *reinterpret_cast<const RECT*>(lparam));
      return 0;
    case WM_SETTINGCHANGE:
      // The user may have picked another font.
      if (wparam == SPI_SETNONCLIENTMETRICS) {
        RECT area;
        GetWindowRect(window_, &area);
        OnResolution(metrics_->dpi(), area);
      }
      break;
    default:
      break;
  }
  return DefWindowProcW(window_, message, wparam, lparam);
}

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wparam,
                                       LPARAM lparam) noexcept {
  if (message == WM_NCCREATE) {
    auto* self =
        static_cast<FormWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lparam)->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  if (message != WM_NCDESTROY) return self->OnMessage(message, wparam, lparam);
  self->tag_.Remove();
  self->window_ = nullptr;
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  return DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace orvik::forms::win32
