// What a form draws by itself: its lines, and all of a form without border and title bar.
#include "forms/win32/control_view.h"
#include "forms/win32/form_window.h"

namespace orvik::forms::win32 {

void FormWindow::Draw(const DrawnLine& line) {
  surface_.Add(line);
  const RECT area = win32::AreaOf(line, *metrics_);
  InvalidateRect(window_, &area, TRUE);
}

void FormWindow::Drag() {
  ReleaseCapture();
  // After a click nothing is left to follow. Windows sees that by itself; Wine would have the form
  // stick to the mouse until another click.
  const int button = GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON;
  if (GetAsyncKeyState(button) >= 0) return;
  SendMessageW(window_, WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

void FormWindow::ShowSkin() {
  if (!form_.skinned()) return;
  constexpr int kOpaque = 255;
  if (form_.transparency() < kOpaque) {
    SetWindowLongW(window_, GWL_EXSTYLE, GetWindowLongW(window_, GWL_EXSTYLE) | WS_EX_LAYERED);
    SetLayeredWindowAttributes(window_, 0, static_cast<BYTE>(form_.transparency()), LWA_ALPHA);
  }
  if (!form_.region()) return;
  if (region_dpi_ == 0) region_dpi_ = metrics_->dpi();
  // The form has given it in pixels of the resolution that it was on.
  const auto scaled = [&](int pixels) { return MulDiv(pixels, metrics_->dpi(), region_dpi_); };
  const RoundRegion& region = *form_.region();
  const HRGN shape = CreateRoundRectRgn(scaled(region.left), scaled(region.top),
                                        scaled(region.right), scaled(region.bottom),
                                        scaled(region.corner_width), scaled(region.corner_height));
  // The region is the window's from here on.
  if (SetWindowRgn(window_, shape, TRUE) == 0) DeleteObject(shape);
}

void FormWindow::Paint() const {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(window_, &paint);
  surface_.Paint(context, *metrics_);
  EndPaint(window_, &paint);
}

bool FormWindow::Erase(HDC context) const {
  // Wine has the form draw its background over all of a tree for each button in the tree.
  const HWND asking = WindowFromDC(context);
  const ControlView* view = asking != window_ ? ControlView::Of(asking) : nullptr;
  if (view != nullptr && view->control().kind() == Kind::kTreeView) return true;
  if (!form_.skinned()) return false;
  RECT all;
  GetClientRect(window_, &all);
  FillRect(context, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  return true;
}

}  // namespace orvik::forms::win32
