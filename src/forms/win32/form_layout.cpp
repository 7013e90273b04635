// Size and place of a form's window and of what is in it.
#include <algorithm>

#include "forms/simple_controls.h"
#include "forms/win32/control_view.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

namespace {

bool Overlap(const Control& one, const Control& other) {
  const Bounds& a = one.bounds();
  const Bounds& b = other.bounds();
  return one.container() == other.container() && a.left < b.left + b.width &&
         b.left < a.left + a.width && a.top < b.top + b.height && b.top < a.top + a.height;
}

// How small the user may make a sizable form, of its size by design.
constexpr int Smallest(int design) { return design * 2 / 3; }

}  // namespace

SIZE FormWindow::ClientSize() const {
  if (form_.skinned()) return {metrics_->Pixels(form_.width()), metrics_->Pixels(form_.height())};
  return {metrics_->Pixels(form_.width() - kFrameWidth),
          metrics_->Pixels(form_.height() - kFrameHeight)};
}

SIZE FormWindow::Size() const {
  return OuterSize(ClientSize(), style_, extended_style_, metrics_->dpi());
}

RECT FormWindow::AreaOf(const Control& control) const {
  const Bounds& bounds = control.bounds();
  // Both edges are rounded, so that controls that touch in twips touch in pixels.
  RECT area{metrics_->Pixels(bounds.left), metrics_->Pixels(bounds.top),
            metrics_->Pixels(bounds.left + bounds.width),
            metrics_->Pixels(bounds.top + bounds.height)};
  const int wider = std::max(0, metrics_->Pixels(form_.width() - kFrameWidth) -
                                    metrics_->Pixels(design_width_ - kFrameWidth));
  const Frame* frame = control.container();
  const bool follows = frame == nullptr || frame->anchor() == Control::Anchor::kStretch;
  if (!follows || control.anchor() == Control::Anchor::kNone) return area;
  if (control.anchor() == Control::Anchor::kRight) area.left += wider;
  area.right += wider;
  return area;
}

void FormWindow::PlaceAll() {
  for (Control* control : form_.controls()) {
    if (control->view() == nullptr) continue;
    if (auto* view = dynamic_cast<ControlView*>(control->view())) view->Place();
  }
}

void FormWindow::Stack() {
  // The others stay as they are, in the order in which aids to access read them.
  for (const Control* later : form_.controls()) {
    const auto* view = dynamic_cast<const ControlView*>(later->view());
    if (view == nullptr) continue;
    for (const Control* earlier : form_.controls()) {
      if (earlier == later) break;
      const auto* under = dynamic_cast<const ControlView*>(earlier->view());
      if (under == nullptr || !Overlap(*earlier, *later)) continue;
      const HWND above = GetWindow(under->window(), GW_HWNDPREV);
      if (above == view->window()) continue;
      SetWindowPos(view->window(), above != nullptr ? above : HWND_TOP, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      break;
    }
  }
}

void FormWindow::Resize() {
  const SIZE size = Size();
  RECT now;
  GetWindowRect(window_, &now);
  if (now.right - now.left == size.cx && now.bottom - now.top == size.cy) return;
  if (IsZoomed(window_)) return;
  POINT corner{now.left, now.top};
  if (IsWindowVisible(window_)) Fit(corner, size);
  resizing_ = true;
  SetWindowPos(window_, nullptr, corner.x, corner.y, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  resizing_ = false;
  if (widens_) PlaceAll();
}

void FormWindow::OnUserSize(SIZE client) {
  const int width = metrics_->Twips(client.cx) + kFrameWidth;
  // Of most forms only the width is the user's.
  const int height = form_.sizable() ? metrics_->Twips(client.cy) + kFrameHeight : form_.height();
  if (width == form_.width() && height == form_.height()) return;
  desk_.Deliver([&] { form_.UserResize(width, height); });
  if (window_ != nullptr) PlaceAll();
}

void FormWindow::OnResolution(int dpi, const RECT& suggested) {
  metrics_ = std::make_unique<Metrics>(dpi);
  const SIZE size = Size();
  resizing_ = true;
  SetWindowPos(window_, nullptr, suggested.left, suggested.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  resizing_ = false;
  for (Control* control : form_.controls()) {
    if (control->view() == nullptr) continue;
    if (auto* view = dynamic_cast<ControlView*>(control->view())) view->Rescale();
  }
  ShowSkin();
  InvalidateRect(window_, nullptr, TRUE);
}

void FormWindow::LimitSize(MINMAXINFO& limits) const {
  if (!widens_) return;
  const SIZE size = Size();
  if (form_.sizable()) {
    const int smallest = std::max(Smallest(design_width_), form_.smallest_width());
    limits.ptMinTrackSize = {
        size.cx + metrics_->Pixels(smallest) - metrics_->Pixels(form_.width()),
        size.cy + metrics_->Pixels(Smallest(design_height_)) - metrics_->Pixels(form_.height())};
    return;
  }
  const int narrower = metrics_->Pixels(form_.width()) - metrics_->Pixels(design_width_);
  limits.ptMinTrackSize = {size.cx - std::max(0, narrower), size.cy};
  limits.ptMaxTrackSize.y = size.cy;
}

LRESULT FormWindow::HitTest(WPARAM wparam, LPARAM lparam) const {
  const LRESULT hit = DefWindowProcW(window_, WM_NCHITTEST, wparam, lparam);
  if (form_.sizable()) return hit;
  switch (hit) {
    // The height is the program's.
    case HTTOP:
    case HTBOTTOM:
      return HTBORDER;
    case HTTOPLEFT:
    case HTBOTTOMLEFT:
      return HTLEFT;
    case HTTOPRIGHT:
    case HTBOTTOMRIGHT:
      return HTRIGHT;
    default:
      return hit;
  }
}

void FormWindow::Fit(POINT& corner, SIZE size) const {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window_, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& work = monitor.rcWork;
  corner.x = std::max(work.left, std::min(corner.x, work.right - size.cx));
  corner.y = std::max(work.top, std::min(corner.y, work.bottom - size.cy));
}

void FormWindow::Centre() {
  POINT cursor{};
  GetCursorPos(&cursor);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromPoint(cursor, MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& work = monitor.rcWork;
  // First onto the monitor, which may bring its own resolution and with it another size.
  resizing_ = true;
  SetWindowPos(window_, nullptr, work.left, work.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  const SIZE size = Size();
  SetWindowPos(window_, nullptr, (work.left + work.right - size.cx) / 2,
               (work.top + work.bottom - size.cy) / 2, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  resizing_ = false;
}

}  // namespace orvik::forms::win32
