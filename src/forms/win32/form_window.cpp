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

bool MayWiden(const Form& form) { return !form.skinned() && (form.sizable() || AnyAnchored(form)); }

DWORD StyleOf(const Form& form) {
  DWORD style = WS_SYSMENU | WS_CLIPCHILDREN | (form.skinned() ? WS_POPUP : WS_CAPTION);
  // A form in front of another one is minimised with it.
  if (form.owner() == nullptr) style |= WS_MINIMIZEBOX;
  if (MayWiden(form)) style |= WS_THICKFRAME;
  if (form.sizable()) style |= WS_MAXIMIZEBOX;
  return style;
}

DWORD ExtendedStyleOf(const Form& form) {
  // What has no title bar gets no button in the task bar by itself.
  return WS_EX_CONTROLPARENT | (form.skinned() ? WS_EX_APPWINDOW : 0U);
}

// The window that a form is to stay in front of.
HWND OwnerOf(const Form& form) {
  const Form* owner = form.owner();
  return owner != nullptr && owner->view() != nullptr ? WindowOf(*owner).window() : nullptr;
}

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
      widens_(MayWiden(form)),
      style_(StyleOf(form)),
      extended_style_(ExtendedStyleOf(form)),
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
  window_ = CreateWindowExW(extended_style_, Wide(class_name), Wide(form_.caption()), style_,
                            CW_USEDEFAULT, CW_USEDEFAULT, size.cx, size.cy, OwnerOf(form_), nullptr,
                            GetModuleHandleW(nullptr), this);
  resizing_ = false;
  tag_.Put(window_, form_.name());
  TagItems();
  // The system may have put it on another monitor.
  if (DpiOf(window_) != metrics_->dpi()) metrics_ = std::make_unique<Metrics>(DpiOf(window_));
  // Without an owner: Wine wouldn't put a form on top that owns a window on top.
  hints_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                           0, 0, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  SendMessageW(hints_, TTM_SETMAXTIPWIDTH, 0, metrics_->Scaled(400));
}

void FormWindow::Close() {
  desk_.Leave(*this);
  if (window_ == nullptr) return;
  // The system hands the keyboard to a window that can take it, so those of the other forms can
  // again before this one goes.
  modal_.reset();
  // The system would destroy what this one owns.
  for (const FormWindow* other : desk_.windows()) {
    if (GetWindow(other->window_, GW_OWNER) != window_) continue;
    SetWindowLongPtrW(other->window_, GWLP_HWNDPARENT, 0);
  }
  DestroyWindow(hints_);
  DestroyWindow(window_);
}

void FormWindow::BecomeModal(HWND owner) {
  SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  SetWindowLongW(window_, GWL_STYLE,
                 static_cast<LONG>(style_ & ~static_cast<DWORD>(WS_MINIMIZEBOX)));
  modal_ = std::make_unique<OtherFormsDisabled>(desk_, window_);
  desk_.refresher().Flush();
  for (const Control* control : form_.controls()) {
    if (control->kind() != Kind::kTextBox) continue;
    SendMessageW(static_cast<const ControlView&>(*control->view()).window(), EM_SETSEL, 0, -1);
    return;
  }
}

void FormWindow::Show() {
  // The system has no place of its own for a window without a title bar.
  if (form_.place() == Form::Place::kCentre || form_.skinned()) {
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
  if ((changes & Bit(Property::kSkin)) != 0) ShowSkin();
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

void FormWindow::SetTooltip(const ControlView& view, const Text& text) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = view.window();
  tool.uId = reinterpret_cast<UINT_PTR>(view.window());
  // A new tool shows even where the mouse has been resting over the old one.
  SendMessageW(hints_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  tool.lpszText = text.empty() ? LPSTR_TEXTCALLBACKW : const_cast<wchar_t*>(Wide(text));
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
  if (message == WM_CTLCOLORSTATIC) {
    ControlView* view = ControlView::Of(reinterpret_cast<HWND>(lparam));
    const HBRUSH brush = view != nullptr ? view->OnColor(reinterpret_cast<HDC>(wparam)) : nullptr;
    result = reinterpret_cast<LRESULT>(brush);
    return brush != nullptr;
  }
  if (message == WM_DRAWITEM) {
    const auto& draw = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
    // A menu has no window.
    ControlView* view = draw.CtlType != ODT_MENU ? ControlView::Of(draw.hwndItem) : nullptr;
    if (view != nullptr) view->OnDraw(draw);
    return view != nullptr;
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
    case WM_COMMAND:
      // Controls were served above.
      if (lparam == 0 && HIWORD(wparam) == 0) OnMenu(LOWORD(wparam));
      return 0;
    case WM_PAINT:
      if (surface_.empty()) break;
      Paint();
      return 0;
    case WM_ERASEBKGND:
      if (Erase(reinterpret_cast<HDC>(wparam))) return 1;
      break;
    case WM_SETFOCUS:
      OnFocus();
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

void FormWindow::Destroyed() {
  tag_.Remove();
  menu_tag_.Remove();
  UntagItems();
  window_ = nullptr;
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
  self->Destroyed();
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  return DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace orvik::forms::win32
